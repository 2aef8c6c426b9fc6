#include "storyboard/AudioObject.h"

#include "storyboard/PersistParts.h"

using namespace vantrel;

Status CAudioObject::PersistXML(_xmlNode* node, bool save)
{
    if (!node)
        return status::kBadArgument;
    vantrel::PersistPart<CXMLAudioInfoImpl>(*this, node, save);
    vantrel::PersistPart<CXMLSubObjectImpl>(*this, node, save);
    vantrel::PersistPart<CXMLSourceFileImpl>(*this, node, save);
    return status::kOk;
}
