#pragma once

#include "core/Export.h"
#include "project/DiscEnums.h"

#include <string>

/// The text form of enumerations and bit sets in a file: the number, a blank, and the name or the
/// names in parentheses, as in `2 (16x9)` or `5 (Main|MainTemplate)`. People read the names; a
/// program reads the number alone. None of these operations reports an error.

/// Prints `value`, and `text` in the second form, by a `printf` format. What goes beyond 49 bytes is
/// cut. A conversion without a length takes the low 32 bits.
VANTREL_API std::string FormatString(const char* format, long value);
VANTREL_API std::string FormatString(const char* format, long value, const char* text);

/// The form of an enumeration whose number is an index into `names`; "unknown" outside.
VANTREL_API std::string FormatEnum(long value, const char* const* names, int count);

VANTREL_API std::string FormatEnum(DiscFormat value);
VANTREL_API std::string FormatEnum(DiscSizeEnum value);
VANTREL_API std::string FormatEnum(DiscVideoType value);
VANTREL_API std::string FormatEnum(TVStandard value);
VANTREL_API std::string FormatEnum(VideoResolution value);
VANTREL_API std::string FormatEnum(AspectRatio value);
VANTREL_API std::string FormatEnum(AudioFormat value);
VANTREL_API std::string FormatEnum(VideoFormat value);
VANTREL_API std::string FormatEnum(SubpictureFormat value);
VANTREL_API std::string FormatEnum(WideDisplayMode value);
VANTREL_API std::string FormatEnum(OverlayHighlight value);
VANTREL_API std::string FormatEnum(TextHighlight value);
VANTREL_API std::string FormatEnum(SourceTypes value);
VANTREL_API std::string FormatEnum(_TextHandles value);

/// The form of a bit set. `names` holds the names from bit 0 up and ends with a null pointer. The
/// number is that of the low 32 bits; a bit without a name shows in the number alone.
VANTREL_API std::string FormatFlags(unsigned long value, const char* const* names);

VANTREL_API std::string FormatMenuFlag(unsigned long value);
VANTREL_API std::string FormatTargetType(unsigned long value);
VANTREL_API std::string FormatMenuTag(unsigned long value);
VANTREL_API std::string FormatTitleTag(unsigned long value);
VANTREL_API std::string FormatButtonTag(unsigned long value);
VANTREL_API std::string FormatOverlayTag(unsigned long value);
VANTREL_API std::string FormatTextTag(unsigned long value);
VANTREL_API std::string FormatTextJustify(unsigned long value);
VANTREL_API std::string FormatProjectOptions(unsigned long value);

/// The number of either form. A text without a leading number, or null, gives 0.
VANTREL_API long GetPropValue(const char* text);

/// The value of a text of the form "0x" and hexadecimal digits; -1 for any other.
VANTREL_API long ReadHex(std::string text);
