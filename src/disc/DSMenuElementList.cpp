#include "disc/DSMenuElementList.h"

using std::map;
using std::string;
using namespace vantrel;

CDSMenuElementList::CDSMenuElementList() : CProjectNode(eNodeElements)
{}

CDSMenuElementList::~CDSMenuElementList() = default;

Status CDSMenuElementList::FillAttributeMap(map<string, string>&, bool)
{
    return status::kOk;
}

Status CDSMenuElementList::ParseAttributeMap(const map<string, string>&)
{
    return status::kOk;
}
