#include "core/Number.h"

#include <charconv>
#include <clocale>
#include <cstdlib>
#include <limits>
#include <locale.h>

namespace vantrel {

namespace {

constexpr bool IsSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// Cuts white space and one sign off the front of `text`; true for a minus.
bool TakeSign(std::string_view& text)
{
    while (!text.empty() && IsSpace(text.front()))
        text.remove_prefix(1);
    const bool negative = !text.empty() && text.front() == '-';
    if (negative || (!text.empty() && text.front() == '+'))
        text.remove_prefix(1);
    return negative;
}

/// The digits at the front of `text`, stopping at the type's limit; false without a digit.
bool ReadDigits(std::string_view text, int base, unsigned long* value)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), *value, base);
    if (error == std::errc::result_out_of_range)
        *value = std::numeric_limits<unsigned long>::max();
    return error != std::errc::invalid_argument;
}

bool StartsWithHexPrefix(std::string_view text)
{
    return text.size() >= 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
}

/// The C library's own reading, for the rare forms that `std::from_chars` leaves out.
double ReadRareDouble(std::string_view text)
{
    static const locale_t classic = newlocale(LC_ALL_MASK, "C", nullptr);
    return strtod_l(std::string(text).c_str(), nullptr, classic);
}

template <class T, class... Form>
void Append(std::string& out, T value, Form... form)
{
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, value, form...).ptr;
    out.append(text, end);
}

} // namespace

void AppendNumber(std::string& out, long value)
{
    Append(out, value);
}

void AppendNumber(std::string& out, unsigned long value)
{
    Append(out, value);
}

void AppendNumber(std::string& out, double value)
{
    Append(out, value, std::chars_format::general, 6);
}

long ParseLong(std::string_view text)
{
    constexpr auto highest = static_cast<unsigned long>(std::numeric_limits<long>::max());
    const bool negative = TakeSign(text);
    unsigned long size = 0;
    ReadDigits(text, 10, &size);
    if (negative)
        return size > highest ? std::numeric_limits<long>::min() : -static_cast<long>(size);
    return static_cast<long>(std::min(size, highest));
}

unsigned long ParseULong(std::string_view text)
{
    std::string_view digits = text;
    if (TakeSign(digits))
        return static_cast<unsigned long>(ParseLong(text));
    unsigned long value = 0;
    ReadDigits(digits, 10, &value);
    return value;
}

double ParseDouble(std::string_view text)
{
    std::string_view digits = text;
    const bool negative = TakeSign(digits);
    if (digits.empty() || digits.front() == '-') // from_chars would take a second sign
        return 0.0;
    double value = 0.0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error == std::errc::result_out_of_range || StartsWithHexPrefix(digits))
        return ReadRareDouble(text);
    if (error == std::errc::invalid_argument)
        return 0.0; // no number has no sign either
    return negative ? -value : value;
}

bool ParseHex(std::string_view text, unsigned long* value)
{
    const bool negative = TakeSign(text);
    unsigned long size = 0;
    if (StartsWithHexPrefix(text))
        text.remove_prefix(2); // "0x" and nothing else reads as its 0
    else if (text.empty())
        return false;
    else if (!ReadDigits(text, 16, &size))
        return false;
    if (size == 0)
        ReadDigits(text, 16, &size);
    *value = negative && size != std::numeric_limits<unsigned long>::max() ? 0 - size : size;
    return true;
}

} // namespace vantrel
