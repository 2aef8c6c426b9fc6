#pragma once

#include <Vantrel.h>

#include <nlohmann/json.hpp>

#include <string>

/// What the tool tells of a project: one JSON object, gathered by the sections. The page for people
/// is made from it too, so that the two can't disagree.
namespace tool {

using Json = nlohmann::ordered_json;

/// `{"number": 4, "name": "DVD_47"}` from the text `4 (DVD_47)`. A number without a name has "".
Json EnumFact(const std::string& formatted);

/// `{"number": 5, "names": ["Main", "MainTemplate"]}` from 5 and the text `5 (Main|MainTemplate)`,
/// which has no more than 32 bits of the number.
Json FlagsFact(unsigned long number, const std::string& formatted);

/// The number as a file would have it: six significant digits. Null for what is no number.
Json NumberFact(double value);

/// The same as text, and that of a `NumberFact`.
std::string NumberText(double value);
std::string NumberText(const Json& fact);

/// `[x, y]`
Json PointFact(float x, float y);

/// `{"left": -1.2, "top": 0.8, "right": 1.2, "bottom": -0.9}`
Json RectFact(const FloatRect& rect);

/// "(-1.2, 0.8)" of a `PointFact`, and "(-1.2, 0.8) to (1.2, -0.9)" of a `RectFact`.
std::string PointText(const Json& point);
std::string RectText(const Json& rect);

/// `"#F5EFE6"` from a colour with red in the lowest byte; the highest follows unless it is 0.
std::string ColourFact(unsigned long colour);

/// What a `get_` answers: `Ask<std::string>(title, &CDSTitle::get_Label)`. The default when it gives
/// nothing.
template <class T, class Node, class Getter>
T Ask(Node& node, Getter getter)
{
    T value{};
    (void)(node.*getter)(&value);
    return value;
}

/// The same for an enumeration.
template <class T, class Node, class Getter>
Json AskEnum(Node& node, Getter getter)
{
    return EnumFact(FormatEnum(Ask<T>(node, getter)));
}

/// The same for a bit set; `format` is the library's function for its kind.
template <class Node, class Getter>
Json AskFlags(Node& node, Getter getter, std::string (*format)(unsigned long))
{
    const auto number = Ask<unsigned long>(node, getter);
    return FlagsFact(number, format(number));
}

/// The name in an `EnumFact`, or its number where it has none.
std::string NameOf(const Json& fact);

/// The names in a `FlagsFact` with commas between them, or the number where bits have no name.
std::string NamesOf(const Json& fact);

/// The object as one line. Text that is no UTF-8 is mended.
std::string Line(const Json& facts);

} // namespace tool
