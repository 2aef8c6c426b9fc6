#include "Facts.h"

#include <charconv>
#include <cmath>
#include <iterator>
#include <string_view>

namespace tool {

namespace {

/// What stands in the parentheses of a text such as `4 (DVD_47)`.
std::string_view NamesIn(std::string_view formatted)
{
    const auto open = formatted.find('(');
    const auto close = formatted.rfind(')');
    if (open == formatted.npos || close == formatted.npos || close < open)
        return {};
    return formatted.substr(open + 1, close - open - 1);
}

} // namespace

Json EnumFact(const std::string& formatted)
{
    return { { "number", GetPropValue(formatted.c_str()) }, { "name", NamesIn(formatted) } };
}

Json FlagsFact(unsigned long number, const std::string& formatted)
{
    Json names = Json::array();
    for (std::string_view rest = NamesIn(formatted); !rest.empty();) {
        const auto bar = rest.find('|');
        names.push_back(rest.substr(0, bar));
        rest.remove_prefix(bar == rest.npos ? rest.size() : bar + 1);
    }
    return { { "number", number }, { "names", std::move(names) } };
}

std::string NumberText(double value)
{
    constexpr int kDigits = 6;
    char text[32];
    const auto end =
        std::to_chars(text, std::end(text), value, std::chars_format::general, kDigits);
    return { text, end.ptr };
}

std::string NumberText(const Json& fact)
{
    return fact.is_null() ? "unknown" : NumberText(double(fact));
}

Json NumberFact(double value)
{
    if (!std::isfinite(value))
        return nullptr;
    const std::string text = NumberText(value);
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

Json PointFact(float x, float y)
{
    return { NumberFact(x), NumberFact(y) };
}

Json RectFact(const FloatRect& rect)
{
    return { { "left", NumberFact(rect.left) },
             { "top", NumberFact(rect.top) },
             { "right", NumberFact(rect.right) },
             { "bottom", NumberFact(rect.bottom) } };
}

std::string PointText(const Json& point)
{
    return '(' + NumberText(point[0]) + ", " + NumberText(point[1]) + ')';
}

std::string RectText(const Json& rect)
{
    return PointText({ rect["left"], rect["top"] }) + " to " +
           PointText({ rect["right"], rect["bottom"] });
}

std::string ColourFact(unsigned long colour)
{
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string text = "#";
    for (int byte = 0; byte < 3 || (byte == 3 && colour != 0); ++byte, colour >>= 8)
        text += { kDigits[colour >> 4 & 15], kDigits[colour & 15] };
    return text;
}

std::string NameOf(const Json& fact)
{
    const std::string name = fact["name"];
    return name.empty() ? fact["number"].dump() : name;
}

std::string NamesOf(const Json& fact)
{
    std::string text;
    for (const std::string name : fact["names"])
        text += (text.empty() ? "" : ", ") + name;
    return text.empty() && fact["number"] != 0 ? fact["number"].dump() : text;
}

std::string Line(const Json& facts)
{
    return facts.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
}

} // namespace tool
