#include "project/DSList.h"

#include "project/NodeForm.h"

using namespace vantrel;

// The attribute of a list.
struct VANTREL_INTERNAL CDSList::Form
{
    static constexpr auto rows = Rows<CDSList>(
        AttributeRow<CDSList>{ "NumItems",
                               [](const CDSList& list, std::string& text) {
                                   AppendNumber(text, static_cast<long>(list.GetNumChildren()));
                               },
                               nullptr });
};

CDSList::CDSList(eNodeType type) : FormedNode(type, kFormOf<CDSList, Form>)
{}
