#include "transform/VCPPlugInHelper.h"

#include "xml/KeptXml.h"
#include "xml/XmlPtr.h"
#include "xml/XmlValue.h"

using namespace vantrel;

namespace {

/// `content` taken out of where it stands. In a document its names belong to that document, so that
/// a copy has to go on in its place.
XmlNodePtr TakeOut(_xmlNode* content)
{
    const bool standsAlone = !content->doc && !content->parent;
    xmlUnlinkNode(content);
    XmlNodePtr taken{ content };
    return standsAlone ? std::move(taken) : CopyXml(taken.get());
}

} // namespace

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
    if (_xmlNode* earlier = FindChildElement(merged.get(), NameOf(content))) {
        xmlUnlinkNode(earlier);
        const XmlNodePtr released{ earlier };
    }
    xmlAddChild(merged.get(), TakeOut(content).release());
    *out = merged.release();
    return status::kOk;
}
