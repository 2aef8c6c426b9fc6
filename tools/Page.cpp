#include "Page.h"

#include <algorithm>
#include <cstdint>

namespace tool {

namespace {

constexpr std::size_t kIndent = 2;
constexpr std::size_t kIDWidth = 6;
constexpr std::size_t kNameWidth = 12;

/// A character at the front of a text: its length in bytes, 1 for a byte that is no UTF-8.
struct Character
{
    std::size_t length = 1;
    std::uint32_t code = 0;
    bool valid = false;

    explicit Character(std::string_view text)
    {
        const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
        const std::uint32_t first = byte(0);
        const std::size_t wanted = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
        constexpr std::uint32_t kLowest[] = { 0, 0, 0x80, 0x800, 0x10000 };
        code = wanted == 1 ? first : first & (0x7Fu >> wanted);
        if ((first >= 0x80 && first < 0xC0) || first > 0xF4 || text.size() < wanted)
            return;
        for (std::size_t i = 1; i < wanted; ++i) {
            if ((byte(i) & 0xC0) != 0x80)
                return;
            code = code << 6 | (byte(i) & 0x3F);
        }
        valid = code >= kLowest[wanted] && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
        if (valid)
            length = wanted;
    }

    bool IsPrintable() const
    {
        const bool control = code < 0x20 || (code >= 0x7F && code < 0xA0);
        const bool separator = code == 0x2028 || code == 0x2029;
        const bool direction = code == 0x200E || code == 0x200F || code == 0x61C ||
                               (code >= 0x202A && code <= 0x202E) ||
                               (code >= 0x2066 && code <= 0x2069);
        return valid && !control && !separator && !direction;
    }
};

/// How many characters a printable text has.
std::size_t Width(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<std::uint8_t>(c) & 0xC0) != 0x80;
    }));
}

void AppendPadded(std::string& out, std::string_view text, std::size_t width)
{
    out += text;
    out.append(width - std::min(width, Width(text)), ' ');
}

} // namespace

std::string Printable(std::string_view text)
{
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string out;
    while (!text.empty()) {
        const Character character(text);
        const std::string_view bytes = text.substr(0, character.length);
        if (character.IsPrintable()) {
            out += bytes;
        } else {
            for (const char c : bytes) {
                const auto byte = static_cast<std::uint8_t>(c);
                out += { '\\', 'x', kDigits[byte >> 4], kDigits[byte & 15] };
            }
        }
        text.remove_prefix(bytes.size());
    }
    return out;
}

void Page::Heading(std::string_view text)
{
    if (!m_text.empty())
        m_text += '\n';
    m_text += Printable(text) + '\n';
}

void Page::Field(std::string_view name, std::string_view value)
{
    Named(kIndent, name, value);
}

void Page::Entry(std::string_view id, std::string_view text)
{
    m_text.append(kIndent, ' ');
    AppendPadded(m_text, Printable(id), kIDWidth);
    m_text += Printable(text) + '\n';
}

void Page::Detail(std::string_view name, std::string_view value)
{
    Nested(0, name, value);
}

void Page::Nested(std::size_t depth, std::string_view name, std::string_view value)
{
    Named(kIndent + kIDWidth + depth * kIndent, name, value);
}

void Page::Named(std::size_t indent, std::string_view name, std::string_view value)
{
    if (value.empty())
        return;
    m_text.append(indent, ' ');
    AppendPadded(m_text, name, kNameWidth);
    m_text += Printable(value) + '\n';
}

void Page::Table(const std::vector<std::vector<std::string>>& rows)
{
    std::vector<std::size_t> widths;
    for (const auto& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], Width(Printable(row[i])));
    }
    for (const auto& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            line.append(kIndent, ' ');
            AppendPadded(line, Printable(row[i]), widths[i]);
        }
        line.erase(line.find_last_not_of(' ') + 1);
        m_text += line + '\n';
    }
}

std::string Numbered(std::string_view noun, const std::string& number)
{
    return std::string(noun) + ' ' + number;
}

std::string Count(std::size_t count, std::string_view noun)
{
    return std::to_string(count) + ' ' + std::string(noun) + (count == 1 ? "" : "s");
}

std::string List(const std::vector<std::string>& texts)
{
    std::string list;
    for (const std::string& text : texts) {
        if (!text.empty())
            list += (list.empty() ? "" : ", ") + text;
    }
    return list;
}

} // namespace tool
