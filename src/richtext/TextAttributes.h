#pragma once

#include "core/Export.h"
#include "core/Status.h"

#include <string>

/// @file
/// The summary of a rich text: one font, size, colour, alignment and style for the whole of it.

/// @name Bits of a style
/// Two groups of three states each, for the whole text; exactly one bit of a group is set.
/// @{
inline constexpr unsigned long TEXT_STYLE_NOT_ITALIC = 0x1;   ///< no run is italic
inline constexpr unsigned long TEXT_STYLE_ITALIC = 0x2;       ///< all runs are
inline constexpr unsigned long TEXT_STYLE_ITALIC_MIXED = 0x4; ///< some are
inline constexpr unsigned long TEXT_STYLE_NOT_BOLD = 0x100;   ///< no run is bold
inline constexpr unsigned long TEXT_STYLE_BOLD = 0x200;       ///< all runs are
inline constexpr unsigned long TEXT_STYLE_BOLD_MIXED = 0x400; ///< some are
/// @}

/// @name Alignment of the paragraphs
/// @{
inline constexpr unsigned long TEXT_JUSTIFY_MIXED = 0; ///< the paragraphs differ
inline constexpr unsigned long TEXT_JUSTIFY_LEFT = 1;
inline constexpr unsigned long TEXT_JUSTIFY_CENTER = 2;
inline constexpr unsigned long TEXT_JUSTIFY_RIGHT = 4;
inline constexpr unsigned long TEXT_JUSTIFY_UNKNOWN =
    ~0UL; ///< a word that none of these stands for
/// @}

/// @name Elements of a rich text
/// Only bold, italic, paragraph and font say anything about the attributes.
/// @{
inline constexpr const char* WS_NODE_NAME_HR = "hr";
inline constexpr const char* WS_NODE_NAME_BREAK = "br";
inline constexpr const char* WS_NODE_NAME_BOLD = "b";
inline constexpr const char* WS_NODE_NAME_ITAL = "i";
inline constexpr const char* WS_NODE_NAME_PARA = "p";
inline constexpr const char* WS_NODE_NAME_BODY = "body";
inline constexpr const char* WS_NODE_NAME_FONT = "font";
inline constexpr const char* WS_NODE_NAME_TABLE = "table";
/// @}

/// What a rich text is like as a whole. Where its runs differ, a string says "undetermined".
///
/// Reading fills the strings with the words of the file; `Reconcile` then makes the numbers.
class VANTREL_API TextAttributes
{
public:
    TextAttributes() = default;

    /// Sets every field to the value that it starts with.
    void Init();

    /// Sets what the text engine takes for a text that says nothing: 24 high, white, Arial, left,
    /// neither bold nor italic. The text is emptied; the other fields stay.
    void SetTextEngineDefaults();

    /// Turns the strings into numbers, and fills what the text left open from the defaults of the
    /// text engine. A size or colour on which the runs differ becomes 0. Always gives 0.
    vantrel::Status Reconcile();

    /// Gives the alignment as `TEXT_JUSTIFY_...`. Without an alignment the status is
    /// `status::kNothingDone` and the number `TEXT_JUSTIFY_UNKNOWN`.
    vantrel::Status GetJustification(unsigned long* out) const;

    unsigned long m_style = TEXT_STYLE_NOT_BOLD | TEXT_STYLE_NOT_ITALIC;
    int m_fontHeight = -1;
    std::string m_fontHeightString; ///< "fontHeight" as the text has it
    bool m_isBold = false;          ///< "isBold" of the first run; says nothing of the style
    bool m_isItalic = false;        ///< "isItalic" of the first run
    bool m_isUnderlined = false;    ///< "isUnderlined" of the first run
    unsigned long m_textColor = 0;  ///< 0xAABBGGRR: red in the lowest byte
    std::string m_textColorString;  ///< "color" as the text has it
    bool m_hasTextColor = false;    ///< `m_textColor` holds for the whole text
    std::string m_face;             ///< "face"
    std::string m_align;            ///< "align"
    std::string m_text;             ///< the words: all runs, joined
};

/// Reads a colour: one of sixteen names ("Red", in exactly this case, whatever follows), "#" with
/// up to eight hexadecimal digits for red, green, blue and alpha, or two digits behind each of the
/// letters R, G, B and T (alpha), in any order. A name sets alpha to 0. What the text doesn't name
/// stays as it is. No pointer may be null.
VANTREL_API void ParseColorString(const char* text, unsigned char* r, unsigned char* g,
                                  unsigned char* b, unsigned char* a);

namespace vantrel {

/// Stands in the place of a value on which the runs of a text differ.
inline constexpr const char* kUndetermined = "undetermined";

} // namespace vantrel
