#include "richtext/VCPTextXMLEditor.h"

#include "support/RichText.h"
#include "support/XmlFixture.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

using std::map;
using std::string;

namespace {

using Editor = CVCPTextXMLEditor;

struct EditCase
{
    const char* name;
    const char* before; ///< inside "body"
    Status (*edit)(Editor& editor);
    const char* after;
    const char* summary; ///< of the body afterwards
};

Status Bold(Editor& editor)
{
    return editor.EditStyle(TEXT_STYLE_BOLD);
}
Status NotBold(Editor& editor)
{
    return editor.EditStyle(TEXT_STYLE_NOT_BOLD);
}
Status Italic(Editor& editor)
{
    return editor.EditStyle(TEXT_STYLE_ITALIC);
}
Status Centre(Editor& editor)
{
    return editor.EditJustification(TEXT_JUSTIFY_CENTER);
}
Status FaceC(Editor& editor)
{
    return editor.EditFont("C");
}
Status NoFace(Editor& editor)
{
    return editor.EditFont("");
}
Status Colour(Editor& editor)
{
    return editor.EditTextColor(0x80FF0000);
}
Status NewText(Editor& editor)
{
    return editor.EditText("new", false);
}
Status NoText(Editor& editor)
{
    return editor.EditText("", false);
}

string Content(const _xmlNode* body)
{
    string content;
    for (_xmlNode* node = body->children; node; node = node->next)
        content += TextOf(node);
    return content;
}

class RichTextEdit : public testing::TestWithParam<EditCase>
{};

TEST_P(RichTextEdit, ShowsAfterASaveAndIsDoneOnce)
{
    const XmlText xml{ "<body>" + string(GetParam().before) + "</body>" };
    TextAttributes attributes;
    Editor editor(xml.root(), &attributes);
    EXPECT_EQ(GetParam().edit(editor), status::kOk);
    EXPECT_EQ(Content(xml.root()), GetParam().after);
    EXPECT_EQ(Summary(xml.root()), GetParam().summary);

    const XmlText again{ SavedForm(xml.root()) };
    EXPECT_EQ(Summary(again.root()), GetParam().summary);

    EXPECT_EQ(GetParam().edit(editor), status::kOk);
    EXPECT_EQ(Content(xml.root()), GetParam().after) << "the second time";
}

const auto kRowName = [](const auto& row) { return row.param.name; };

INSTANTIATE_TEST_SUITE_P(
    Style, RichTextEdit,
    testing::Values(
        EditCase{ "Plain", "one", Bold, "<b>one</b>", "'one' style 201" },
        EditCase{ "Empty", "", Bold, "<b/>", "'' style 101" },
        EditCase{ "EmptyParagraph", "\n <p/>\n", Bold, "\n <p><b/></p>\n", "'' style 101" },
        EditCase{ "AlreadyThere", "<b>a</b>\n<p><b>b<i>c</i></b></p>", Bold,
                  "<b>a</b>\n<p><b>b<i>c</i></b></p>", "'abc' style 204" },
        EditCase{ "TogetherWhereMixed", "<b>one</b>two<b>three</b><i/>", Bold,
                  "<b>onetwothree</b><i/>", "'onetwothree' style 201" },
        EditCase{ "InEachParagraph", "\n<font><p>a</p>\n<p>b</p></font>\nc", Italic,
                  "\n<font><p><i>a</i></p>\n<p><i>b</i></p></font>\nc", "'ab' style 102" },
        EditCase{ "AroundOtherElements", "<b>a</b><x>b<y>c</y></x>d", Italic,
                  "<i><b>a</b><x>b<y>c</y></x>d</i>", "'abcd' style 402" },
        EditCase{ "BodyInBody", "a<b><body>b</body>c</b>", Bold,
                  "<b>a</b><body><b>b</b></body><b>c</b>", "'abc' style 201" },
        EditCase{ "Off", "a<b>b<i><b>c</b></i></b>", NotBold, "ab<i>c</i>", "'abc' style 104" },
        EditCase{ "OffOfNothing", "a<b/>\n", NotBold, "a", "'a' style 101" },
        EditCase{ "OffBetweenIndentation", "\n <b>a</b>\n <b>b</b>\n", NotBold, "ab",
                  "'ab' style 101" },
        EditCase{ "OffBesideHiddenWords", "\nhidden<b>a</b>b<b>\nmore</b>", NotBold,
                  "\nhidden<span/>ab<span/>\nmore", "'ab' style 101" },
        EditCase{ "OffKeepsWhatItSays", "<b id='1'>a</b><b xmlns:n='u'>b<n:c/></b>", NotBold,
                  "<span id=\"1\">a</span><span xmlns:n=\"u\">b<n:c/></span>", "'ab' style 101" }),
    kRowName);

INSTANTIATE_TEST_SUITE_P(
    Fonts, RichTextEdit,
    testing::Values(
        EditCase{ "Plain", "one", FaceC, "<font face=\"C\">one</font>", "'one' style 101 face C" },
        EditCase{ "Empty", "<p><b/></p>", FaceC, "<p><font face=\"C\"><b/></font></p>",
                  "'' style 101" },
        EditCase{ "EveryRun", "<font face='A' color='Red'>a</font><p>b<font face='B'>c</font></p>d",
                  FaceC,
                  "<font face=\"C\" color=\"Red\">a</font><p><font face=\"C\">b</font>"
                  "<font face=\"C\">c</font></p><font face=\"C\">d</font>",
                  "'abcd' style 101 colour undetermined face C" },
        EditCase{ "TheFontThatDecides",
                  "<font face='A'><font color='Red'>a</font><font face='B'/><font face=''>b</font>"
                  "</font>",
                  FaceC,
                  "<font face=\"C\"><font color=\"Red\">a</font><font face=\"B\"/>"
                  "<font face=\"\">b</font></font>",
                  "'ab' style 101 colour undetermined face C" },
        EditCase{ "TheInnermostOfSilentOnes", "<font><font id='1'>a</font></font>", FaceC,
                  "<font><font id=\"1\" face=\"C\">a</font></font>", "'a' style 101 face C" },
        EditCase{ "BodyInBody", "<font face='A'><body>a</body></font>", FaceC,
                  "<font face=\"A\"><body><font face=\"C\">a</font></body></font>",
                  "'a' style 101 face C" },
        EditCase{ "OffEverywhere", "<font face='A'><font face='B' color='Red'>a</font></font>b",
                  NoFace, "<font><font color=\"Red\">a</font></font>b",
                  "'ab' style 101 colour undetermined" },
        EditCase{ "SizeAsText", "a",
                  [](Editor& editor) { return editor.EditFontSizeString("stringRef:S.1, 2>"); },
                  "<font fontHeight=\"stringRef:S.1, 2&gt;\">a</font>",
                  "'a' style 101 height stringRef:S.1, 2>" },
        EditCase{ "SizeAsNumber", "<font fontHeight='8'>a</font>",
                  [](Editor& editor) { return editor.EditFontSize(24); },
                  "<font fontHeight=\"24\">a</font>", "'a' style 101 height 24" },
        EditCase{ "UnfitBytesAreMended", "a",
                  [](Editor& editor) { return editor.EditFont("\xFF\"<&"); },
                  "<font face=\"\xEF\xBF\xBD&quot;&lt;&amp;\">a</font>",
                  "'a' style 101 face \xEF\xBF\xBD\"<&" },
        EditCase{ "Colour", "<font color='Red' faceTexture='3'>a</font>", Colour,
                  "<font color=\"#0000ff80\" faceTexture=\"0\">a</font>",
                  "'a' style 101 colour #0000ff80" }),
    kRowName);

INSTANTIATE_TEST_SUITE_P(
    Paragraphs, RichTextEdit,
    testing::Values(EditCase{ "Made", "one<b>two</b>", Centre,
                              "<p align=\"center\">one<b>two</b></p>",
                              "'onetwo' style 401 align center" },
                    EditCase{ "MadeInAnEmptyBody", "\n<font face='A'/>\n", Centre,
                              "\n<p align=\"center\"><font face=\"A\"/></p>\n", "'' style 101" },
                    EditCase{ "EveryOne", "<p align='left'>a<p/></p>\n<b><p id='1'>b</p></b>",
                              Centre,
                              "<p align=\"center\">a<p align=\"center\"/></p>\n"
                              "<b><p id=\"1\" align=\"center\">b</p></b>",
                              "'ab' style 401 align center" },
                    EditCase{ "LooseWordsGetTheirOwn", "<b>a<p>b</p><i>c</i></b>\nd", Centre,
                              "<b><p align=\"center\">a</p><p align=\"center\">b</p>"
                              "<p align=\"center\"><i>c</i></p></b>\nd",
                              "'abc' style 204 align center" }),
    kRowName);

INSTANTIATE_TEST_SUITE_P(
    Words, RichTextEdit,
    testing::Values(
        EditCase{ "Plain", "old", NewText, "new", "'new' style 101" },
        EditCase{ "Empty", "", NewText, "new", "'new' style 101" },
        EditCase{ "FirstRunsLook",
                  "\n<p align='left'>\n<font face='A'><b>o</b>l</font>d</p>\n<p>x</p><i>y</i>",
                  NewText, "\n<p align=\"left\">\n<font face=\"A\"><b>new</b></font></p>\n",
                  "'new' style 201 face A align left" },
        EditCase{ "IntoTheLookThatWasPrepared", "\n<br/><p>\n<i><u/><b>\n</b></i></p><p/>", NewText,
                  "\n<p>\n<i><u/><b>new</b></i></p><p/>", "'new' style 202" },
        EditCase{ "HiddenWordsGoToo", "<![CDATA[a]]>b<br/>\nc<u>\n<hr/></u><!--d--><u/>", NewText,
                  "new<!--d--><u/>", "'new' style 101" },
        EditCase{ "Unchanged", "<b>n</b><i>e<br/>w</i>", NewText, "<b>n</b><i>e<br/>w</i>",
                  "'new' style 404" },
        EditCase{ "Emptied", "<p align='left'><b>old</b>\n</p><p>x</p>", NoText,
                  "<p align=\"left\"><b/>\n</p>", "'' style 101" },
        EditCase{ "LineFeedsAtTheHeadAreDropped", "<b>old</b>",
                  [](Editor& editor) { return editor.EditText("\n\na\n\r\x01&b\n", true); },
                  "<b>a\n&#13;\xEF\xBF\xBD&amp;b\n</b>", "'a\n\r\xEF\xBF\xBD&b\n' style 201" }),
    kRowName);

TEST(RichTextEditing, OnAndOffAgainAndAgainIsAsOnce)
{
    const XmlText xml{ "<body>\n <p>a<b>b</b>\nx<i>c</i></p>\n <font face='A'>d</font>e\n</body>" };
    TextAttributes attributes;
    Editor editor(xml.root(), &attributes);
    const auto editAll = [&] {
        for (const auto edit : { Bold, Italic, Centre, FaceC, Colour, NotBold, NoFace, Bold })
            EXPECT_EQ(edit(editor), status::kOk);
        (void)editor.EditStyle(TEXT_STYLE_NOT_ITALIC);
    };
    editAll();
    const string once = TextOf(xml.root());
    for (int i = 0; i < 5; ++i)
        editAll();
    EXPECT_EQ(TextOf(xml.root()), once);
    EXPECT_EQ(Summary(xml.root()), "'abcde\n' style 201 colour #0000ff80 align center");
}

TEST(RichTextEditing, LooksOfAnEmptyTextWaitForItsWords)
{
    const XmlText xml{ "<body>old</body>" };
    TextAttributes attributes;
    Editor editor(xml.root(), &attributes);
    for (const auto edit : { NoText, Bold, Centre, FaceC, NewText })
        EXPECT_EQ(edit(editor), status::kOk);
    EXPECT_EQ(Summary(xml.root()), "'new' style 201 face C align center");
}

TEST(RichTextEditing, RefusesWhatAFileCannotTakeBack)
{
    string deep;
    for (int i = 0; i < 220; ++i)
        deep = "<u>" + deep + (i == 0 ? "a" : "") + "</u>";
    const XmlText xml{ "<body>" + deep + "</body>" };
    const string before = TextOf(xml.root());
    TextAttributes attributes;
    Editor editor(xml.root(), &attributes);
    EXPECT_EQ(Bold(editor), status::kNotAvailable);
    EXPECT_EQ(FaceC(editor), status::kNotAvailable);
    EXPECT_EQ(Centre(editor), status::kNotAvailable);
    EXPECT_EQ(editor.EditText(string(10'000'001, 'a'), false), status::kBadArgument);
    EXPECT_EQ(editor.EditFont(string(1'000'001, 'a')), status::kBadArgument);
    EXPECT_EQ(editor.EditFont("A,color=Red"), status::kBadArgument);
    EXPECT_EQ(TextOf(xml.root()), before);
}

TEST(RichTextEditing, StatusOfWhatIsNoRequest)
{
    const XmlText xml{ "<body>a<?body?></body>" };
    TextAttributes attributes;
    Editor editor(xml.root(), &attributes);
    EXPECT_TRUE(editor.GetIsValid());
    EXPECT_EQ(editor.EditJustification(0), status::kOk);
    EXPECT_EQ(editor.EditStyle(0), status::kFailure);
    EXPECT_EQ(editor.EditStyle(TEXT_STYLE_ITALIC_MIXED), status::kBadArgument);
    EXPECT_EQ(editor.EditStyle(TEXT_STYLE_NOT_BOLD | TEXT_STYLE_BOLD_MIXED), status::kBadArgument);
    EXPECT_EQ(editor.EditTextTags("f:<b></b>", false), status::kNothingDone);
    EXPECT_EQ(editor.EditStyleTags("f:<font face=A></font>", 0), status::kNothingDone);
    EXPECT_EQ(editor.EditStyleTags("f:<b", 0), status::kNothingDone);
    EXPECT_EQ(editor.EditFontTags("x:<font face=A></font>"), status::kNothingDone);
    EXPECT_EQ(editor.EditParagraphTags("f:<b></b>"), status::kNothingDone);
    EXPECT_EQ(TextOf(xml.root()), "<body>a<?body?></body>");

    Editor noElement(xml.root()->children->next, &attributes);
    for (const auto edit : { Bold, NotBold, Centre, FaceC, NewText })
        EXPECT_EQ(edit(noElement), status::kUnexpected);
    for (Editor invalid : { Editor(nullptr, &attributes), Editor(xml.root(), nullptr) }) {
        EXPECT_FALSE(invalid.GetIsValid());
        for (const auto edit : { Bold, NotBold, Centre, FaceC, Colour, NewText })
            EXPECT_EQ(edit(invalid), status::kFailure);
    }
}

TEST(RichTextSteps, ParseFormatStringTakesTheLanguageApart)
{
    struct Case
    {
        const char* format;
        const char* tag;
        map<string, string> attributes;
    };
    Editor editor(nullptr, nullptr);
    const Case cases[] = {
        { "x:<b></b>", "b", {} },
        { "f:<font color=#ff000000,faceTexture=0></font>",
          "font",
          { { "color", "#ff000000" }, { "faceTexture", "0" } } },
        { "f:<font face=A, B></font></font>", "font", { { "face", "A, B></font" } } },
        { "f:<font face=></font>", "font", { { "face", "" } } },
        { "f:<font face=A></b>", "", {} },
        { "r:<b></b>", "", {} },
        { "f", "", {} },
    };
    for (const Case& row : cases) {
        string tag;
        string text;
        map<string, string> attributes;
        EXPECT_EQ(editor.ParseFormatString(row.format, tag, text, attributes, true), status::kOk);
        EXPECT_EQ(tag, row.tag) << row.format;
        EXPECT_EQ(attributes, row.attributes) << row.format;
    }
}

TEST(RichTextSteps, AttributesAreReplacedTakenOffAndNeverDoubled)
{
    const XmlText xml{ "<font xmlns:n='u' face='A' n:c='1' color='Red'/>" };
    Editor editor(nullptr, nullptr);
    map<string, string> attributes{ { "color", "Blue" },
                                    { "face", "TEXTED_REMOVE" },
                                    { "gone", "TEXTED_REMOVE" },
                                    { "n:c", "2" } };
    EXPECT_EQ(editor.XMLSaveAttributes(xml.root(), attributes), status::kOk);
    EXPECT_EQ(TextOf(xml.root()), "<font xmlns:n=\"u\" n:c=\"2\" color=\"Blue\"/>");

    map<string, string> unfit{ { "a", "1" }, { "no name", "1" } };
    EXPECT_EQ(editor.XMLSaveAttributes(xml.root(), unfit), status::kBadArgument);
    EXPECT_EQ(editor.XMLSaveAttributes(nullptr, attributes), status::kBadArgument);
    EXPECT_EQ(TextOf(xml.root()), "<font xmlns:n=\"u\" n:c=\"2\" color=\"Blue\"/>");
}

TEST(RichTextSteps, NodesAreInsertedFoundAndDeleted)
{
    const XmlText xml{ "<body>\n<b>a</b>c\n</body>" };
    TextAttributes attributes;
    Editor editor(xml.root(), &attributes);
    EXPECT_EQ(editor.EditStyle(TEXT_STYLE_BOLD), status::kOk);
    EXPECT_EQ(TextOf(xml.root()), "<body>\n<b>ac\n</b></body>");

    _xmlNode* body = xml.root();
    _xmlNode* bold = nullptr;
    long found = 0;
    EXPECT_TRUE(editor.TestOnlyChildNodeOfOpType(body, &found));
    bold = reinterpret_cast<_xmlNode*>(found);
    map<string, string> align{ { "align", "left" } };
    _xmlNode* made = nullptr;
    EXPECT_EQ(editor.InsertNode(body, "p", align, true, bold, &made), status::kOk);
    EXPECT_FALSE(editor.TestOnlyChildNodeOfOpType(body, nullptr));
    EXPECT_EQ(editor.InsertNode(body, "no name", align, true, bold, nullptr), status::kBadArgument);
    EXPECT_EQ(editor.InsertNode(made, "p", align, true, bold, nullptr), status::kBadArgument);
    EXPECT_EQ(editor.DeleteNode(bold), status::kOk);
    EXPECT_EQ(TextOf(body), "<body>\n<p align=\"left\"/>ac\n</body>");
    EXPECT_EQ(editor.DeleteNode(body), status::kBadArgument);
}

} // namespace
