#include "menu/MenuTextImpl.h"

#include "disc/DSMenuButton.h"
#include "disc/DSMenuText.h"
#include "richtext/TextAttributes.h"
#include "support/MenuFixture.h"
#include "transform/VCPTransformImpl.h"
#include "xml/KeptXml.h"
#include "xml/XmlFile.h"

#include <filesystem>

using std::string;
using namespace vantrel;

namespace {

/// The effect of a text with this body and, in front of "html", this of the transform.
string Effect(const string& body, const string& transform = "")
{
    return "<effect><plugin_data>" + transform + "<html><body>" + body +
           "</body></html></plugin_data></effect>";
}

string TextElement(const string& body, const string& transform = "")
{
    return "<Text>" + Effect(body, transform) + "</Text>";
}

string StringOf(CMenuTextImpl& text)
{
    string words = "none";
    return text.getString(&words) == status::kOk ? words : "none";
}

constexpr const char* kScaled =
    "<Scaling><StartOffsetElements><KeyFrame><Time>0</Time><Caps>768</Caps><Vector Name=''>"
    "<x>2</x><y>4</y><z>1</z></Vector></KeyFrame></StartOffsetElements></Scaling>";

} // namespace

TEST(Text, WithoutXmlAnswersNothingAndTakesNothing)
{
    CDSMenuText withoutXml, withoutBody;
    EXPECT_EQ(ReadNode(withoutXml, "<Text ID='3'/>"), status::kOk);
    EXPECT_EQ(ReadNode(withoutBody, TextElement("former words")), status::kOk);
    EXPECT_EQ(StringOf(withoutBody), "former words");
    EXPECT_EQ(ReadNode(withoutBody, "<Text><effect><plugin_data/></effect></Text>"), status::kOk);
    for (CDSMenuText* text : { &withoutXml, &withoutBody }) {
        CMenuTextImpl& part = *text;
        string words = "kept";
        unsigned long number = 7;
        long height = 7;
        bool flag = true;
        for (const Status status :
             { part.getString(&words), part.getFontName(&words), part.getFontHeightString(&words),
               part.getFontHeight(&height), part.getColor(&number), part.getStyle(&number),
               part.getJustify(&number), part.GetFontBIU(flag, flag, flag), text->getString(&words),
               text->get_Font(&words) })
            EXPECT_EQ(status, status::kNothingDone);
        EXPECT_EQ(words, "kept");
        EXPECT_TRUE(number == 7 && height == 7 && flag);

        const Status refused = text == &withoutXml ? status::kNullPointer : status::kFailure;
        EXPECT_EQ(part.setString("x"), refused);
        EXPECT_EQ(part.setFontName("x"), refused);
        EXPECT_EQ(part.setFontHeight(20), refused);
        EXPECT_EQ(part.setStyle(TEXT_STYLE_BOLD), refused);
        EXPECT_EQ(part.setJustify(TEXT_JUSTIFY_CENTER), refused);
        EXPECT_EQ(text->get_Height(&height), status::kNothingDone);
        EXPECT_EQ(height, 7);
    }
    FloatPoint corners[4] = { { 5, 5 } };
    EXPECT_EQ(withoutXml.GetBoundingBox(corners), status::kOk);
    EXPECT_EQ(corners[0].x, 5);
    FPoint scale(9, 9);
    EXPECT_EQ(withoutXml.getScalingXForm(&scale), status::kOk);
    EXPECT_EQ(scale.x, 0);
    std::vector<FPoint> model;
    EXPECT_EQ(withoutXml.getModelRect(model), status::kNothingDone);
    EXPECT_EQ(ExtentOf(withoutXml), "0 0 0 0");
}

