#pragma once

#include "core/Status.h"

#include <libxml/tree.h>

#include <array>
#include <bitset>
#include <cstdint>
#include <forward_list>
#include <map>
#include <span>
#include <string>
#include <string_view>

namespace vantrel {

/// The name of a row, and the row's place in reading order.
struct AttributeName
{
    std::string_view name;
    std::uint8_t row = 0;
};

/// The texts that a map or an element has for the rows of one table, by row.
class AttributeSlots
{
public:
    static constexpr std::size_t kMost = 48; ///< rows that a table may have

    /// Sorts the source's attributes to the rows; `names` is in ascending order of the names.
    void Fill(std::span<const AttributeName> names,
              const std::map<std::string, std::string>& attributes);
    /// The same from an element. An attribute with a prefix never hides one without.
    void Fill(std::span<const AttributeName> names, const xmlNode* element);

    bool Has(std::size_t row) const { return m_has[row]; }
    /// Good as long as the source and this object.
    std::string_view Text(std::size_t row) const { return m_texts[row]; }

private:
    void Put(std::size_t row, const xmlAttr* attribute);

    std::array<std::string_view, kMost> m_texts;
    std::bitset<kMost> m_has;
    std::forward_list<std::string> m_resolved; ///< texts that had to be put together
};

/// `AddAttribute`, with a failure printed to standard output.
Status AddReportedAttribute(xmlNode* element, const char* name, const std::string& value);

} // namespace vantrel
