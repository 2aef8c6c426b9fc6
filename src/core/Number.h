#pragma once

#include <string>
#include <string_view>

/// The one pair of conversions between numbers and their text in a file, the same in every locale.
///
/// Texts are those of a default output stream in the classic locale: integers in decimal, floats in
/// general notation with six significant digits. Readers take what the C library's functions take
/// there: leading white space, a sign, then as much as fits; what follows is ignored, and a text
/// that is no number gives 0.
namespace vantrel {

/// Appends the decimal text of `value` to `out`.
void AppendNumber(std::string& out, long value);
void AppendNumber(std::string& out, unsigned long value);
/// Appends `value` with six significant digits.
void AppendNumber(std::string& out, double value);

/// The same as a string of its own.
template <class T>
std::string NumberText(T value)
{
    std::string text;
    AppendNumber(text, value);
    return text;
}

/// Reads as `atol`: out of range stops at the type's limit.
long ParseLong(std::string_view text);

/// Reads an unsigned decimal. A negative number keeps its two's complement, so that a value above
/// the signed range survives whichever way it was written.
unsigned long ParseULong(std::string_view text);

/// Reads as `atof`, hexadecimal, infinite and NaN forms included.
double ParseDouble(std::string_view text);

/// Reads hexadecimal digits as `sscanf` does with "%lX": white space, a sign and "0x" may stand in
/// front. False, with `value` untouched, when there is no digit.
bool ParseHex(std::string_view text, unsigned long* value);

} // namespace vantrel
