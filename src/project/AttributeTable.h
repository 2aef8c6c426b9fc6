#pragma once

#include "core/Status.h"
#include "project/AttributeSlots.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

/// A node's file form is one table, a row an attribute, in reading order. Writer and reader run the
/// same rows, so they can't drift apart. What is irregular stands in the row.
namespace vantrel {

template <class Node>
struct AttributeRow
{
    using Writer = void (*)(const Node& node, std::string& text); ///< appends the text
    using Reader = void (*)(Node& node, std::string_view text);
    using Condition = bool (*)(const Node& node);
    using Report = void (*)(std::size_t row);

    const char* name;
    Writer write; ///< null: never written
    Reader read;  ///< null: never read
    Condition condition = nullptr;
    const char* absent = nullptr; ///< read in place of a missing attribute
    Report missing = nullptr;     ///< ends the reading at a missing or empty attribute
    const char* asked = nullptr;  ///< written in place of the value for the native form

    constexpr AttributeRow ReadOnly() const
    {
        AttributeRow row = *this;
        row.write = nullptr;
        return row;
    }
    constexpr AttributeRow WriteOnly() const
    {
        AttributeRow row = *this;
        row.read = nullptr;
        return row;
    }
    /// Read only when the condition holds; written when it holds or the native form is asked for.
    /// While reading, a condition sees what the rows above it have read.
    constexpr AttributeRow If(Condition holds) const
    {
        AttributeRow row = *this;
        row.condition = holds;
        return row;
    }
    constexpr AttributeRow WhenAbsent(const char* text) const
    {
        AttributeRow row = *this;
        row.absent = text;
        return row;
    }
    /// Written as `text` when the native form is asked for.
    constexpr AttributeRow WhenNativeAsked(const char* text) const
    {
        AttributeRow row = *this;
        row.asked = text;
        return row;
    }
    /// A missing or empty attribute is reported, and neither it nor any row behind it is read.
    constexpr AttributeRow Required(Report report) const
    {
        AttributeRow row = *this;
        row.missing = report;
        return row;
    }
};

/// The rows of a table in reading order, and their order by name, which is the order in a file.
template <class Node, std::size_t Count>
struct AttributeRows
{
    static_assert(Count <= AttributeSlots::kMost);

    std::array<AttributeRow<Node>, Count> rows;
    std::array<AttributeName, Count> byName;
};

/// Rows that several tables have in common.
template <class Node, std::size_t Count>
using RowGroup = std::array<AttributeRow<Node>, Count>;

template <class Node>
constexpr RowGroup<Node, 1> AsGroup(const AttributeRow<Node>& row)
{
    return { row };
}
template <class Node, std::size_t Count>
constexpr RowGroup<Node, Count> AsGroup(const RowGroup<Node, Count>& group)
{
    return group;
}

/// One group of these rows and groups.
template <class Node, class... Part>
constexpr auto Group(const Part&... part)
{
    RowGroup<Node, (0 + ... + AsGroup(Part{}).size())> rows{};
    auto* next = rows.data();
    [[maybe_unused]] const auto put = [&next](const auto& group) {
        next = std::copy(group.begin(), group.end(), next);
    };
    (put(AsGroup(part)), ...);
    return rows;
}

/// The table of these rows and groups of rows.
template <class Node, class... Part>
consteval auto Rows(Part... part)
{
    const auto rows = Group<Node>(part...);
    AttributeRows<Node, rows.size()> table{ rows, {} };
    for (std::size_t i = 0; i < table.rows.size(); ++i)
        table.byName[i] = { table.rows[i].name, static_cast<std::uint8_t>(i) };
    std::sort(table.byName.begin(), table.byName.end(),
              [](const auto& a, const auto& b) { return a.name < b.name; });
    return table;
}

/// A view of a class's rows that runs them.
template <class Node>
class AttributeTable
{
public:
    using Finish = void (*)(Node& node);

    template <std::size_t Count>
    constexpr AttributeTable(const AttributeRows<Node, Count>& table, Finish finish = nullptr)
        : m_rows(table.rows.data()),
          m_names(table.byName.data()),
          m_count(Count),
          m_finish(finish)
    {}

    /// Adds the attributes to a map.
    void Write(const Node& node, bool native, std::map<std::string, std::string>& attributes) const
    {
        for (const AttributeName& name : Names()) {
            const AttributeRow<Node>& row = m_rows[name.row];
            if (!IsWritten(row, node, native))
                continue;
            std::string& text = attributes[row.name];
            WriteText(row, node, native, text);
        }
    }

    /// Puts the attributes on an element that has none of them yet.
    vantrel::Status Write(const Node& node, bool native, xmlNode* element) const
    {
        std::string text;
        for (const AttributeName& name : Names()) {
            const AttributeRow<Node>& row = m_rows[name.row];
            if (!IsWritten(row, node, native))
                continue;
            WriteText(row, node, native, text);
            const vantrel::Status added = AddReportedAttribute(element, row.name, text);
            if (vantrel::Failed(added))
                return added;
        }
        return vantrel::status::kOk;
    }

    /// Takes over what `source`, a map or an element, has of the attributes.
    template <class Source>
    void Read(Node& node, const Source& source) const
    {
        AttributeSlots slots;
        slots.Fill(Names(), source);
        for (std::size_t i = 0; i < m_count; ++i) {
            const AttributeRow<Node>& row = m_rows[i];
            if (!row.read || (row.condition && !row.condition(node)))
                continue;
            const char* absent = row.absent;
            if (row.missing && (!slots.Has(i) || slots.Text(i).empty())) {
                row.missing(i);
                break;
            }
            if (slots.Has(i))
                row.read(node, slots.Text(i));
            else if (absent)
                row.read(node, absent);
        }
        if (m_finish)
            m_finish(node);
    }

private:
    std::span<const AttributeName> Names() const { return { m_names, m_count }; }

    static bool IsWritten(const AttributeRow<Node>& row, const Node& node, bool native)
    {
        return row.write && (native || !row.condition || row.condition(node));
    }

    static void WriteText(const AttributeRow<Node>& row, const Node& node, bool native,
                          std::string& text)
    {
        text.clear();
        if (native && row.asked)
            text = row.asked;
        else
            row.write(node, text);
    }

    const AttributeRow<Node>* m_rows;
    const AttributeName* m_names;
    std::size_t m_count;
    Finish m_finish; ///< runs when all rows have been read; may be null
};

} // namespace vantrel
