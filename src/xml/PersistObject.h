#pragma once

#include "core/Export.h"
#include "core/Status.h"

#include <libxml/tree.h>

/// A complete object that goes into and comes from one XML element.
class VANTREL_API CPersistObject
{
public:
    CPersistObject() = default;
    CPersistObject(const CPersistObject&) = delete;
    CPersistObject& operator=(const CPersistObject&) = delete;

    virtual vantrel::Status SaveXML(_xmlNode* node) { return PersistXML(node, true); }
    virtual vantrel::Status LoadXML(_xmlNode* node) { return PersistXML(node, false); }

    /// Writes the object as the content of `node`, or reads it from there: one function, so that
    /// the two orders can't part. Null gives `status::kBadArgument`.
    virtual vantrel::Status PersistXML(_xmlNode* node, bool save) = 0;

    virtual ~CPersistObject() = default;
};
