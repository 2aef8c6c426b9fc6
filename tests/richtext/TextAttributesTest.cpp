#include "richtext/TextAttributes.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

using std::string;

namespace {

struct ColourCase
{
    const char* name;
    const char* text;
    unsigned long colour; // 0xAABBGGRR
};

constexpr unsigned char kStart = 0x77; // what every channel holds before

unsigned long ParsedColour(const char* text)
{
    unsigned char channels[] = { kStart, kStart, kStart, kStart };
    ParseColorString(text, &channels[0], &channels[1], &channels[2], &channels[3]);
    return channels[0] | channels[1] << 8 | channels[2] << 16 |
           static_cast<unsigned long>(channels[3]) << 24;
}

class ColourText : public testing::TestWithParam<ColourCase>
{};

TEST_P(ColourText, SetsTheChannelsThatItNames)
{
    EXPECT_EQ(ParsedColour(GetParam().text), GetParam().colour);
}

INSTANTIATE_TEST_SUITE_P(Forms, ColourText,
                         testing::Values(ColourCase{ "Name", "Blue", 0x00FF0000 },
                                         ColourCase{ "NameWithMoreBehind", "Redish", 0x000000FF },
                                         ColourCase{ "LowerCaseIsNoName", "red", 0x77777777 },
                                         ColourCase{ "SixDigitsLeaveAlpha", "#0000FF", 0x77FF0000 },
                                         ColourCase{ "EightDigits", "#0000ff80", 0x80FF0000 },
                                         ColourCase{ "DigitsStopAtTheFirstOther", "#12G4",
                                                     0x77777712 },
                                         ColourCase{ "OneDigit", "#5", 0x77777705 },
                                         ColourCase{ "Letters", "R10G20", 0x77772010 },
                                         ColourCase{ "LettersInAnyOrder", "T80B01", 0x80017777 },
                                         ColourCase{ "LetterWithoutDigits", "RxG20", 0x77772077 },
                                         ColourCase{ "Empty", "", 0x77777777 }),
                         [](const auto& row) { return row.param.name; });

struct ReconcileCase
{
    const char* name;
    const char* height;
    const char* colour;
    const char* face;
    const char* align;
    std::tuple<int, unsigned long, bool, string, unsigned long> result;
};

class Reconcile : public testing::TestWithParam<ReconcileCase>
{};

TEST_P(Reconcile, FillsWhatTheTextLeavesOpen)
{
    TextAttributes attributes;
    attributes.m_fontHeightString = GetParam().height;
    attributes.m_textColorString = GetParam().colour;
    attributes.m_face = GetParam().face;
    attributes.m_align = GetParam().align;
    EXPECT_EQ(attributes.Reconcile(), status::kOk);
    unsigned long justification = 99;
    EXPECT_EQ(attributes.GetJustification(&justification), status::kOk);
    EXPECT_EQ(std::tuple(attributes.m_fontHeight, attributes.m_textColor, attributes.m_hasTextColor,
                         attributes.m_face, justification),
              GetParam().result);
}

constexpr const char* kMixed = "undetermined";

INSTANTIATE_TEST_SUITE_P(
    Texts, Reconcile,
    testing::Values(
        ReconcileCase{ "Silent", "", "", "", "", { 24, 0xFFFFFF, true, "Arial", 1 } },
        ReconcileCase{ "Mixed", kMixed, kMixed, kMixed, kMixed, { 0, 0, false, kMixed, 0 } },
        ReconcileCase{
            "Said", " 36pt", "#010203", "Mono", "right", { 36, 0x030201, true, "Mono", 4 } },
        ReconcileCase{ "NoNumberLeavesTheHeight",
                       "stringRef:Sizes.Big",
                       "Lime",
                       "F",
                       "center",
                       { -1, 0x00FF00, true, "F", 2 } },
        ReconcileCase{ "HugeNumber",
                       "99999999999",
                       "",
                       "F",
                       "centre",
                       { 2147483647, 0xFFFFFF, true, "F", ~0UL } }),
    [](const auto& row) { return row.param.name; });

TEST(TextAttributes, EngineDefaultsLeaveTheFlags)
{
    TextAttributes attributes;
    attributes.m_isBold = true;
    attributes.m_style = ~0UL;
    attributes.m_text = "words";
    attributes.m_fontHeightString = "12";
    attributes.SetTextEngineDefaults();
    EXPECT_EQ(std::tuple(attributes.m_isBold, attributes.m_style, attributes.m_text,
                         attributes.m_fontHeightString, attributes.m_fontHeight),
              std::tuple(true, 0x101UL, "", "12", 24));

    attributes.Init();
    unsigned long justification = 0;
    EXPECT_EQ(attributes.GetJustification(&justification), status::kNothingDone);
    EXPECT_EQ(justification, TEXT_JUSTIFY_UNKNOWN);
    EXPECT_EQ(attributes.GetJustification(nullptr), status::kNullPointer);
}

} // namespace
