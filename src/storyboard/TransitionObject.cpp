#include "storyboard/TransitionObject.h"

#include "storyboard/KeptElement.h"
#include "storyboard/PersistParts.h"
#include "xml/XmlValue.h"

using namespace vantrel;

namespace {

/// What a save writes of a panel that has nothing else.
XmlNodePtr Written(CTransitionObject& transition)
{
    XmlNodePtr element{ xmlNewNode(nullptr, XmlChars("transition")) };
    if (element)
        PersistPart<CXMLBaseObjectImpl>(transition, element.get(), true);
    return element;
}

} // namespace

Status CTransitionObject::PersistXML(_xmlNode* node, bool save)
{
    if (!node)
        return status::kBadArgument;
    if (save)
        Save(node);
    else
        Load(node);
    return status::kOk;
}

Status CTransitionObject::SetContent(_xmlNode* element)
{
    if (element && !IsElement(element))
        return status::kBadArgument;
    m_content = KeepWhole(element);
    return status::kOk;
}

void CTransitionObject::Save(_xmlNode* node)
{
    if (!m_content) {
        PersistPart<CXMLBaseObjectImpl>(*this, node, true);
        return;
    }
    CTransitionObject was{ ForReading() };
    PersistPart<CXMLBaseObjectImpl>(was, m_content.get(), false);
    SaveOver(node, m_content.get(), Written(was).get(), Written(*this).get());
}

void CTransitionObject::Load(_xmlNode* node)
{
    PersistPart<CXMLBaseObjectImpl>(*this, node, false);
    m_content = KeepForeign(node, Written(*this).get());
}
