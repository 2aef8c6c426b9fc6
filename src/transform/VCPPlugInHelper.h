#pragma once

#include "transform/VCPTransformImpl.h"

/// A transform that remembers the element it was read from.
class VANTREL_API CVCPPlugInHelper : public CVCPTransformImpl
{
public:
    CVCPPlugInHelper() = default;
    virtual ~CVCPPlugInHelper() = default;

    /// Reads the transform and keeps `node`, which has to outlive the helper's use of it.
    vantrel::Status LoadXML(_xmlNode* node);

    /// Hands out a deep copy of the element last loaded with the present transform written into it.
    /// The caller owns it and releases it with `xmlFreeNode`. `status::kFailure` when nothing is
    /// loaded.
    vantrel::Status SaveXML(_xmlNode** out) const;

    /// Makes a deep copy of `node` in which `content` takes the place of an earlier child of its
    /// name. The caller gives up `content`, and owns the result. A null argument gives
    /// `status::kNullPointer`, anything but elements `status::kBadArgument`; `content` then stays
    /// the caller's.
    vantrel::Status MergeXML(_xmlNode* node, _xmlNode* content, _xmlNode** out) const;

protected:
    _xmlNode* m_xml = nullptr; ///< the element last loaded; not owned
};
