#include "transform/VCPPlugInHelper.h"

#include "xml/KeptXml.h"
#include "xml/XmlPtr.h"
#include "xml/XmlValue.h"

using namespace vantrel;

Status CVCPPlugInHelper::LoadXML(_xmlNode* node)
{
    m_xml = nullptr;
    const Status result = CVCPTransformImpl::LoadXML(node);
    m_xml = node;
    return result;
}

Status CVCPPlugInHelper::SaveXML(_xmlNode** out) const
{
    if (!m_xml || !out)
        return status::kFailure;
    *out = nullptr;
    XmlNodePtr copy = CopyXml(m_xml);
    if (!copy)
        return status::kFailure;
    (void)ReplaceXML(copy.get()); // never fails on an element
    *out = copy.release();
    return status::kOk;
}

Status CVCPPlugInHelper::MergeXML(_xmlNode* node, _xmlNode* content, _xmlNode** out) const
{
    if (!node || !content || !out)
        return status::kNullPointer;
    if (!IsElement(node) || !IsElement(content))
        return status::kBadArgument;
    *out = nullptr;
    XmlNodePtr merged = CopyXml(node);
    if (!merged)
        return status::kNullPointer;
    if (Failed(DetachXml(content)))
        return status::kNullPointer;
    if (_xmlNode* earlier = FindChildElement(merged.get(), NameOf(content))) {
        xmlUnlinkNode(earlier);
        const XmlNodePtr released{ earlier };
    }
    xmlAddChild(merged.get(), content); // can't fail on two elements of no document
    *out = merged.release();
    return status::kOk;
}
