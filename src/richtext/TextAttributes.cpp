#include "richtext/TextAttributes.h"

#include "core/Number.h"

#include <algorithm>
#include <limits>
#include <string_view>

using std::string_view;
using namespace vantrel;

namespace {

struct NamedColour
{
    string_view name;
    const char* value;
};

constexpr NamedColour kColours[] = {
    { "Black", "#000000" },  { "Silver", "#C0C0C0" },  { "Gray", "#808080" },
    { "White", "#FFFFFF" },  { "Maroon", "#800000" },  { "Red", "#FF0000" },
    { "Purple", "#800080" }, { "Fuchsia", "#FF00FF" }, { "Green", "#008000" },
    { "Lime", "#00FF00" },   { "Olive", "#808000" },   { "Yellow", "#FFFF00" },
    { "Navy", "#000080" },   { "Blue", "#0000FF" },    { "Teal", "#008080" },
    { "Aqua", "#00FFFF" },
};

constexpr string_view kSpace = " \t\n\v\f\r";

/// Cuts white space and up to two hexadecimal digits off the front of `text`. Without a digit there
/// is no more to read: false, and `channel` stays.
bool TakeHexByte(string_view& text, unsigned char* channel)
{
    text.remove_prefix(std::min(text.find_first_not_of(kSpace), text.size()));
    const string_view digits =
        text.substr(0, std::min<std::size_t>(2, text.find_first_not_of("0123456789abcdefABCDEF")));
    unsigned long value = 0;
    if (!ParseHex(digits, &value))
        return false;
    *channel = static_cast<unsigned char>(value);
    text.remove_prefix(digits.size());
    return true;
}

void TakeHexBytes(string_view text, std::initializer_list<unsigned char*> channels)
{
    for (unsigned char* channel : channels) {
        if (!TakeHexByte(text, channel))
            return;
    }
}

/// Reads the two digits behind the first `letter`.
void TakeLettered(string_view text, char letter, unsigned char* channel)
{
    const std::size_t found = text.find(letter);
    if (found == string_view::npos)
        return;
    text.remove_prefix(found + 1);
    (void)TakeHexByte(text, channel); // a letter without digits leaves its channel
}

/// The size that a text begins with; one without a number leaves `height`.
void ReadHeight(string_view text, int* height)
{
    constexpr long lowest = std::numeric_limits<int>::min();
    constexpr long highest = std::numeric_limits<int>::max();
    string_view digits = text.substr(std::min(text.find_first_not_of(kSpace), text.size()));
    if (!digits.empty() && (digits.front() == '-' || digits.front() == '+'))
        digits.remove_prefix(1);
    if (!digits.empty() && digits.front() >= '0' && digits.front() <= '9')
        *height = static_cast<int>(std::clamp(ParseLong(text), lowest, highest));
}

unsigned long ColourNumber(const std::string& text)
{
    unsigned char r = 0;
    unsigned char g = 0;
    unsigned char b = 0;
    unsigned char a = 0;
    ParseColorString(text.c_str(), &r, &g, &b, &a);
    return r | static_cast<unsigned long>(g) << 8 | static_cast<unsigned long>(b) << 16 |
           static_cast<unsigned long>(a) << 24;
}

} // namespace

void TextAttributes::Init()
{
    *this = TextAttributes();
}

void TextAttributes::SetTextEngineDefaults()
{
    m_style = TEXT_STYLE_NOT_BOLD | TEXT_STYLE_NOT_ITALIC;
    m_fontHeight = 24;
    m_textColor = 0xFFFFFF;
    m_hasTextColor = true;
    m_face = "Arial";
    m_align = "left";
    m_text.clear();
}

Status TextAttributes::Reconcile()
{
    TextAttributes defaults;
    defaults.SetTextEngineDefaults();

    if (m_align.empty())
        m_align = defaults.m_align;
    if (m_style == ~0UL)
        m_style = defaults.m_style;
    if (m_fontHeightString.empty())
        m_fontHeight = defaults.m_fontHeight;
    else if (m_fontHeightString == kUndetermined)
        m_fontHeight = 0;
    else
        ReadHeight(m_fontHeightString, &m_fontHeight);

    if (m_textColorString == kUndetermined) {
        m_textColor = 0;
    } else {
        m_hasTextColor = true;
        m_textColor =
            m_textColorString.empty() ? defaults.m_textColor : ColourNumber(m_textColorString);
    }
    if (m_face.empty())
        m_face = defaults.m_face;
    return status::kOk;
}

Status TextAttributes::GetJustification(unsigned long* out) const
{
    if (!out)
        return status::kNullPointer;
    *out = TEXT_JUSTIFY_UNKNOWN;
    if (m_align.empty())
        return status::kNothingDone;
    if (m_align == kUndetermined)
        *out = TEXT_JUSTIFY_MIXED;
    else if (m_align == "left")
        *out = TEXT_JUSTIFY_LEFT;
    else if (m_align == "center")
        *out = TEXT_JUSTIFY_CENTER;
    else if (m_align == "right")
        *out = TEXT_JUSTIFY_RIGHT;
    return status::kOk;
}

void ParseColorString(const char* text, unsigned char* r, unsigned char* g, unsigned char* b,
                      unsigned char* a)
{
    const string_view colour = text ? text : "";
    for (const NamedColour& named : kColours) {
        if (colour.starts_with(named.name)) {
            TakeHexBytes(string_view(named.value).substr(1), { r, g, b });
            *a = 0;
            return;
        }
    }
    if (colour.starts_with('#')) {
        TakeHexBytes(colour.substr(1), { r, g, b, a });
        return;
    }
    TakeLettered(colour, 'R', r);
    TakeLettered(colour, 'G', g);
    TakeLettered(colour, 'B', b);
    TakeLettered(colour, 'T', a);
}
