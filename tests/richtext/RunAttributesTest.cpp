#include "richtext/RunAttributes.h"

#include "support/RichText.h"
#include "support/XmlFixture.h"

#include <gtest/gtest.h>

#include <string>

using std::string;

namespace {

struct SummaryCase
{
    const char* name;
    const char* body;    ///< inside "body"
    const char* summary; ///< as `Summary` tells it
};

class RichTextSummary : public testing::TestWithParam<SummaryCase>
{};

TEST_P(RichTextSummary, TellsWhatTheRunsShare)
{
    const XmlText xml{ "<!DOCTYPE body [<!ENTITY face 'Mo&#110;o'>]><body>" +
                       string(GetParam().body) + "</body>" };
    EXPECT_EQ(Summary(xml.root()), GetParam().summary);
}

INSTANTIATE_TEST_SUITE_P(
    Bodies, RichTextSummary,
    testing::Values(
        SummaryCase{ "Empty", "", "'' style 101" },
        SummaryCase{ "Plain", "words", "'words' style 101" },
        SummaryCase{ "IndentationIsNoRun", "\n  <b>a</b>\n  <b> b</b>\n", "'a b' style 201" },
        SummaryCase{ "CommentsAndSectionsAreNoRuns", "<b>a<!--x--><![CDATA[y]]><?z z?></b>",
                     "'a' style 201" },
        SummaryCase{ "BoldAndItalicDiffer", "<b>one</b><i>two</i>", "'onetwo' style 404" },
        SummaryCase{ "BoldInItalic", "<b><i>a</i></b><i><u><b>b</b></u></i>", "'ab' style 202" },
        SummaryCase{ "MixedStaysMixed", "a<b>b</b>c", "'abc' style 401" },
        SummaryCase{ "FacesDiffer", "<font face='A'>a</font><font face='B'>b</font>",
                     "'ab' style 101 face undetermined" },
        SummaryCase{ "InnerFaceOuterFlag",
                     "<font face='A' isBold='1' isItalic='0'><font face='B' isBold='0' "
                     "isItalic='1' isUnderlined='1'>a</font></font>",
                     "'a' style 101 face B flags bu" },
        SummaryCase{ "EmptyAttributesSayNothing",
                     "<font face='A' color='Red'><font face='' color=''>a</font></font>",
                     "'a' style 101 colour Red face A" },
        SummaryCase{ "FirstRunSilentTakesTheSecond", "a<font fontHeight='9'>b</font>",
                     "'ab' style 101 height 9" },
        SummaryCase{ "SecondRunSilentDiffers", "<font fontHeight='9'>b</font>a",
                     "'ba' style 101 height undetermined" },
        SummaryCase{ "FlagsOfTheFirstRun",
                     "<font isUnderlined='1'>a</font><font isBold='1'>b</font>",
                     "'ab' style 101 flags u" },
        SummaryCase{ "AlignOfTheInnerParagraph",
                     "<p align='left'><p align='right'>a</p></p><p align='right'>b</p>",
                     "'ab' style 101 align right" },
        SummaryCase{ "AttributesOfOtherElementsSayNothing",
                     "<p face='A'><font align='left'><b face='B'>a</b></font></p>",
                     "'a' style 201" },
        SummaryCase{ "BodyInBodyBeginsAnew", "<b><font face='A'><body><i>a</i></body></font></b>",
                     "'a' style 102" },
        SummaryCase{ "EntityInAnAttribute", "<font face='A&face;'>a</font>",
                     "'a' style 101 face AMono" },
        SummaryCase{ "EntityInTheTextIsNoRun", "<i>&face;</i>b", "'b' style 101" }),
    [](const auto& row) { return row.param.name; });

TEST(RichTextSummary, NeedsABody)
{
    TextAttributes attributes;
    EXPECT_EQ(vantrel::SummariseRuns(nullptr, &attributes), status::kNullPointer);
}

} // namespace
