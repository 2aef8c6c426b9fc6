#include "storyboard/MotionObject.h"

#include "storyboard/AudioObject.h"
#include "storyboard/PersistParts.h"
#include "storyboard/SourceFileObject.h"

using vantrel::PersistPart;
using namespace vantrel;

CMotionObject::CMotionObject()
{
    m_isMotion = true;
    m_whole = this;
}

Status CMotionObject::PersistXML(_xmlNode* node, bool save)
{
    if (!node)
        return status::kBadArgument;
    PersistPart<CXMLSourceFileImpl>(*this, node, save);
    PersistPart<CXMLSubObjectImpl>(*this, node, save);
    PersistPart<CXMLEffectInfoImpl>(*this, node, save);
    PersistPart<CXMLParentObjectImpl>(*this, node, save);
    PersistPart<CXMLNativeInfoImpl>(*this, node, save);
    return status::kOk;
}

Status CMotionObject::put_ParentProduction(CQZBaseSBD* sbd)
{
    CParentObjectImpl::SetSBD(sbd);
    CNativeInfoImpl::SetSBD(sbd);
    return CProductionLink::put_ParentProduction(sbd);
}
