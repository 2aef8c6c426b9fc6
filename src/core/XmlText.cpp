#include "core/XmlText.h"

#include <cstdint>
#include <string_view>

namespace vantrel {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD"; // U+FFFD

/// The length of the character at the front of `text`, or 0 when it can't stand in an XML file.
std::size_t CharacterLength(std::string_view text)
{
    const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
    const std::uint32_t first = byte(0);
    if (first < 0x80)
        return first >= 0x20 || first == '\t' || first == '\n' || first == '\r' ? 1 : 0;

    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || text.size() < length)
        return 0;
    std::uint32_t character = first & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80)
            return 0;
        character = character << 6 | (byte(i) & 0x3F);
    }
    const bool overlong =
        (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    const bool noCharacter = character == 0xFFFE || character == 0xFFFF;
    return overlong || surrogate || noCharacter || character > 0x10FFFF ? 0 : length;
}

/// How many bytes at the front of `text` are fit.
std::size_t FitPrefix(std::string_view text)
{
    std::size_t fit = 0;
    while (fit < text.size()) {
        const std::size_t length = CharacterLength(text.substr(fit));
        if (length == 0)
            break;
        fit += length;
    }
    return fit;
}

} // namespace

const char* XmlText(const std::string& text, std::string& store)
{
    std::size_t fit = FitPrefix(text);
    if (fit == text.size())
        return text.c_str();

    std::string_view rest = text;
    store.clear();
    while (true) {
        store.append(rest.substr(0, fit));
        rest.remove_prefix(fit);
        if (rest.empty())
            return store.c_str();
        store.append(kReplacement);
        rest.remove_prefix(1);
        fit = FitPrefix(rest);
    }
}

} // namespace vantrel
