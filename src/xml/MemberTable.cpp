#include "xml/MemberTable.h"

using std::string_view;

namespace vantrel {

xmlNode* AddMember(const MemberPlace& place, const char* name, const char* type,
                   const std::string& text)
{
    return place.elementNames ? AddTypedElement(place.node, name, {}, type, text)
                              : AddTypedElement(place.node, "member", name, type, text);
}

void FindMembers(const MemberPlace& place, std::span<const char* const> names,
                 std::span<xmlNode*> found)
{
    std::string store;
    std::size_t expected = 0; // files have the order of the rows, so the first guess mostly hits
    for (xmlNode* child : ChildElements(place.node)) {
        if (!place.elementNames && NameOf(child) != "member")
            continue;
        const string_view name =
            place.elementNames ? NameOf(child) : AttributeText(child, "Name", store);
        for (std::size_t tried = 0; tried < names.size(); ++tried) {
            const std::size_t row = (expected + tried) % names.size();
            if (name != names[row])
                continue;
            if (!found[row])
                found[row] = child;
            expected = row + 1;
            break;
        }
    }
}

} // namespace vantrel