TEST(Text, ShowsEachChangeAndKeepsItOverASave)
{
    CDSMenuText text;
    {
        const XmlText xml{ "<Text ID='3' handle='5' highlight='2' rotateAngle='4'>" +
                           Effect("<p><font face='A' fontHeight='20'>one </font>two</p>") +
                           "</Text>" };
        const XmlGift gift(xml.doc()); // as when a file is loaded
        EXPECT_EQ(text.Read(AsNode(xml.root())), status::kOk);
    }
    EXPECT_EQ(StringOf(text), "one two");
    EXPECT_EQ(text.setString("new words"), status::kOk);
    EXPECT_EQ(text.setFontName("B"), status::kOk);
    EXPECT_EQ(text.setFontHeight(30), status::kOk);
    EXPECT_EQ(text.setColor(0xFF0000FF), status::kOk);
    EXPECT_EQ(text.setStyle(TEXT_STYLE_BOLD), status::kOk);
    EXPECT_EQ(text.setJustify(TEXT_JUSTIFY_CENTER), status::kOk);
    EXPECT_EQ(text.put_Handle(_TextHandles::BottomRight), status::kOk);
    for (const int outside : { 0, 10, -1 })
        EXPECT_EQ(text.put_Handle(static_cast<TextHandles>(outside)), status::kBadArgument);
    for (const long height :
         { 7L, 129L, std::numeric_limits<long>::max(), std::numeric_limits<long>::min() })
        EXPECT_EQ(text.setFontHeight(height), status::kBadArgument);

    CDSMenuText again;
    const string saved = WrittenNode(text);
    EXPECT_EQ(ReadNode(again, saved), status::kOk);
    EXPECT_EQ(WrittenNode(again), saved);
    EXPECT_NE(
        saved.find(R"x(<p align="center"><b><font face="B" fontHeight="30" color="#ff0000ff")x"
                   R"x( faceTexture="0">new words</font></b></p>)x"),
        string::npos)
        << saved;
    for (CDSMenuText* one : { &text, &again }) {
        unsigned long colour = 0;
        TextHandles handle = TextHandles::NotSet;
        EXPECT_EQ(StringOf(*one), "new words");
        EXPECT_EQ(one->getColor(&colour), status::kOk);
        EXPECT_EQ(one->GetColor(&colour), status::kNothingDone); // always
        EXPECT_EQ(colour, 0xFF0000FFUL);
        EXPECT_EQ(one->get_Handle(&handle), status::kOk);
        EXPECT_EQ(handle, TextHandles::BottomRight);
    }
}

TEST(Text, HandsOutAndTakesCopiesOfItsXml)
{
    CDSMenuText text;
    {
        const XmlText given{ "<other>" + Effect("words").substr(8, 58) + "</other>" };
        EXPECT_EQ(text.SetEffectXML(AsNode(given.root())), status::kOk);
    }
    EXPECT_EQ(StringOf(text), "words");
    EmptyXml out;
    EXPECT_EQ(text.GetEffectXML(AsNode(out.root())), status::kOk);
    EXPECT_EQ(TextOf(out.root()), "<Root>" + Effect("words") + "</Root>");
    EXPECT_EQ(text.setEffectXML(out.root()->children), status::kOk);
    EXPECT_EQ(text.GetEffectXML(nullptr), status::kNullPointer);
    EXPECT_EQ(text.SetEffectXML(nullptr), status::kNullPointer);
    EXPECT_EQ(CDSMenuText().GetEffectXML(AsNode(out.root())), status::kNothingDone);
    EXPECT_EQ(text.ReadXML(nullptr), status::kNullPointer);
    EXPECT_EQ(text.WriteXML(nullptr, 0), status::kOk);
}

TEST(Text, BringsItsHandleToItsPosition)
{
    CDSMenuText text;
    EXPECT_EQ(ReadNode(text, "<Text x='10' y='20'><effect/></Text>"), status::kOk);
    EXPECT_EQ(Corners(text), "10 20, 10 18, 12 18, 12 20");
    const struct
    {
        int handle;
        const char* extent;
    } cases[] = { { 1, "10 20 12 18" }, { 3, "8 20 10 18" }, { 5, "9 21 11 19" },
                  { 7, "10 22 12 20" }, { 8, "9 22 11 20" }, { 9, "8 22 10 20" } };
    for (const auto& c : cases) {
        EXPECT_EQ(text.setHandle(static_cast<_TextHandles>(c.handle)), status::kOk);
        EXPECT_EQ(ExtentOf(text), c.extent) << c.handle;
    }
    EXPECT_EQ(ReadNode(text, TextElement("", kScaled)), status::kOk); // in frame proportions
    EXPECT_EQ(ExtentOf(text), "6 26 10 20");

    float x = 7, y = 7;
    EXPECT_EQ(text.GetHandleCoords(_TextHandles::MiddleLeft, &x, &y), status::kOk);
    EXPECT_EQ(text.GetHandleEnum(&x, &y), _TextHandles::MiddleLeft);
    EXPECT_EQ(text.GetHandleCoords(_TextHandles::NotSet, &x, &y), status::kOk);
    EXPECT_EQ(x, 0.0F);
    x = y = 0.5F;
    EXPECT_EQ(text.GetHandleEnum(&x, &y), _TextHandles::TopLeft);

    float key[3] = { 7, 7, 7 };
    EXPECT_EQ(text.get3DKeyFrame(TRANSFORM_SCALING, 0, KVC_KEYFRAME_START_OFFSET, &key[0], &key[1],
                                 &key[2], nullptr),
              status::kOk);
    EXPECT_EQ(key[1], 4);
    EXPECT_EQ(
        text.get3DKeyFrame(0, 0, KVC_KEYFRAME_START_OFFSET, &key[0], &key[1], &key[2], nullptr),
        status::kBadArgument);
}

