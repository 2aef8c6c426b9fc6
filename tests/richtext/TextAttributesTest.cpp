#include "richtext/TextAttributes.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

using std::string;
using namespace vantrel;

namespace {

TEST(ColourText, SetsTheChannelsThatItNames)
{
    struct Case
    {
        const char* text;
        unsigned long colour; // 0xAABBGGRR, of channels that hold 0x77 before
    };
    // clang-format off
    constexpr Case cases[] = {
        { "Blue", 0x00FF0000 },
        { "Redish", 0x000000FF },  // what follows a name doesn't matter
        { "red", 0x77777777 },     // its case does
        { "#0000FF", 0x77FF0000 },
        { "#0000ff80", 0x80FF0000 },
        { "#12G4", 0x77777712 },   // ends at the first that is no digit
        { "#5", 0x77777705 },
        { "R10G20", 0x77772010 },
        { "T80B01", 0x80017777 },
        { "RxG20", 0x77772077 },
        { "", 0x77777777 },
    };
    // clang-format on
    for (const Case& row : cases) {
        unsigned char rgba[] = { 0x77, 0x77, 0x77, 0x77 };
        ParseColorString(row.text, &rgba[0], &rgba[1], &rgba[2], &rgba[3]);
        EXPECT_EQ(rgba[0] | rgba[1] << 8 | rgba[2] << 16 |
                      static_cast<unsigned long>(rgba[3]) << 24,
                  row.colour)
            << row.text;
    }
}

TEST(TextAttributes, ReconcileFillsWhatTheTextLeavesOpen)
{
    using Words = std::tuple<const char*, const char*, const char*, const char*>;
    using Numbers = std::tuple<int, unsigned long, bool, string, unsigned long>;
    struct Case
    {
        Words words; ///< height, colour, face, alignment
        Numbers numbers;
    };
    constexpr const char* mixed = "undetermined";
    // clang-format off
    const Case cases[] = {
        { { "", "", "", "" }, { 24, 0xFFFFFF, true, "Arial", 1 } },
        { { mixed, mixed, mixed, mixed }, { 0, 0, false, mixed, 0 } },
        { { " 36pt", "#010203", "M", "right" }, { 36, 0x030201, true, "M", 4 } },
        { { "stringRef:S.1", "Lime", "F", "center" }, { -1, 0x00FF00, true, "F", 2 } },
        { { "99999999999", "x", "F", "centre" }, { 2147483647, 0, true, "F", ~0UL } },
    };
    // clang-format on
    for (const auto& [words, numbers] : cases) {
        TextAttributes text;
        std::tie(text.m_fontHeightString, text.m_textColorString, text.m_face, text.m_align) =
            words;
        EXPECT_EQ(text.Reconcile(), status::kOk);
        unsigned long justification = 99;
        (void)text.GetJustification(&justification); // the number tells
        EXPECT_EQ(Numbers(text.m_fontHeight, text.m_textColor, text.m_hasTextColor, text.m_face,
                          justification),
                  numbers);
    }
}

} // namespace
