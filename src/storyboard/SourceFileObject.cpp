#include "storyboard/SourceFileObject.h"

#include "storyboard/PersistParts.h"

using namespace vantrel;

Status CSourceFileObject::PersistXML(_xmlNode* node, bool save)
{
    if (!node)
        return status::kBadArgument;
    vantrel::PersistPart<CXMLSourceFileImpl>(*this, node, save);
    return status::kOk;
}
