#include "storyboard/TransitionObject.h"

#include "storyboard/PersistParts.h"
#include "xml/XmlValue.h"

using vantrel::PersistPart;
using namespace vantrel;

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

void CTransitionObject::Save(_xmlNode* node)
{
    m_content.Save(node, [&] {
        if (m_hasBase || m_duration != m_loadedDuration)
            PersistPart<CXMLBaseObjectImpl>(*this, node, true);
    });
}

void CTransitionObject::Load(_xmlNode* node)
{
    PersistPart<CXMLBaseObjectImpl>(*this, node, false);
    m_hasBase = vantrel::FindChildElement(node, "baseObject") != nullptr;
    m_content.Load(node, { "key", "type" }, { "baseObject" });
}
