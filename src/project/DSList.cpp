#include "project/DSList.h"

#include "core/Number.h"

using std::map;
using std::string;
using namespace vantrel;

CDSList::CDSList(eNodeType type) : CProjectNode(type)
{}

Status CDSList::FillAttributeMap(map<string, string>& attributes, bool)
{
    attributes.clear();
    attributes["NumItems"] = vantrel::NumberText(static_cast<long>(GetNumChildren()));
    return status::kOk;
}

Status CDSList::ParseAttributeMap(const map<string, string>&)
{
    return status::kOk;
}
