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
    <string name="Commented"><!--no--><b>no</b>yes</string><string>nameless</string>
    <string name="Quoted">'
'<i/>'x'</string>
    <string name="Twice">old</string><string name="Twice">new</string>
    <String name="Case">no</String>
  </stringTable>
  <stringTable><string name="Play">nameless</string></stringTable>
  <other name="Other"><string name="Play">no</string></other>
  <stringTable name="None"/>
  <stringTable name="Replaced"><string name="Gone">old</string></stringTable>
  <stringTable name="Replaced"><string name="Here">new</string></stringTable>
</strings>)";

TEST(StringReference, ResolvesThroughItsTable)
{
    struct Case
    {
        const char* text;
        const char* found; ///< null when it doesn't resolve
    };
    // clang-format off
    constexpr Case cases[] = {
        { "stringRef:Buttons.Play", "Play it" },
        { "stringRef:Buttons.a.b", " kept\n as it is " },
        { "See stringRef:Buttons.Play", "Play it" },
        { "stringRef:Buttons.Nope", "" },
        { "stringRef:Buttons.Empty", "" },
        { "stringRef:Buttons.Commented", "yes" },
        { "stringRef:Buttons.Quoted", "'x'" },
        { "stringRef:Buttons.Twice", "new" },
        { "stringRef:Buttons.Case", "" },
        { "stringRef:Replaced.Gone", "" },
        { "stringRef:Nope.Play", nullptr },
        { "stringRef:Other.Play", nullptr },
        { "stringRef:None.Play", nullptr },
        { "stringRef:.Play", nullptr },
        { "stringRef:Buttons", nullptr },
        { "Hello.", nullptr },
        { "a.stringRef:Buttons.Play", nullptr },
        { "", nullptr },
    };
    // clang-format on
    const XmlText xml{ kTables };
    CResourceLoader loader;
    EXPECT_FALSE(loader.ParseString("stringRef:Buttons.Play", nullptr)) << "without tables";
    ASSERT_TRUE(loader.LoadStringTable(xml.root()));
    for (const Case& row : cases) {
        string out = "untouched";
        EXPECT_EQ(loader.ParseString(row.text, &out), row.found != nullptr) << row.text;
        EXPECT_EQ(out, row.found ? row.found : "untouched") << row.text;
    }
}

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
    const string pipe = folder / "pipe.xml";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0); // opened, it would wait for a writer
    EXPECT_EQ(load(pipe.c_str()), std::pair(false, "can not loader resource file: " + pipe + "\n"));
    WriteFile(path, "<s/>");
    EXPECT_EQ(load(path.c_str()), std::pair(false, string("empty root element")));
    EXPECT_EQ(Resolve(loader, "stringRef:t.k"), "text");
}

TEST(StringTableFile, IsAsItStandsHoweverOftenItIsAsked)
{
    const ScratchFolder folder;
    const string one = folder / "one.xml";
    const string two = folder / "two.xml";
    WriteFile(two, OneString("u", "two"));
    CResourceLoader early;
    const auto ask = [&](const string& path, const string& text) {
        CResourceLoader fresh;
        EXPECT_TRUE(fresh.InitWithXmlFile(path.c_str()));
        EXPECT_EQ(Resolve(fresh, "stringRef:t.k"), path == one ? text : "unresolved");
        EXPECT_TRUE(early.InitWithXmlFile(path.c_str()));
        EXPECT_EQ(Resolve(early, "stringRef:t.k"), text);
    };
    for (const char* text : { "old", "mid", "new" }) { // of one length, in quick succession
        WriteFile(one, OneString("t", text));
        ask(one, text);
        ask(one, text);
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(40)); // what is new isn't remembered
    for (const string& path : { one, one, two, two, one })
        ask(path, "new");
    EXPECT_EQ(Resolve(early, "stringRef:u.k"), "two");
    WriteFile(one, OneString("t", "end"));
    ask(one, "end");
}

TEST(NodeStringReference, GoesThroughTheThemeOfTheNodesDocument)
{
    const ScratchFolder folder;
    const string content = folder / "Theme/Content";
    std::filesystem::create_directories(content + "/sub");
    WriteFile(content + "/ThemeStrings.xml", OneString("t", "Words"));
    WriteFile(content + "/sub/menu.xml", "<Titles/>");
    WriteFile(folder / "plain.xml", "<Titles/>");

    string out = "untouched";
    CDSList node(eNodeTitles);
    EXPECT_FALSE(node.ParseResString("stringRef:t.k", &out));
    EXPECT_EQ(out, "untouched") << "a node that was never read";

    const auto read = [&](const string& path) {
        const vantrel::XmlDocPtr doc = vantrel::ReadXmlFile(path.c_str());
        (void)node.Read(vantrel::AsNode(xmlDocGetRootElement(doc.get()))); // has no attributes
    };
    read(folder / "plain.xml");
    EXPECT_EQ(Printed([&] { return node.ParseResString("stringRef:t.k", &out); }),
              std::pair(false, "can not loader resource file: " + (folder / "plain.xml") +
                                   "ThemeStrings.xml\n"));
    EXPECT_EQ(out, "stringRef:t.k");
    read(content + "/sub/menu.xml");
    EXPECT_TRUE(node.ParseResString("stringRef:t.k", &out));
    EXPECT_EQ(out, "Words");
    EXPECT_FALSE(node.ParseResString("Arial", &out));
    EXPECT_EQ(out, "Arial");

    const std::filesystem::path former = std::filesystem::current_path();
    for (const char* relative : { "Content/sub/menu.xml", "ThemeStrings.xml" }) {
        std::filesystem::current_path(relative[0] == 'C' ? folder / "Theme" : content);
        read(relative);
        std::filesystem::current_path(former); // where it is asked plays no part
        EXPECT_TRUE(node.ParseResString("stringRef:t.k", &out)) << relative;
    }
}

} // namespace
