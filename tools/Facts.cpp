#include "Facts.h"

#include <charconv>
#include <string_view>

namespace tool {

namespace {

/// A text such as `4 (DVD_47)` in its two pieces.
struct Formatted
{
    long number = 0;
    std::string_view names;

    explicit Formatted(std::string_view text)
    {
        std::from_chars(text.data(), text.data() + text.size(), number);
        const auto open = text.find('(');
        const auto close = text.rfind(')');
        if (open != text.npos && close != text.npos && close > open)
            names = text.substr(open + 1, close - open - 1);
    }
};

} // namespace

Json EnumFact(const std::string& formatted)
{
    const Formatted value(formatted);
    return { { "number", value.number }, { "name", value.names } };
}

Json FlagsFact(const std::string& formatted)
{
    const Formatted value(formatted);
    Json names = Json::array();
    for (std::string_view rest = value.names; !rest.empty();) {
        const auto bar = rest.find('|');
        names.push_back(rest.substr(0, bar));
        rest.remove_prefix(bar == rest.npos ? rest.size() : bar + 1);
    }
    return { { "number", value.number }, { "names", std::move(names) } };
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
