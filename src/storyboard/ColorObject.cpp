#include "storyboard/ColorObject.h"

#include "storyboard/PersistParts.h"
#include "xml/MemberTable.h"

using namespace vantrel;

namespace {

constexpr double kStart = 0.0; // a colour plays from its beginning

// The elements of a colour panel that stand beside those of its parts.
constexpr MemberRow<CColorObject> kColor[] = {
    member::ULong<&CColorObject::m_color>("color"),
    member::Bool<&CColorObject::m_isGap>("isGap"),
};

} // namespace

CColorObject::CColorObject()
{
    Connect();
}

CColorObject::CColorObject(ForReading tag) : CBaseObjectImpl(tag)
{
    Connect();
}

void CColorObject::Connect()
{
    m_whole = this;
    SetTiming(&kStart, &m_duration);
}

Status CColorObject::PersistXML(_xmlNode* node, bool save)
{
    if (!node)
        return status::kBadArgument;
    if (save)
        SaveRows({ node }, kColor, *this);
    else
        LoadRows({ node }, kColor, *this);
    PersistPart<CXMLBaseObjectImpl>(*this, node, save);
    PersistPart<CXMLParentObjectImpl>(*this, node, save);
    (void)(save ? SaveMarkersXML(node) : LoadMarkersXML(node)); // 1 for an empty list
    return status::kOk;
}

void CColorObject::SetSBD(CQZBaseSBD* sbd)
{
    CBaseObjectImpl::SetSBD(sbd);
    CParentObjectImpl::SetSBD(sbd);
}

Status CColorObject::put_ParentProduction(CQZBaseSBD* sbd)
{
    CParentObjectImpl::SetSBD(sbd);
    return CProductionLink::put_ParentProduction(sbd);
}
