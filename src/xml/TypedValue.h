#pragma once

#include "core/Status.h"
#include "core/Types.h"

#include <string>
#include <string_view>

/// How each kind of scalar looks as the text of a typed element.
///
/// A kind has the word that stands in "dt:dt", `Append`, which adds the text of a value to a
/// string, and `Read`, which understands it. Text that is no number reads as 0 and trailing junk is
/// ignored; only `Uuid` refuses text, with `status::kBadArgument` and the value untouched.
namespace vantrel::typed {

/// Narrows as a conversion of the C library's `atof` does, without the undefined cases.
float NarrowToFloat(double value);

struct Long
{
    using Value = long;
    static constexpr const char* kType = "i4";
    static void Append(std::string& text, long value);
    /// A text above the signed range keeps its bits: it is a negative number that was written as an
    /// unsigned one.
    static Status Read(std::string_view text, long& value);
};

struct ULong
{
    using Value = unsigned long;
    static constexpr const char* kType = "ui4";
    static void Append(std::string& text, unsigned long value);
    static Status Read(std::string_view text, unsigned long& value);
};

/// Six significant digits.
struct Double
{
    using Value = double;
    static constexpr const char* kType = "r8";
    static void Append(std::string& text, double value);
    static Status Read(std::string_view text, double& value);
};

/// Six significant digits.
struct Float
{
    using Value = float;
    static constexpr const char* kType = "r4";
    static void Append(std::string& text, float value);
    static Status Read(std::string_view text, float& value);
};

/// True is exactly the text "1".
struct Bool
{
    using Value = bool;
    static constexpr const char* kType = "boolean";
    static void Append(std::string& text, bool value);
    static Status Read(std::string_view text, bool& value);
};

struct String
{
    using Value = std::string;
    static constexpr const char* kType = "string";
    static void Append(std::string& text, const std::string& value);
    static Status Read(std::string_view text, std::string& value);
};

struct Int2
{
    using Value = short;
    static constexpr const char* kType = "i2";
    static void Append(std::string& text, short value);
    static Status Read(std::string_view text, short& value);
};

struct UInt2
{
    using Value = unsigned short;
    static constexpr const char* kType = "ui2";
    static void Append(std::string& text, unsigned short value);
    static Status Read(std::string_view text, unsigned short& value);
};

/// A packed colour with red in the lowest byte: "#" and at least six hexadecimal digits. A text
/// that doesn't begin with "#" and digits leaves the value alone, with `status::kOk`.
struct ColorRef
{
    using Value = unsigned long;
    static constexpr const char* kType = "string";
    static void Append(std::string& text, unsigned long value);
    static Status Read(std::string_view text, unsigned long& value);
};

/// "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}" in upper case; read in either case, with or without
/// the braces.
struct Uuid
{
    using Value = _GUID;
    static constexpr const char* kType = "uuid";
    static void Append(std::string& text, const _GUID& value);
    static Status Read(std::string_view text, _GUID& value);
};

inline constexpr const char* kBlobType = "bin.hex";

/// Adds two lower-case hexadecimal digits a byte.
void AppendBlob(std::string& text, const char* data, unsigned long size);

/// Reads bytes of two hexadecimal digits, in either case, with white space anywhere between digits.
/// At most `size` bytes go to `data`, and their number to `size`. Anything else in the text, or an
/// odd number of digits, gives `status::kBadArgument` and touches neither.
Status ReadBlob(std::string_view text, char* data, unsigned long& size);

} // namespace vantrel::typed
