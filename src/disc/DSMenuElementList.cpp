#include "disc/DSMenuElementList.h"

#include "project/NodeForm.h"

using namespace vantrel;

struct VANTREL_INTERNAL CDSMenuElementList::Form
{
    static constexpr auto rows = Rows<CDSMenuElementList>();
    static constexpr bool addsToMap = true;
};

CDSMenuElementList::CDSMenuElementList()
    : FormedNode(eNodeElements, kFormOf<CDSMenuElementList, Form>)
{}

CDSMenuElementList::~CDSMenuElementList() = default;
