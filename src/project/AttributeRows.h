#pragma once

#include "core/MemberPointer.h"
#include "core/Number.h"
#include "project/AttributeTable.h"
#include "project/FormatUtils.h"

#include <string>
#include <string_view>
#include <type_traits>

namespace vantrel {

/// Makers of rows, one a form of value. `Field` is a pointer to a member of the node, or of a base
/// of it, and then the node's class is named.
namespace attribute {

/// The decimal number in the width that its text is read and written with.
template <class T>
T FromDecimal(std::string_view text)
{
    if constexpr (std::is_same_v<T, unsigned long>)
        return ParseULong(text);
    else
        return static_cast<T>(ParseLong(text)); // cut to the field's width
}

template <class T>
void AppendDecimal(std::string& text, T value)
{
    if constexpr (std::is_same_v<T, unsigned long>)
        AppendNumber(text, value);
    else
        AppendNumber(text, static_cast<long>(value));
}

/// "ID": reading it raises the counter of IDs.
template <class Node>
constexpr AttributeRow<Node> NodeID(const char* name)
{
    return { name, [](const Node& node, std::string& text) { AppendNumber(text, node.GetID()); },
             [](Node& node, std::string_view text) { node.SetID(ParseLong(text)); } };
}

/// A value that is always the same and never read.
template <class Node, unsigned long Value>
constexpr AttributeRow<Node> Constant(const char* name)
{
    return { name, [](const Node&, std::string& text) { AppendNumber(text, Value); }, nullptr };
}

/// Decimal text of an integer.
template <auto Field, class Node = ClassOf<Field>>
constexpr AttributeRow<Node> Decimal(const char* name)
{
    return { name, [](const Node& node, std::string& text) { AppendDecimal(text, node.*Field); },
             [](Node& node, std::string_view text) {
                 node.*Field = FromDecimal<ValueOf<Field>>(text);
             } };
}

/// Decimal text of an integer inside a structure of the node.
template <auto Field, auto Member, class Node = ClassOf<Field>>
constexpr AttributeRow<Node> DecimalIn(const char* name)
{
    return { name,
             [](const Node& node, std::string& text) { AppendDecimal(text, node.*Field.*Member); },
             [](Node& node, std::string_view text) {
                 node.*Field.*Member = FromDecimal<ValueOf<Member>>(text);
             } };
}

/// Floating-point text with six significant digits.
template <auto Field, class Node = ClassOf<Field>>
constexpr AttributeRow<Node> Real(const char* name)
{
    return { name,
             [](const Node& node, std::string& text) {
                 AppendNumber(text, static_cast<double>(node.*Field));
             },
             [](Node& node, std::string_view text) {
                 node.*Field = static_cast<ValueOf<Field>>(ParseDouble(text));
             } };
}

/// The same inside a structure of the node.
template <auto Field, auto Member, class Node = ClassOf<Field>>
constexpr AttributeRow<Node> RealIn(const char* name)
{
    return { name,
             [](const Node& node, std::string& text) {
                 AppendNumber(text, static_cast<double>(node.*Field.*Member));
             },
             [](Node& node, std::string_view text) {
                 node.*Field.*Member = static_cast<ValueOf<Member>>(ParseDouble(text));
             } };
}

/// "1" or "0"; any text but "0" is true.
template <auto Field, class Node = ClassOf<Field>>
constexpr AttributeRow<Node> Bool(const char* name)
{
    return { name, [](const Node& node, std::string& text) { text += node.*Field ? '1' : '0'; },
             [](Node& node, std::string_view text) { node.*Field = text != "0"; } };
}

/// The string itself.
template <auto Field, class Node = ClassOf<Field>>
constexpr AttributeRow<Node> Text(const char* name)
{
    return { name, [](const Node& node, std::string& text) { text += node.*Field; },
             [](Node& node, std::string_view text) { node.*Field = text; } };
}

/// A number with its name in parentheses; the number alone is read.
template <auto Field, class Node = ClassOf<Field>>
constexpr AttributeRow<Node> Enum(const char* name)
{
    return { name, [](const Node& node, std::string& text) { text += FormatEnum(node.*Field); },
             [](Node& node, std::string_view text) {
                 node.*Field = static_cast<ValueOf<Field>>(ParseLong(text));
             } };
}

/// A bit set with the names of its bits in parentheses; the number alone is read.
template <auto Field, std::string (*Format)(unsigned long), class Node = ClassOf<Field>>
constexpr AttributeRow<Node> Flags(const char* name)
{
    return { name, [](const Node& node, std::string& text) { text += Format(node.*Field); },
             [](Node& node, std::string_view text) {
                 node.*Field = static_cast<ValueOf<Field>>(ParseLong(text));
             } };
}

} // namespace attribute

} // namespace vantrel
