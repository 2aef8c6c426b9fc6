#include "richtext/EditFormat.h"

#include <algorithm>

using std::map;
using std::string;
using std::string_view;

namespace vantrel {

namespace {

bool IsNameCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

std::size_t NameLength(string_view text)
{
    return static_cast<std::size_t>(std::ranges::find_if_not(text, IsNameCharacter) - text.begin());
}

/// The length of "name=" at the front of `text`, or 0 when no attribute begins there.
std::size_t AttributeStart(string_view text)
{
    const std::size_t name = NameLength(text);
    return name > 0 && text.substr(name).starts_with('=') ? name + 1 : 0;
}

/// The length of the value at the front of `text`: up to a comma with a further attribute behind
/// it, or all.
std::size_t ValueLength(string_view text)
{
    std::size_t comma = text.find(',');
    while (comma != string_view::npos && AttributeStart(text.substr(comma + 1)) == 0)
        comma = text.find(',', comma + 1);
    return std::min(comma, text.size());
}

void ParseAttributes(string_view text, map<string, string>& attributes)
{
    while (const std::size_t start = AttributeStart(text)) {
        const string_view name = text.substr(0, start - 1);
        text.remove_prefix(start);
        const std::size_t length = ValueLength(text);
        attributes[string(name)] = text.substr(0, length);
        text.remove_prefix(std::min(length + 1, text.size())); // the comma goes with the value
    }
}

/// Takes "<tag attributes></tag>" apart; anything else leaves `format` without a tag.
void ParseElement(string_view text, EditFormat& format)
{
    if (!text.starts_with('<'))
        return;
    text.remove_prefix(1);
    const string tag{ text.substr(0, NameLength(text)) };
    const string end = "></" + tag + ">";
    text.remove_prefix(tag.size());
    if (tag.empty() || !text.ends_with(end))
        return;
    text.remove_suffix(end.size());
    format.tag = tag;
    if (text.starts_with(' '))
        ParseAttributes(text.substr(1), format.attributes);
}

} // namespace

EditFormat ParseEditFormat(string_view format)
{
    EditFormat parsed;
    if (format.size() < 2 || format[1] != ':')
        return parsed;
    parsed.operation = format.front();
    parsed.text = format.substr(2);
    if (parsed.operation != "r")
        ParseElement(parsed.text, parsed);
    return parsed;
}

string FormatElement(string_view tag, string_view name, string_view value)
{
    string format = "f:<";
    format.append(tag).append(" ").append(name).append("=").append(value);
    format.append("></").append(tag).append(">");
    return format;
}

} // namespace vantrel
