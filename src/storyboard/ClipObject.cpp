#include "storyboard/ClipObject.h"

#include "storyboard/AudioObject.h"
#include "storyboard/PersistParts.h"

using vantrel::PersistPart;
using namespace vantrel;

CClipObject::CClipObject()
{
    Connect();
}

CClipObject::CClipObject(vantrel::ForReading tag) : CBaseObjectImpl(tag)
{
    Connect();
}

void CClipObject::Connect()
{
    m_whole = this;
    m_clipType = eClipFileSource;
    SetTiming(&m_inPoint, &m_outPoint);
}

Status CClipObject::PersistXML(_xmlNode* node, bool save)
{
    if (!node)
        return status::kBadArgument;
    PersistPart<CXMLBaseObjectImpl>(*this, node, save);
    PersistPart<CXMLSourceFileImpl>(*this, node, save);
    PersistPart<CXMLParentObjectImpl>(*this, node, save);
    PersistPart<CXMLNativeInfoImpl>(*this, node, save);
    (void)(save ? SaveMarkersXML(node) : LoadMarkersXML(node)); // 1 for an empty list
    return status::kOk;
}

void CClipObject::SetSBD(CQZBaseSBD* sbd)
{
    CBaseObjectImpl::SetSBD(sbd);
    CParentObjectImpl::SetSBD(sbd);
    CNativeInfoImpl::SetSBD(sbd);
}

Status CClipObject::put_ParentProduction(CQZBaseSBD* sbd)
{
    CParentObjectImpl::SetSBD(sbd);
    CNativeInfoImpl::SetSBD(sbd);
    return CProductionLink::put_ParentProduction(sbd);
}
