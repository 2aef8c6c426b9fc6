#include "xml/TypedValue.h"

#include "core/Number.h"

#include <cmath>
#include <cstddef>
#include <limits>

using std::string;
using std::string_view;

namespace vantrel::typed {

namespace {

constexpr const char* kLowerDigits = "0123456789abcdef";
constexpr const char* kUpperDigits = "0123456789ABCDEF";

/// 0 to 15, or -1.
int HexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

bool IsSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// Adds the lowest `count` digits of `value`.
void AppendHex(string& text, const char* digits, unsigned long value, int count)
{
    for (int shift = 4 * (count - 1); shift >= 0; shift -= 4)
        text += digits[value >> shift & 0xF];
}

/// Calls `take` with each byte of the text; false, perhaps after some, when it is none.
template <class Take>
bool ForEachByte(string_view text, Take take)
{
    int high = -1;
    for (const char c : text) {
        const int digit = HexDigit(c);
        if (digit < 0 && !IsSpace(c))
            return false;
        if (digit < 0)
            continue;
        if (high >= 0)
            take(static_cast<char>(high << 4 | digit));
        high = high < 0 ? digit : -1;
    }
    return high < 0;
}

/// Cuts `count` digits off the front of `text`; false when they aren't there.
bool TakeHex(string_view& text, std::size_t count, unsigned long& value)
{
    if (text.size() < count)
        return false;
    value = 0;
    for (const char c : text.substr(0, count)) {
        const int digit = HexDigit(c);
        if (digit < 0)
            return false;
        value = value << 4 | static_cast<unsigned long>(digit);
    }
    text.remove_prefix(count);
    return true;
}

bool TakeDash(string_view& text)
{
    const bool found = text.starts_with('-');
    text.remove_prefix(found ? 1 : 0);
    return found;
}

} // namespace

float NarrowToFloat(double value)
{
    constexpr double highest = std::numeric_limits<float>::max();
    if (std::fabs(value) > highest)
        return std::copysign(std::numeric_limits<float>::infinity(), value < 0 ? -1.0F : 1.0F);
    return static_cast<float>(value);
}

void Long::Append(string& text, long value)
{
    AppendNumber(text, value);
}

Status Long::Read(string_view text, long& value)
{
    value = static_cast<long>(ParseULong(text));
    return status::kOk;
}

void ULong::Append(string& text, unsigned long value)
{
    AppendNumber(text, value);
}

Status ULong::Read(string_view text, unsigned long& value)
{
    value = ParseULong(text);
    return status::kOk;
}

void Double::Append(string& text, double value)
{
    AppendNumber(text, value);
}

Status Double::Read(string_view text, double& value)
{
    value = ParseDouble(text);
    return status::kOk;
}

void Float::Append(string& text, float value)
{
    AppendNumber(text, static_cast<double>(value));
}

Status Float::Read(string_view text, float& value)
{
    value = NarrowToFloat(ParseDouble(text));
    return status::kOk;
}

void Bool::Append(string& text, bool value)
{
    text += value ? '1' : '0';
}

Status Bool::Read(string_view text, bool& value)
{
    value = text == "1";
    return status::kOk;
}

void String::Append(string& text, const string& value)
{
    text += value;
}

Status String::Read(string_view text, string& value)
{
    value = text;
    return status::kOk;
}

void Int2::Append(string& text, short value)
{
    AppendNumber(text, static_cast<long>(value));
}

Status Int2::Read(string_view text, short& value)
{
    value = static_cast<short>(ParseLong(text));
    return status::kOk;
}

void UInt2::Append(string& text, unsigned short value)
{
    AppendNumber(text, static_cast<unsigned long>(value));
}

Status UInt2::Read(string_view text, unsigned short& value)
{
    value = static_cast<unsigned short>(ParseLong(text));
    return status::kOk;
}

void ColorRef::Append(string& text, unsigned long value)
{
    int digits = 6;
    while (digits < 16 && value >> (4 * digits) != 0)
        ++digits;
    text += '#';
    AppendHex(text, kLowerDigits, value, digits);
}

Status ColorRef::Read(string_view text, unsigned long& value)
{
    if (text.starts_with('#'))
        (void)ParseHex(text.substr(1), &value); // no digits leave the value
    return status::kOk;
}

void Uuid::Append(string& text, const _GUID& value)
{
    text += '{';
    AppendHex(text, kUpperDigits, value.Data1, 8);
    text += '-';
    AppendHex(text, kUpperDigits, value.Data2, 4);
    text += '-';
    AppendHex(text, kUpperDigits, value.Data3, 4);
    text += '-';
    for (std::size_t i = 0; i < sizeof value.Data4; ++i) {
        if (i == 2)
            text += '-';
        AppendHex(text, kUpperDigits, value.Data4[i], 2);
    }
    text += '}';
}

Status Uuid::Read(string_view text, _GUID& value)
{
    if (text.starts_with('{') && text.ends_with('}'))
        text = text.substr(1, text.size() - 2);
    unsigned long parts[5];
    const bool wellFormed =
        TakeHex(text, 8, parts[0]) && TakeDash(text) && TakeHex(text, 4, parts[1]) &&
        TakeDash(text) && TakeHex(text, 4, parts[2]) && TakeDash(text) &&
        TakeHex(text, 4, parts[3]) && TakeDash(text) && TakeHex(text, 12, parts[4]) && text.empty();
    if (!wellFormed)
        return status::kBadArgument;

    value.Data1 = static_cast<std::uint32_t>(parts[0]);
    value.Data2 = static_cast<std::uint16_t>(parts[1]);
    value.Data3 = static_cast<std::uint16_t>(parts[2]);
    const unsigned long last = parts[3] << 48 | parts[4];
    for (int i = 0; i < 8; ++i)
        value.Data4[i] = static_cast<std::uint8_t>(last >> (8 * (7 - i)));
    return status::kOk;
}

void AppendBlob(string& text, const char* data, unsigned long size)
{
    text.reserve(text.size() + 2 * size);
    for (unsigned long i = 0; i < size; ++i)
        AppendHex(text, kLowerDigits, static_cast<unsigned char>(data[i]), 2);
}

Status ReadBlob(string_view text, char* data, unsigned long& size)
{
    if (!ForEachByte(text, [](char) {}) || (!data && size > 0))
        return status::kBadArgument;
    unsigned long count = 0;
    ForEachByte(text, [&](char byte) {
        if (count < size)
            data[count++] = byte;
    });
    size = count;
    return status::kOk;
}

} // namespace vantrel::typed
