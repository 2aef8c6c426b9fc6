#include "richtext/VCPTextXMLEditor.h"

#include "support/RichText.h"
#include "support/XmlFixture.h"
#include "xml/XmlFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

using std::map;
using std::string;
using namespace vantrel;

namespace {

/// An editor with the summary that it asks for; tells the format string of its last edit.
class Editor : public CVCPTextXMLEditor
{
public:
    explicit Editor(_xmlNode* body) : CVCPTextXMLEditor(body, &m_summary) {}
    const string& Format() const { return m_format; }

    /// Hands a format string to the operation for its kind.
    Status Apply(const string& format)
    {
        if (format.starts_with("r:"))
            return EditTextTags(format, false);
        if (format.find("<p") != string::npos)
            return EditParagraphTags(format);
        return format.find("<font") != string::npos ? EditFontTags(format)
                                                    : EditStyleTags(format, 0);
    }

private:
    TextAttributes m_summary;
};

string Content(const _xmlNode* body)
{
    string content;
    for (_xmlNode* node = body->children; node; node = node->next)
        content += TextOf(node);
    std::ranges::replace(content, '"', '\'');
    return content;
}

struct EditCase
{
    const char* name;
    const char* format;
    const char* before; ///< inside "body"
    const char* after;
    const char* summary; ///< of the body afterwards
};

class RichTextEdit : public testing::TestWithParam<EditCase>
{};

TEST_P(RichTextEdit, ShowsAfterASaveAndIsDoneOnce)
{
    const XmlText xml{ "<body>" + string(GetParam().before) + "</body>" };
    Editor editor(xml.root());
    EXPECT_EQ(editor.Apply(GetParam().format), status::kOk);
    EXPECT_EQ(Content(xml.root()), GetParam().after);
    EXPECT_EQ(Summary(xml.root()), GetParam().summary);

    string saved;
    EXPECT_TRUE(vantrel::SerializeXml(xml.doc(), &saved));
    const XmlText again{ saved };
    EXPECT_EQ(Summary(again.root()), GetParam().summary);

    EXPECT_EQ(editor.Apply(GetParam().format), status::kOk);
    EXPECT_EQ(Content(xml.root()), GetParam().after) << "the second time";
}

// clang-format off
constexpr EditCase kStyleEdits[] = {
    { "Plain", "f:<b></b>", "one", "<b>one</b>", "'one' style 201" },
    { "Empty", "f:<b></b>", "", "<b/>", "'' style 101" },
    { "EmptyParagraph", "f:<b></b>", "\n <p/>\n", "\n <p><b/></p>\n", "'' style 101" },
    { "AlreadyThere", "f:<b></b>", "<b>a</b>\n<p><b>b<i>c</i></b></p>",
      "<b>a</b>\n<p><b>b<i>c</i></b></p>", "'abc' style 204" },
    { "TogetherWhereMixed", "f:<b></b>", "<b>one</b>two<b>three</b><i/>",
      "<b>onetwothree</b><i/>", "'onetwothree' style 201" },
    { "InEachParagraph", "f:<i></i>", "\n<font><p>a</p>\n<p>b</p></font>\nc",
      "\n<font><p><i>a</i></p>\n<p><i>b</i></p></font>\nc", "'ab' style 102" },
    { "AroundOtherElements", "f:<i></i>", "<b>a</b><x>b<y>c</y></x>d",
      "<i><b>a</b><x>b<y>c</y></x>d</i>", "'abcd' style 402" },
    { "BodyInBody", "f:<b></b>", "a<b><body>b</body>c</b>",
      "<b>a</b><body><b>b</b></body><b>c</b>", "'abc' style 201" },
    { "Off", "x:<b></b>", "a<b>b<i><b>c</b></i></b>", "ab<i>c</i>", "'abc' style 104" },
    { "OffWithoutWords", "x:<b></b>", "a<b/>\n", "a", "'a' style 101" },
    { "OffBetweenIndentation", "x:<b></b>", "\n <b>a</b>\n <b>b</b>\n", "ab", "'ab' style 101" },
    { "OffBesideHiddenWords", "x:<b></b>", "\nhidden<b>a</b>b<b>\nmore</b>",
      "\nhidden<span/>ab<span/>\nmore", "'ab' style 101" },
    { "OffKeepsWhatItSays", "x:<b></b>", "<b id='1'>a</b><b xmlns:n='u'>b<n:b/></b>",
      "<span id='1'>a</span><span xmlns:n='u'>b<n:b/></span>", "'ab' style 101" },
};

constexpr EditCase kFontEdits[] = {
    { "Plain", "f:<font face=C></font>", "a", "<font face='C'>a</font>", "'a' style 101 face C" },
    { "Empty", "f:<font face=C></font>", "<p><b/></p>", "<p><font face='C'><b/></font></p>",
      "'' style 101" },
    { "EveryRun", "f:<font face=C></font>",
      "<font face='A' color='Red'>a</font><p>b<font face='B'>c</font></p>d",
      "<font face='C' color='Red'>a</font><p><font face='C'>b</font>"
      "<font face='C'>c</font></p><font face='C'>d</font>",
      "'abcd' style 101 colour undetermined face C" },
    { "TheFontThatDecides", "f:<font face=C></font>",
      "<font face='A'><font color='Red'>a</font><font face='B'/><font face=''>b</font></font>",
      "<font face='C'><font color='Red'>a</font><font face='B'/><font face=''>b</font></font>",
      "'ab' style 101 colour undetermined face C" },
    { "TheInnermostOfSilentOnes", "f:<font face=C></font>", "<font><font id='1'>a</font></font>",
      "<font><font id='1' face='C'>a</font></font>", "'a' style 101 face C" },
    { "BodyInBody", "f:<font face=C></font>", "<font face='A'><body>a</body></font>",
      "<font face='A'><body><font face='C'>a</font></body></font>", "'a' style 101 face C" },
    { "OffEverywhere", "f:<font face=></font>",
      "<font face='A'><font face='B' color='Red'>a</font></font>b",
      "<font><font color='Red'>a</font></font>b", "'ab' style 101 colour undetermined" },
    { "ValueWithCommas", "f:<font fontHeight=stringRef:S.1, 2></font>", "a",
      "<font fontHeight='stringRef:S.1, 2'>a</font>", "'a' style 101 height stringRef:S.1, 2" },
    { "UnfitBytesAreMended", "f:<font face=\xFF'<&></font>", "a",
      "<font face='\xEF\xBF\xBD'&lt;&amp;'>a</font>", "'a' style 101 face \xEF\xBF\xBD'<&" },
    { "TwoAttributes", "f:<font color=#0000ff80,faceTexture=0></font>",
      "<font color='Red' faceTexture='3'>a</font>",
      "<font color='#0000ff80' faceTexture='0'>a</font>", "'a' style 101 colour #0000ff80" },
};

constexpr EditCase kParagraphEdits[] = {
    { "Made", "f:<p align=centre></p>", "one<b>two</b>",
      "<p align='center'>one<b>two</b></p>", "'onetwo' style 401 align center" },
    { "MadeInAnEmptyBody", "f:<p align=left></p>", "\n<font face='A'/>\n",
      "\n<p align='left'><font face='A'/></p>\n", "'' style 101" },
    { "EveryOne", "f:<p align=left></p>", "<p align='x'>a<p/></p>\n<b><p id='1'>b</p></b>",
      "<p align='left'>a<p align='left'/></p>\n<b><p id='1' align='left'>b</p></b>",
      "'ab' style 401 align left" },
    { "LooseWordsGetTheirOwn", "f:<p align=right></p>", "<b>a<p>b</p><i>c</i></b>\nd",
      "<b><p align='right'>a</p><p align='right'>b</p><p align='right'><i>c</i></p></b>\nd",
      "'abc' style 204 align right" },
};

constexpr EditCase kTextEdits[] = {
    { "Plain", "r:new", "old", "new", "'new' style 101" },
    { "Empty", "r:new", "", "new", "'new' style 101" },
    { "FirstRunsLook", "r:new",
      "\n<p align='left'>\n<font face='A'><b>o</b>l</font>d</p>\n<p>x</p><i>y</i>",
      "\n<p align='left'>\n<font face='A'><b>new</b></font></p>\n",
      "'new' style 201 face A align left" },
    { "IntoTheLookThatIsPrepared", "r:new", "\n<br/><p>\n<i><u/><b>\n</b></i></p><p/>",
      "\n<p>\n<i><u/><b>new</b></i></p><p/>", "'new' style 202" },
    { "HiddenWordsGoToo", "r:new", "<![CDATA[a]]>b<br/>\nc<u>\n<hr/></u><!--d--><u/>",
      "new<!--d--><u/>", "'new' style 101" },
    { "Unchanged", "r:new", "<b>n</b><i>e<br/>w</i>", "<b>n</b><i>e<br/>w</i>",
      "'new' style 404" },
    { "Emptied", "r:", "<p align='left'><b>old</b>\n</p><p>x</p>", "<p align='left'><b/>\n</p>",
      "'' style 101" },
    { "LineFeedsAtTheHeadAreDropped", "r:\n\na\n\r\x01&b\n", "<b>old</b>",
      "<b>a\n&#13;\xEF\xBF\xBD&amp;b\n</b>", "'a\n\r\xEF\xBF\xBD&b\n' style 201" },
};
// clang-format on

const auto kRowName = [](const auto& row) { return row.param.name; };
INSTANTIATE_TEST_SUITE_P(Style, RichTextEdit, testing::ValuesIn(kStyleEdits), kRowName);
INSTANTIATE_TEST_SUITE_P(Fonts, RichTextEdit, testing::ValuesIn(kFontEdits), kRowName);
INSTANTIATE_TEST_SUITE_P(Paragraphs, RichTextEdit, testing::ValuesIn(kParagraphEdits), kRowName);
INSTANTIATE_TEST_SUITE_P(Words, RichTextEdit, testing::ValuesIn(kTextEdits), kRowName);

TEST(RichTextEditing, OnAndOffAgainAndAgainIsAsOnce)
{
    const XmlText xml{ "<body>\n <p>a<b>b</b>\nx<i>c</i></p>\n <font face='A'>d</font>e\n</body>" };
    Editor editor(xml.root());
    const auto editAll = [&] {
        for (const char* format :
             { "f:<b></b>", "f:<i></i>", "f:<p align=centre></p>", "f:<font face=C></font>",
               "x:<b></b>", "f:<font face=TEXTED_REMOVE></font>", "f:<b></b>", "x:<i></i>" })
            EXPECT_EQ(editor.Apply(format), status::kOk);
        return TextOf(xml.root());
    };
    const string once = editAll();
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(editAll(), once);
    EXPECT_EQ(Summary(xml.root()), "'abcde\n' style 201 align center");
}

TEST(RichTextEditing, RequestsAreStatedInTheEditLanguage)
{
    const XmlText xml{ "<body>a</body>" };
    Editor editor(xml.root());
    const auto format = [&](Status result) { return Failed(result) ? "failed" : editor.Format(); };
    EXPECT_EQ(format(editor.EditText("some words", true)), "r:some words");
    EXPECT_EQ(format(editor.EditJustification(TEXT_JUSTIFY_CENTER)), "f:<p align=centre></p>");
    EXPECT_EQ(format(editor.EditJustification(0)), "");
    EXPECT_EQ(format(editor.EditStyle(TEXT_STYLE_NOT_ITALIC)), "x:<i></i>");
    EXPECT_EQ(format(editor.EditStyle(TEXT_STYLE_ITALIC)), "f:<i></i>");
    EXPECT_EQ(format(editor.EditStyle(0x101)), "x:<b></b>");
    EXPECT_EQ(format(editor.EditStyle(TEXT_STYLE_BOLD)), "f:<b></b>");
    EXPECT_EQ(format(editor.EditFont("A")), "f:<font face=A></font>");
    EXPECT_EQ(format(editor.EditFontSize(24)), "f:<font fontHeight=24></font>");
    EXPECT_EQ(format(editor.EditTextColor(0x80FF0000)),
              "f:<font color=#0000ff80,faceTexture=0></font>");
    EXPECT_EQ(TextOf(xml.root()),
              "<body><p align=\"center\"><font face=\"A\" fontHeight=\"24\" color=\"#0000ff80\" "
              "faceTexture=\"0\"><b><i>some words</i></b></font></p></body>");
}

TEST(RichTextEditing, RefusalsLeaveTheTextAsItIs)
{
    string deep = "a<?body?>";
    for (int i = 0; i < 220; ++i)
        deep = "<u>" + deep + "</u>";
    const XmlText xml{ "<body>" + deep + "</body>" };
    const string before = TextOf(xml.root());
    Editor editor(xml.root());
    for (const char* tooDeep : { "f:<b></b>", "f:<font face=A></font>", "f:<p align=left></p>" })
        EXPECT_EQ(editor.Apply(tooDeep), status::kNotAvailable);
    for (const char* unknown : { "f:<b", "q:<b></b>", "f:<u></u>", "x:<font face=A></font>" })
        EXPECT_EQ(editor.Apply(unknown), status::kNothingDone);
    EXPECT_EQ(editor.EditTextTags("f:<b></b>", false), status::kNothingDone);
    EXPECT_EQ(editor.EditText(string(10'000'001, 'a'), false), status::kBadArgument);
    EXPECT_EQ(editor.EditFont(string(1'000'001, 'a')), status::kBadArgument);
    EXPECT_EQ(editor.EditFont("A,color=Red"), status::kBadArgument);
    EXPECT_EQ(editor.EditStyle(TEXT_STYLE_NOT_BOLD | TEXT_STYLE_BOLD_MIXED), status::kBadArgument);
    EXPECT_EQ(editor.EditStyle(0), status::kFailure);
    EXPECT_EQ(TextOf(xml.root()), before);

    const XmlText other{ "<?body?><a/>" };
    TextAttributes summary;
    const auto all = [](CVCPTextXMLEditor edit, Status expected) {
        EXPECT_EQ(edit.EditText("a", false), expected);
        EXPECT_EQ(edit.EditJustification(TEXT_JUSTIFY_LEFT), expected);
        EXPECT_EQ(edit.EditStyle(TEXT_STYLE_BOLD), expected);
        EXPECT_EQ(edit.EditStyle(TEXT_STYLE_NOT_BOLD), expected);
        EXPECT_EQ(edit.EditFont("A"), expected);
        EXPECT_EQ(edit.EditTextColor(0), expected);
    };
    all({ other.doc()->children, &summary }, status::kUnexpected);
    all({ nullptr, &summary }, status::kFailure);
    all({ other.root(), nullptr }, status::kFailure);
}

TEST(RichTextSteps, AttributesAreReplacedTakenOffAndNeverDoubled)
{
    const XmlText xml{ "<font xmlns:n='u' face='A' n:c='1' color='Red'/>" };
    Editor editor(nullptr);
    const char* remove = "TEXTED_REMOVE";
    map<string, string> attributes{
        { "color", "Blue" }, { "face", remove }, { "gone", remove }, { "n:c", "2" }
    };
    EXPECT_EQ(editor.XMLSaveAttributes(xml.root(), attributes), status::kOk);
    map<string, string> unfit{ { "a", "1" }, { "no name", "1" } };
    EXPECT_EQ(editor.XMLSaveAttributes(xml.root(), unfit), status::kBadArgument);
    EXPECT_EQ(editor.XMLSaveAttributes(nullptr, attributes), status::kBadArgument);
    EXPECT_EQ(TextOf(xml.root()), "<font xmlns:n=\"u\" n:c=\"2\" color=\"Blue\"/>");
}

TEST(RichTextSteps, NodesAreInsertedFoundAndDeleted)
{
    const XmlText xml{ "<body>\n<b>a</b></body>" };
    _xmlNode* body = xml.root();
    Editor editor(body);
    EXPECT_EQ(editor.Apply("f:<b></b>"), status::kOk); // nothing to do, but the kind is known
    long found = 0;
    EXPECT_TRUE(editor.TestOnlyChildNodeOfOpType(body, &found));
    auto* bold = reinterpret_cast<_xmlNode*>(found);

    map<string, string> align{ { "align", "left" } };
    _xmlNode* made = nullptr;
    EXPECT_EQ(editor.InsertNode(body, "p", align, true, bold, &made), status::kOk);
    EXPECT_FALSE(editor.TestOnlyChildNodeOfOpType(body, nullptr));
    EXPECT_EQ(editor.InsertNode(body, "no name", align, true, bold, nullptr), status::kBadArgument);
    EXPECT_EQ(editor.InsertNode(made, "p", align, true, bold, nullptr), status::kBadArgument);
    EXPECT_EQ(editor.DeleteNode(bold), status::kOk);
    EXPECT_EQ(editor.DeleteNode(body), status::kBadArgument);
    EXPECT_EQ(TextOf(body), "<body>\n<p align=\"left\"/>a</body>");
    EXPECT_EQ(editor.DeleteNode(made), status::kOk); // whatever its attributes
    EXPECT_EQ(TextOf(body), "<body>a</body>");
}

} // namespace
