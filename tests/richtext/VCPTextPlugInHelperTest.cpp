#include "richtext/VCPTextPlugInHelper.h"

#include "support/XmlFixture.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

using std::string;

namespace {

using Helper = CVCPTextPlugInHelper;
using namespace vantrel;

string Effect(const string& body)
{
    return "<effect><plugin_data>\n <html><head/>\n<body>" + body +
           "</body></html></plugin_data></effect>";
}

/// All answers of the helper: "=" for success, "?" for 1 and "!" for a failure.
string Answers(const Helper& helper)
{
    std::ostringstream line;
    const auto ask = [&]<class T>(const char* name, Status (Helper::*getter)(T*) const, T value) {
        const Status given = (helper.*getter)(&value);
        line << name << (Failed(given) ? "!" : given == status::kOk ? "=" : "?") << value << ' ';
    };
    ask("text", &Helper::GetTextString, string());
    ask("font", &Helper::GetFont, string());
    ask("size", &Helper::GetFontSize, 0);
    ask("sizeText", &Helper::GetFontSizeString, string());
    line << std::hex;
    ask("colour", &Helper::GetTextColor, 0UL);
    ask("style", &Helper::GetStyle, 0UL);
    ask("align", &Helper::GetJustification, 0UL);
    bool flags[3] = {};
    (void)helper.GetFontBIU(flags[0], flags[1], flags[2]); // can't fail
    line << flags[0] << flags[1] << flags[2];
    return line.str();
}

TEST(TextHelper, AnswersForTheWholeText)
{
    const XmlText mixed{ Effect("<p align='left'><font face='A' fontHeight='8' color='Red' "
                                "isBold='1' isUnderlined='1'>a</font></p>"
                                "<p align='right'><b><font face='B' fontHeight='stringRef:S.1' "
                                "color='Blue'>b</font></b></p>") };
    const XmlText empty{ Effect("\n") };
    const XmlText bodiless{ "<effect><plugin_data><html/></plugin_data></effect>" };

    Helper helper;
    const string nothing =
        "text? font? size?-1 sizeText= colour?0 style?101 align!ffffffffffffffff 000";
    EXPECT_EQ(Answers(helper), nothing);
    EXPECT_EQ(helper.LoadXML(mixed.root()), status::kOk);
    EXPECT_EQ(Answers(helper), "text=ab font=undetermined size?0 sizeText=undetermined colour?0 "
                               "style=401 align=0 101");
    EXPECT_EQ(helper.LoadXML(empty.root()), status::kOk);
    EXPECT_EQ(Answers(helper),
              "text? font=Arial size=24 sizeText= colour=ffffff style=101 align=1 000");

    EXPECT_EQ(helper.LoadXML(mixed.root()), status::kOk);
    for (_xmlNode* none : { bodiless.root(), static_cast<_xmlNode*>(nullptr) }) {
        EXPECT_EQ(helper.LoadXML(none), status::kBadArgument);
        EXPECT_EQ(Answers(helper), nothing) << "never the words of an earlier text";
    }
}

TEST(TextHelper, SettersAreSeenByTheNextQuestionAndTheSavedXML)
{
    const XmlText xml{ Effect("<b>old</b> text") };
    Helper helper;
    EXPECT_EQ(helper.LoadXML(xml.root()), status::kOk);
    EXPECT_EQ(helper.PutTextString("new", true), status::kOk);
    EXPECT_EQ(helper.SetFont("F"), status::kOk);
    EXPECT_EQ(helper.SetFontSize(128), status::kOk);
    EXPECT_EQ(helper.SetTextColor(0x01020304), status::kOk);
    EXPECT_EQ(helper.SetStyle(TEXT_STYLE_ITALIC), status::kOk);
    EXPECT_EQ(helper.SetJustification(TEXT_JUSTIFY_CENTER), status::kOk);
    const string after =
        "text=new font=F size=128 sizeText=128 colour=1020304 style=202 align=2 000";
    EXPECT_EQ(Answers(helper), after);
    EXPECT_EQ(helper.SetFontSizeString("stringRef:S.2"), status::kOk);
    EXPECT_EQ(helper.SetFontSizeString("128"), status::kOk);

    _xmlNode* saved = nullptr;
    EXPECT_EQ(helper.SaveXML(&saved), status::kOk);
    const vantrel::XmlNodePtr held{ saved };
    Helper again;
    EXPECT_EQ(again.LoadXML(saved), status::kOk);
    EXPECT_EQ(Answers(again), after);

    EXPECT_EQ(helper.ReleaseXML(), status::kOk);
    EXPECT_EQ(Answers(helper), after) << "the summary outlives the XML";
    EXPECT_EQ(helper.SaveXML(&saved), status::kFailure);
    EXPECT_EQ(helper.PutTextString("gone", true), status::kFailure);
    EXPECT_EQ(helper.SetTextColor(1), status::kNotAvailable);
}

TEST(TextHelper, SettersRefuseAndLeaveWhatIsThere)
{
    const XmlText xml{ Effect("one<p align='centre'>two</p>") };
    const string before = TextOf(xml.root());
    Helper helper;
    EXPECT_EQ(helper.LoadXML(xml.root()), status::kOk);
    EXPECT_EQ(helper.SetFontSize(7), status::kBadArgument);
    EXPECT_EQ(helper.SetFontSize(129), status::kBadArgument);
    EXPECT_EQ(helper.SetJustification(TEXT_JUSTIFY_MIXED), status::kBadArgument);
    EXPECT_EQ(helper.SetJustification(TEXT_JUSTIFY_UNKNOWN), status::kBadArgument);
    EXPECT_EQ(helper.SetStyle(TEXT_STYLE_BOLD_MIXED), status::kBadArgument);
    // what the text has already, or takes by default
    EXPECT_EQ(helper.SetStyle(TEXT_STYLE_NOT_BOLD | TEXT_STYLE_ITALIC), status::kOk);
    EXPECT_EQ(helper.SetFont("Arial"), status::kOk);
    EXPECT_EQ(helper.SetFontSize(24), status::kOk);
    EXPECT_EQ(helper.SetTextColor(0xFFFFFF), status::kOk);
    EXPECT_EQ(TextOf(xml.root()), before);
}

} // namespace
