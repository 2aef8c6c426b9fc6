#include "project/ResourceLoader.h"

#include "project/DSList.h"
#include "support/XmlFixture.h"
#include "xml/XmlFile.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <utility>

using std::string;

namespace {

constexpr const char* kTables = R"(<strings>
  <stringTable name="Buttons">
    <string name="Play">Play it</string>
    <string name="a.b"> kept
 as it is </string>
    <string name="Empty"/>
    <string name="Commented"><!--no--><b>no</b>yes</string>
    <string name="Quoted">'
'<i/>'x'</string>
    <string name="Twice">old</string><string name="Twice">new</string>
    <string>nameless</string>
    <String name="Case">no</String>
  </stringTable>
  <stringTable><string name="Play">nameless</string></stringTable>
  <other name="Other"><string name="Play">no</string></other>
  <stringTable name="None"/>
  <stringTable name="Replaced"><string name="Gone">old</string></stringTable>
  <stringTable name="Replaced"><string name="Here">new</string></stringTable>
</strings>)";

struct ReferenceCase
{
    const char* name;
    const char* text;
    const char* found; ///< null when it doesn't resolve
};

class StringReference : public testing::TestWithParam<ReferenceCase>
{};

TEST_P(StringReference, ResolvesThroughItsTable)
{
    const XmlText xml{ kTables };
    CResourceLoader loader;
    string out = "untouched";
    EXPECT_FALSE(loader.ParseString(GetParam().text, &out)) << "without tables";
    ASSERT_TRUE(loader.LoadStringTable(xml.root()));
    EXPECT_EQ(loader.ParseString(GetParam().text, &out), GetParam().found != nullptr);
    EXPECT_EQ(out, GetParam().found ? GetParam().found : "untouched");
}

INSTANTIATE_TEST_SUITE_P(
    Texts, StringReference,
    testing::Values(ReferenceCase{ "Plain", "stringRef:Buttons.Play", "Play it" },
                    ReferenceCase{ "KeyWithDots", "stringRef:Buttons.a.b", " kept\n as it is " },
                    ReferenceCase{ "TextInFront", "See stringRef:Buttons.Play", "Play it" },
                    ReferenceCase{ "UnknownKey", "stringRef:Buttons.Nope", "" },
                    ReferenceCase{ "NoText", "stringRef:Buttons.Empty", "" },
                    ReferenceCase{ "TextBehindAComment", "stringRef:Buttons.Commented", "yes" },
                    ReferenceCase{ "EmptyQuotesAreNoText", "stringRef:Buttons.Quoted", "'x'" },
                    ReferenceCase{ "TheLaterKey", "stringRef:Buttons.Twice", "new" },
                    ReferenceCase{ "NamesHaveCase", "stringRef:Buttons.Case", "" },
                    ReferenceCase{ "TheLaterTableAlone", "stringRef:Replaced.Gone", "" },
                    ReferenceCase{ "UnknownTable", "stringRef:Nope.Play", nullptr },
                    ReferenceCase{ "OtherElement", "stringRef:Other.Play", nullptr },
                    ReferenceCase{ "TableWithoutStrings", "stringRef:None.Play", nullptr },
                    ReferenceCase{ "NamelessTable", "stringRef:.Play", nullptr },
                    ReferenceCase{ "NoDot", "stringRef:Buttons", nullptr },
                    ReferenceCase{ "NoPrefix", "Hello.", nullptr },
                    ReferenceCase{ "DotAhead", "a.stringRef:Buttons.Play", nullptr },
                    ReferenceCase{ "Empty", "", nullptr }),
    [](const auto& row) { return row.param.name; });

string OneString(const string& table, const string& text)
{
    return "<s><stringTable name='" + table + "'><string name='k'>" + text +
           "</string></stringTable></s>";
}

string Resolve(CResourceLoader& loader, const char* text)
{
    string out;
    return loader.ParseString(text, &out) ? out : "unresolved";
}

/// What `load` prints, and whether it succeeds.
template <class Load>
std::pair<bool, string> Printed(Load load)
{
    testing::internal::CaptureStdout();
    const bool loaded = load();
    return { loaded, testing::internal::GetCapturedStdout() };
}

