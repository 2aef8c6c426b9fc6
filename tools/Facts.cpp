#include "Facts.h"

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
