#include "project/AttributeSlots.h"

#include "core/Report.h"
#include "xml/XmlValue.h"

#include <algorithm>

namespace vantrel {

namespace {

/// Finds names in ascending order fast: what is asked for next mostly stands next.
class NameFinder
{
public:
    explicit NameFinder(std::span<const AttributeName> names) : m_names(names) {}

    const AttributeName* Find(std::string_view name)
    {
        if (m_next < m_names.size() && m_names[m_next].name == name)
            return &m_names[m_next++];
        const auto found = std::lower_bound(
            m_names.begin(), m_names.end(), name,
            [](const AttributeName& row, std::string_view wanted) { return row.name < wanted; });
        if (found == m_names.end() || found->name != name)
            return nullptr;
        m_next = static_cast<std::size_t>(found - m_names.begin()) + 1;
        return &*found;
    }

private:
    std::span<const AttributeName> m_names;
    std::size_t m_next = 0;
};

} // namespace

void AttributeSlots::Fill(std::span<const AttributeName> names,
                          const std::map<std::string, std::string>& attributes)
{
    NameFinder finder(names);
    for (const auto& [name, text] : attributes) {
        if (const AttributeName* found = finder.Find(name)) {
            m_texts[found->row] = text;
            m_has.set(found->row);
        }
    }
}

void AttributeSlots::Fill(std::span<const AttributeName> names, const xmlNode* element)
{
    NameFinder finder(names);
    for (const xmlAttr* attribute = element->properties; attribute; attribute = attribute->next) {
        const AttributeName* found =
            attribute->ns ? nullptr : finder.Find(Chars(attribute->name)); // others' have a prefix
        if (found)
            Put(found->row, attribute);
    }
}

void AttributeSlots::Put(std::size_t row, const xmlAttr* attribute)
{
    std::string store;
    std::string_view text = ResolvedText(attribute->children, store);
    if (!store.empty())
        text = m_resolved.emplace_front(std::move(store));
    m_texts[row] = text;
    m_has.set(row);
}

Status AddReportedAttribute(xmlNode* element, const char* name, const std::string& value)
{
    const Status added = AddAttribute(element, name, value);
    if (Failed(added))
        Report("Failed on attribute: ", name, "\n");
    return added;
}

} // namespace vantrel