TEST(StringTableFile, FailuresAreReportedAndLeaveTheTables)
{
    const ScratchFolder folder;
    const string path = folder / "Strings 100%.xml";
    CResourceLoader loader;
    WriteFile(path, OneString("t", "text"));
    EXPECT_TRUE(loader.InitWithXmlFile(path.c_str()));

    const auto load = [&](const char* file) {
        return Printed([&] { return loader.InitWithXmlFile(file); });
    };
    const string missing = folder / "none.xml";
    EXPECT_EQ(load(nullptr), std::pair(false, string()));
    EXPECT_EQ(load(missing.c_str()),
              std::pair(false, "can not loader resource file: " + missing + "\n"));
    WriteFile(path, "<s/>");
    EXPECT_EQ(load(path.c_str()), std::pair(false, string("empty root element")));
    EXPECT_EQ(Resolve(loader, "stringRef:t.k"), "text");
}

TEST(StringTableFile, EveryChangeOfAFileIsSeen)
{
    const ScratchFolder folder;
    const string path = folder / "s.xml";
    CResourceLoader early;
    for (const char* text : { "one", "two", "one", "six" }) { // of one length, in quick succession
        WriteFile(path, OneString("t", text));
        for (int again = 0; again < 3; ++again) {
            CResourceLoader fresh;
            EXPECT_TRUE(early.InitWithXmlFile(path.c_str()));
            EXPECT_TRUE(fresh.InitWithXmlFile(path.c_str()));
            EXPECT_EQ(Resolve(early, "stringRef:t.k"), text);
            EXPECT_EQ(Resolve(fresh, "stringRef:t.k"), text);
        }
    }
}

TEST(StringTableFile, RememberedTablesComeBackWholeAndBesideOthers)
{
    const ScratchFolder folder;
    const string one = folder / "one.xml";
    const string two = folder / "two.xml";
    WriteFile(one, OneString("t", "one"));
    WriteFile(two, OneString("u", "two"));
    std::this_thread::sleep_for(std::chrono::milliseconds(40)); // what is new isn't remembered

    CResourceLoader loader;
    for (const string& path : { one, one, two, two, one }) {
        CResourceLoader fresh;
        EXPECT_TRUE(fresh.InitWithXmlFile(path.c_str()));
        EXPECT_EQ(Resolve(fresh, "stringRef:t.k"), path == one ? "one" : "unresolved");
        EXPECT_TRUE(loader.InitWithXmlFile(path.c_str()));
        EXPECT_EQ(Resolve(loader, "stringRef:t.k"), "one");
    }
    EXPECT_EQ(Resolve(loader, "stringRef:u.k"), "two");

    ASSERT_EQ(std::remove(one.c_str()), 0);
    EXPECT_FALSE(Printed([&] { return loader.InitWithXmlFile(one.c_str()); }).first);
}

TEST(NodeStringReference, GoesThroughTheThemeOfTheNodesDocument)
{
    const ScratchFolder folder;
    const string content = folder / "Theme/Content";
    std::filesystem::create_directories(content + "/sub");
    WriteFile(content + "/ThemeStrings.xml", OneString("t", "Words"));
    WriteFile(content + "/sub/menu.xml", "<Titles/>");
    WriteFile(folder / "plain.xml", "<Titles/>");

    CDSList node(eNodeTitles);
    string out = "untouched";
    EXPECT_FALSE(node.ParseResString("stringRef:t.k", &out));
    EXPECT_EQ(out, "untouched") << "a node that was never read";

    const auto read = [&](const string& path) {
        const vantrel::XmlDocPtr doc = vantrel::ReadXmlFile(path.c_str());
        (void)node.Read(vantrel::AsNode(xmlDocGetRootElement(doc.get())));
    };
    read(content + "/sub/menu.xml");
    EXPECT_TRUE(node.ParseResString("stringRef:t.k", &out));
    EXPECT_EQ(out, "Words");
    EXPECT_FALSE(node.ParseResString("Arial", &out));
    EXPECT_EQ(out, "Arial");

    CDSList plain(eNodeTitles);
    const vantrel::XmlDocPtr doc = vantrel::ReadXmlFile((folder / "plain.xml").c_str());
    (void)plain.Read(vantrel::AsNode(xmlDocGetRootElement(doc.get())));
    EXPECT_EQ(Printed([&] { return plain.ParseResString("stringRef:t.k", &out); }),
              std::pair(false, "can not loader resource file: " + (folder / "plain.xml") +
                                   "ThemeStrings.xml\n"));
    EXPECT_EQ(out, "stringRef:t.k");
}

} // namespace
