#include "storyboard/EffectObject.h"

#include "storyboard/PersistParts.h"
#include "storyboard/SourceFileObject.h"

using namespace vantrel;

Status CEffectObject::put_ID(long id)
{
    (void)CSubObjectImpl::put_ID(id); // neither can fail
    return PutEffectID(id);
}

Status CEffectObject::PersistXML(_xmlNode* node, bool save)
{
    if (!node)
        return status::kBadArgument;
    vantrel::PersistPart<CXMLSubObjectImpl>(*this, node, save);
    vantrel::PersistPart<CXMLEffectInfoImpl>(*this, node, save);
    return status::kOk;
}