TEST(Text, WorksOnTheXmlOfItsEffect)
{
    const XmlText lent{ Effect("of the effect") };
    const string before = TextOf(lent.root());
    CDSMenuText text;
    EXPECT_EQ(ReadNode(text, TextElement("its own")), status::kOk);
    EXPECT_EQ(StringOf(text), "its own");
    CEffectObject effect;
    (void)effect.PutData(lent.root(), true);
    (void)text.GetEffect().Attach(&effect);
    EXPECT_EQ(StringOf(text), "of the effect");
    EXPECT_EQ(text.setString("changed"), status::kOk);
    EXPECT_EQ(StringOf(text), "changed");
    EXPECT_EQ(TextOf(lent.root()), before); // what was lent stays as it is
    std::vector<FPoint> corners(1);
    EXPECT_EQ(text.getBoundingBox(&corners), status::kOk);
    EXPECT_EQ(corners.size(), 1U);
    EXPECT_NE(WrittenNode(text).find("changed"), string::npos);
    EXPECT_EQ(text.SetEffectXML(AsNode(lent.root())), status::kOk);
    EXPECT_EQ(StringOf(text), "of the effect");
    (void)text.GetEffect().Attach(nullptr);
    EXPECT_EQ(StringOf(text), "its own");
}

TEST(Text, ResolvesReferencesIntoTheStringTable)
{
    const ScratchFolder folder;
    std::filesystem::create_directory(folder / "Content");
    WriteFile(folder / "Content/ThemeStrings.xml",
              "<r><stringTable name='T'><string name='hi'>Hello</string><string name='h'>36"
              "</string></stringTable></r>");
    const struct
    {
        const char* words;
        const char* height;
        Status status;
        const char* shown;
        Status heightStatus;
        long shownHeight;
    } cases[] = {
        { "stringRef:T.hi", "stringRef:T.h", status::kOk, "Hello", status::kOk, 36 },
        { "plain", "18", status::kNothingDone, "plain", status::kOk, 18 },
        { "plain", "", status::kNothingDone, "plain", status::kOk, 24 }, // the text's default
        { "plain", "abc", status::kNothingDone, "plain", status::kNothingDone, -1 },
        { "a</font><font fontHeight=\"30\">b", "18", status::kNothingDone, "ab",
          status::kNothingDone, -1 }, // "undetermined"
        { "stringRef:U.hi", "stringRef:U.h", status::kNothingDone, "stringRef:U.hi",
          status::kNothingDone, -1 },
    };
    for (const auto& c : cases) {
        const string path = folder / "Content/a.xml";
        WriteFile(path, TextElement("<font fontHeight='" + string(c.height) + "'>" + c.words +
                                    "</font>"));
        const XmlDocPtr doc = ReadXmlFile(path.c_str());
        CDSMenuText text;
        EXPECT_EQ(text.Read(AsNode(xmlDocGetRootElement(doc.get()))), status::kOk);
        string words;
        long height = -1;
        EXPECT_EQ(text.getString(&words), c.status);
        EXPECT_EQ(words, c.shown);
        EXPECT_EQ(text.get_Height(&height), c.heightStatus);
        EXPECT_EQ(height, c.shownHeight);
        if (string(c.height).starts_with("string")) // the element part has no table
            height = -1;
        EXPECT_EQ(text.getFontHeight(&height), height < 0 ? status::kNothingDone : status::kOk);
        EXPECT_EQ(text.get_Height(nullptr), status::kNullPointer);
        EXPECT_EQ(text.getString(nullptr), status::kNullPointer);
    }
}
