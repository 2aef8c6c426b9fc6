#include "storyboard/SourceFileObject.h"

#include "storyboard/PersistParts.h"

Status CSourceFileObject::PersistXML(_xmlNode* node, bool save)
{
    if (!node)
        return status::kBadArgument;
    vantrel::PersistPart<CXMLSourceFileImpl>(*this, node, save);
    return status::kOk;
}
