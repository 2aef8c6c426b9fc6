#pragma once

#include "core/Status.h"
#include "xml/XmlPtr.h"

namespace vantrel {

/// A deep copy of `node` that depends on nothing of its document.
///
/// Prefixed names become plain names with the prefix in them ("dt:dt"), so that the copy carries no
/// namespace declaration of its own: the one on the root of the file serves it when it is written.
/// A prefix that the root doesn't declare gets its declaration at the top of the copy. Entity
/// references become the text that they stand for. Null gives null.
XmlNodePtr CopyXml(const xmlNode* node);

/// Hangs a deep copy of `kept`, which comes from `CopyXml`, under `parent` as its last child.
Status AppendXmlCopy(xmlNode* parent, const xmlNode* kept);

} // namespace vantrel
