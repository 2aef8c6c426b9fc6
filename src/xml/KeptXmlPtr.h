#pragma once

#include "core/Export.h"

#include <libxml/tree.h>

#include <map>
#include <memory>
#include <string>

namespace vantrel {

/// Releases a kept subtree, with the document of its own if it is the root of one.
struct VANTREL_API ReleaseKeptXml
{
    void operator()(xmlNode* node) const;
};

/// An XML subtree that an object keeps, from a load to the saves that follow. A program may put any
/// node in that stands in no tree, or is the root of a document that goes with it.
using KeptXmlPtr = std::unique_ptr<xmlNode, ReleaseKeptXml>;

/// Kept subtrees by name.
using MetaDataMap = std::map<std::string, KeptXmlPtr>;

} // namespace vantrel
