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

// clang-format off
constexpr SummaryCase kSummaries[] = {
    { "Empty", "", "'' style 101" },
    { "Plain", "words", "'words' style 101" },
    { "IndentationIsNoRun", "\n  <b>a</b>\n  <b> b</b>\n", "'a b' style 201" },
    { "CommentsAndSectionsAreNoRuns", "<b>a<!--x--><![CDATA[y]]><?z z?></b>", "'a' style 201" },
    { "BoldAndItalicDiffer", "<b>one</b><i>two</i>", "'onetwo' style 404" },
    { "BoldInItalic", "<b><i>a</i></b><i><u><b>b</b></u></i>", "'ab' style 202" },
    { "MixedStaysMixed", "a<b>b</b>c", "'abc' style 401" },
    { "FacesDiffer", "<font face='A'>a</font><font face='B'>b</font>",
      "'ab' style 101 face undetermined" },
    { "InnerFaceOuterFlag",
      "<font face='A' isBold='1' isItalic='0'>"
      "<font face='B' isBold='0' isItalic='1' isUnderlined='1'>a</font></font>",
      "'a' style 101 face B flags bu" },
    { "EmptyAttributesSayNothing",
      "<font face='A' color='Red'><font face='' color=''>a</font></font>",
      "'a' style 101 colour Red face A" },
    { "FirstRunSilentTakesTheSecond", "a<font fontHeight='9'>b</font>", "'ab' style 101 height 9" },
    { "SecondRunSilentDiffers", "<font fontHeight='9'>b</font>a",
      "'ba' style 101 height undetermined" },
    { "FlagsOfTheFirstRun", "<font isUnderlined='1'>a</font><font isBold='1'>b</font>",
      "'ab' style 101 flags u" },
    { "AlignOfTheInnerParagraph",
      "<p align='left'><p align='right'>a</p></p><p align='right'>b</p>",
      "'ab' style 101 align right" },
    { "AttributesOfOtherElementsSayNothing",
      "<p face='A'><font align='left'><b face='B'>a</b></font></p>", "'a' style 201" },
    { "NamesWithAPrefixSayNothing",
      "<q:b xmlns:q='u'><font q:face='A'>a</font></q:b>", "'a' style 101" },
    { "BodyInBodyBeginsAnew", "<b><font face='A'><body><i>a</i></body></font></b>",
      "'a' style 102" },
    { "EntityInAnAttribute", "<font face='A&face;'>a</font>", "'a' style 101 face AMono" },
    { "EntityInTheTextIsNoRun", "<i>&face;</i>b", "'b' style 101" },
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Bodies, RichTextSummary, testing::ValuesIn(kSummaries),
                         [](const auto& row) { return row.param.name; });

} // namespace
