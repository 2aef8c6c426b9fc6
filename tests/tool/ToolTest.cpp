#include "support/XmlFixture.h"

#include <nlohmann/json.hpp>

#include <gmock/gmock.h>

#include <sys/wait.h>

#include <cstdlib>
#include <set>

namespace {

using std::string;
using testing::HasSubstr;
using testing::MatchesRegex;
using Json = nlohmann::json;

const string kTravelDisc = EXAMPLES_FOLDER "/travel-disc/Content/travel-disc.xml";
const string kOldDisc = EXAMPLES_FOLDER "/old-disc/old-disc.xml";

/// The least that loads, its settings given as attributes of "Project".
string ProjectXml(const string& attributes, const string& content = "")
{
    return "<Root><Project Version='900' " + attributes + ">" + content + "</Project></Root>";
}

class Tool : public testing::Test
{
protected:
    /// Runs the command; `Path` and `Written` give arguments in quotes for the shell.
    int Run(const string& arguments)
    {
        const string command = "'" VANTREL_TOOL "' " + arguments + " >'" + m_folder / "out" +
                               "' 2>'" + m_folder / "err" + "'";
        const int status = std::system(command.c_str());
        m_out = ReadFile(m_folder / "out");
        m_err = ReadFile(m_folder / "err");
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    string Path(const string& name) const { return "'" + m_folder / name + "'"; }

    string Written(const string& name, const string& bytes) const
    {
        WriteFile(m_folder / name, bytes);
        return Path(name);
    }

    /// The page's lines from one that starts with `from` up to one that starts with `to`.
    string Lines(const string& from, const string& to) const
    {
        const auto start = m_out.find('\n' + from);
        const auto end = m_out.find('\n' + to, start);
        return start == m_out.npos || end == m_out.npos ? "" : m_out.substr(start, end - start);
    }

    ScratchFolder m_folder;
    string m_out;
    string m_err;
};

TEST_F(Tool, InfoPrintsAPage)
{
    const string file = Written(
        "summer.xml",
        ProjectXml("label='Summer' name='summer' discFormat='11 (AVCHD)' options='1' fitToDisc='0'",
                   "<Titles><Title ID='7' label='Beach'><Commands><PlayMenu code='2' param1='4'/>"
                   "</Commands></Title></Titles>"
                   "<DataFiles><File ID='8' sourcePath='a.txt' destPath='A.TXT'/></DataFiles>"));
    ASSERT_EQ(Run("info " + file), 0) << m_err;
    EXPECT_EQ(m_out, "Summer\n"
                     "  File        " +
                         m_folder / "summer.xml" +
                         "\n"
                         "  Version     900\n"
                         "  Disc        AVCHD, DVD_47, NTSC, Normal_2D\n"
                         "  Options     Archive_TitleImageSources\n"
                         "  Holds       1 title, 0 menus, 1 data file, 0 commands\n"
                         "  Video       MPEG-2, Full_D1, 4x3, 8000 kbit/s, constant rate\n"
                         "  Audio       AC-3, 224 kbit/s, 2 channels\n"
                         "  Display     Letterbox, subpictures RLE\n"
                         "\n"
                         "Titles\n"
                         "  7     Beach\n"
                         "        Tag         Norma\n"
                         "        Encoding    MPEG-2, Full_D1, 4x3, 8000 kbit/s, constant rate; "
                         "AC-3, 224 kbit/s, 2 channels\n"
                         "        Commands    PlayMenu(4, 0)\n"
                         "\n"
                         "Data files\n"
                         "  8  a.txt  A.TXT\n");
}

TEST_F(Tool, InfoGivesOneJsonObjectAFile)
{
    const string odd = Written("odd \xFF.xml", ProjectXml("label='Odd' TVStandard='9'"));
    ASSERT_EQ(Run("info --json '" + kTravelDisc + "' " + odd), 0) << m_err;

    std::istringstream lines(m_out);
    string line;
    ASSERT_TRUE(std::getline(lines, line));
    const Json travel = Json::parse(line);
    EXPECT_EQ(travel["version"], 900);
    EXPECT_EQ(travel["label"], "Three Weeks North");
    EXPECT_EQ(travel["tvStandard"], (Json{ { "number", 2 }, { "name", "PA" } }));
    EXPECT_EQ(travel["options"]["names"],
              (Json{ "Archive_TitleVideoSources", "Cmd_PlayRemainingTitles" }));
    EXPECT_EQ(travel["counts"]["titles"], 3);
    EXPECT_EQ(travel["titles"][1]["label"], "The Road North");
    EXPECT_EQ(travel["titles"][1]["vobSize"], 1189340);
    EXPECT_EQ(travel["titles"][2]["encoding"]["syncToProject"], true);
    EXPECT_EQ(travel["dataFiles"][1]["sourcePath"], "Extras/recipes from Café Ljus.pdf");
    EXPECT_EQ(
        travel["commands"][0],
        (Json{
            { "code", 1 }, { "name", "PlayTitleFromChapter" }, { "param1", 1 }, { "param2", 1 } }));

    ASSERT_TRUE(std::getline(lines, line));
    EXPECT_EQ(Json::parse(line)["tvStandard"], (Json{ { "number", 9 }, { "name", "unknown" } }));
    EXPECT_FALSE(std::getline(lines, line));
}

TEST_F(Tool, InfoPrintsStoryboards)
{
    ASSERT_EQ(Run("info '" + kTravelDisc + "' '" + kOldDisc + "'"), 0) << m_err;
    EXPECT_EQ(Lines("        Storyboard  48.7", "  12 "), R"(
        Storyboard  48.7 s, 25 frames a second, version 9.0
          Panel 0     Footage/ferry.mpg, 0 to 12.5 s, of the file 2 to 14.5 s
            Layer 0     type 3
              Effect 4    Pan and zoom, 0 to 12.5 s
            Layer 5     type 1
              Effect 5    Caption, 1 to 6.5 s
            Own audio   Footage/ferry.mpg, 0 to 12.5 s, volume 0.6, 3 envelope points
            Markers     301 at 0 s, 302 at 4.2 s
          Panel 1     transition, 11.5 to 12.5 s
          Panel 2     Footage/forest-road.mpg, 11.5 to 31.5 s, of the file 0 to 20 s
            Layer 0     type 3
              Motion 7    Picture in picture, Pictures/map.png, 4 to 10 s
                Layer 2     type 0
                  Effect 8    Sepia, 0 to 6 s
            Markers     303 at 12 s
          Panel 3     transition, 30.7 to 31.5 s
          Panel 4     colour, #101B2A, 30.7 to 33.7 s
            Layer 0     type 1
              Effect 10   Caption, 0 to 3 s
          Panel 6     Footage/lake.mpg, 33.7 to 48.7 s, of the file 30 to 60 s, speed 2
          Audio 3     Sound/accordion.wav, 0 to 47.7 s, volume 0.8, 4 envelope points, equalized
          Sections    301 to 302, 302 to 303
          Group 0     Inland, From the ferry to the lake, panels 2 to 7)");
    EXPECT_THAT(m_out, HasSubstr("24.5 s, 29.97 frames a second, of an early version\n"));
}

TEST_F(Tool, InfoPrintsMenus)
{
    ASSERT_EQ(Run("info '" + kTravelDisc + "'"), 0) << m_err;
    EXPECT_EQ(Lines("  30 ", "        Button 150"), R"(
  30    Chapters
        Tag         Chapter, StillMenu, native
        Background  /Backgrounds/harbour-evening.mpg
        Audio       Sound/harbour-evening.wav
        Duration    24.5 s
        Encoding    encoded as the project
        Default     140
        Text 31     "Choose a day", Lindholm Serif 44, #F5EFE6, TopMiddle at (0, 0.8)
          Corners     (-1, 0.8), (-1, -0.7), (1, -0.7), (1, 0.8)
        Button 140  Chapter 1, Command, scheme 1 at (-0.7, 0.2)
          Links       left 160, right 150, upper 170, lower 170
          Active      (-0.95, 0.45) to (-0.45, -0.05)
          Highlight   (-0.92, 0.365) to (-0.48, 0.035)
          Commands    PlayTitleFromChapter(2, 1)
          Text 142    "Day 1", undetermined 18, #000000, TopMiddle at (0, -0.3)
            Corners     (-1.1, -0.1), (-1.1, -0.7), (-0.3, -0.7), (-0.3, -0.1)
          Overlay 141 Thumbnai, Chapter 1, File, Pictures/chapter-01.png
            Corners     (-0.92, 0.365), (-0.92, 0.035), (-0.48, 0.035), (-0.48, 0.365))");
    EXPECT_EQ(Lines("  20 ", "        Button 100"), R"(
  20    Main menu
        Tag         Main
        Template    40
        Duration    30 s
        Encoding    encoded as the project
        Commands    Transition(3, 0)
        Default     100
        Text 21     "Three Weeks North", Lindholm Serif 44, #F5EFE6, TopMiddle at (0, 0.78)
          Corners     (-1.2, 0.78), (-1.2, -1.02), (1.2, -1.02), (1.2, 0.78)
        Overlay 22  Generic, Compass rose, File, Pictures/compass.png
          Corners     (0.964091, -0.329134), (1.02902, -0.622023), (1.32191, -0.557091), (1.25698, -0.264203))");
    EXPECT_THAT(m_out,
                HasSubstr("\n          Overlay 102 Thumbnai, Scene of The Road North, Title 11\n"));
}

TEST_F(Tool, JsonHoldsMenusAndStoryboards)
{
    ASSERT_EQ(Run("info --json '" + kTravelDisc + "'"), 0) << m_err;
    const Json disc = Json::parse(m_out);
    EXPECT_EQ(disc["titles"][0]["storyboard"], nullptr);
    const Json& road = disc["titles"][1]["storyboard"];
    EXPECT_EQ(road["panels"][2]["layers"][0]["effects"][0]["layers"][0]["effects"][0],
              Json::parse(R"({ "id": 8, "kind": "effect", "name": "Sepia",
                               "start": 0.0, "end": 6.0, "mute": false })"));
    EXPECT_EQ(road["panels"][4]["markers"], Json::array());
    EXPECT_EQ(road["panels"][0]["markers"][1],
              Json::parse(R"({ "id": 302, "type": 5, "time": 4.2, "state": 1 })"));
    EXPECT_EQ(road["audio"][0]["envelope"],
              Json::parse("[[0.0, 0.2], [2.0, 0.8], [45.0, 0.8], [47.7, 0.0]]"));
    EXPECT_EQ(road["sections"][1], Json::parse(R"({ "start": 302, "end": 303 })"));

    const Json& menu = disc["menus"][0];
    EXPECT_EQ(menu["templateID"], 40);
    EXPECT_EQ(menu["storyboard"]["duration"], 30);
    EXPECT_EQ(menu["overlays"][0], Json::parse(R"({
        "id": 22, "position": [1.02, -0.68], "zOrder": 4,
        "corners": [[0.964091, -0.329134], [1.02902, -0.622023],
                    [1.32191, -0.557091], [1.25698, -0.264203]],
        "tag": { "number": 1, "names": ["Generic"] }, "label": "Compass rose",
        "sourceType": { "number": 1, "name": "File" }, "sourceID": 0,
        "source": "Pictures/compass.png", "alphaMask": "",
        "highlight": { "number": 0, "name": "None" } })"));
    EXPECT_EQ(menu["texts"][0]["words"], "Three Weeks North");
    EXPECT_EQ(menu["texts"][0]["height"], 44);
    EXPECT_EQ(menu["buttons"][1]["links"],
              Json::parse(R"({ "left": 100, "right": 110, "upper": 130, "lower": 130 })"));
    EXPECT_EQ(disc["menus"][2]["buttons"][0]["activeRegion"], nullptr);
}

/// Adds the names of all members in `value`.
void CollectKeys(const Json& value, std::set<string>& keys)
{
    for (const auto& [key, member] : value.items()) {
        if (value.is_object())
            keys.insert(key);
        if (member.is_structured())
            CollectKeys(member, keys);
    }
}

TEST_F(Tool, EveryKeyIsDocumented)
{
    ASSERT_EQ(Run("info --json '" + kTravelDisc + "'"), 0) << m_err;
    std::set<string> keys;
    CollectKeys(Json::parse(m_out), keys);
    const string manual = ReadFile(EXAMPLES_FOLDER "/../docs/info-json.md");
    for (const string& key : keys)
        EXPECT_TRUE(manual.find('`' + key + '`') != manual.npos ||
                    manual.find('"' + key + '"') != manual.npos)
            << key;
}

TEST_F(Tool, OddContentIsShownAsItIs)
{
    // A reference without a theme, a time that is no number, a layer told twice, a sound without one.
    const string file = Written(
        "odd.xml",
        "<Root><Project Version='900'><Titles><Title ID='7'/></Titles><Menus><Menu "
        "ID='8'><Elements>"
        "<Text ID='9'><effect><plugin_data><html><body>stringRef:A.b</body></html></plugin_data>"
        "</effect></Text><Text ID='10'/>"
        "<Text ID='11'><effect><plugin_data><html><body><font color='#10203040'>?</font></body>"
        "</html></plugin_data></effect></Text></Elements></Menu></Menus></"
        "Project><Productions><Title0007>"
        "<production/><panels><clip key='0'><baseObject><duration>nan</duration></baseObject>"
        "<parentObject><effects><layer key='1'><effect/></layer><layer key='1'><effect/></layer>"
        "</effects><audioList><audio type='smartsound'/></audioList></parentObject></clip></panels>"
        "</Title0007></Productions></Root>");
    ASSERT_EQ(Run("info --json " + file), 0);
    EXPECT_EQ(m_err, "");
    const Json disc = Json::parse(m_out);
    const Json& panel = disc["titles"][0]["storyboard"]["panels"][0];
    EXPECT_EQ(panel["duration"], nullptr);
    EXPECT_EQ(panel["layers"].size(), 1U);
    EXPECT_EQ(panel["audio"], Json::array()); // nothing is known of a "smartsound"
    EXPECT_EQ(disc["menus"][0]["texts"][0]["words"], "stringRef:A.b");
    EXPECT_EQ(disc["menus"][0]["texts"][1]["corners"], Json::array());
    EXPECT_EQ(disc["menus"][0]["texts"][2]["colour"], "#10203040");
    ASSERT_EQ(Run("info " + file), 0);
    EXPECT_THAT(m_out, HasSubstr("0 to unknown s"));
}

TEST_F(Tool, NothingInAFileReachesTheTerminalRaw)
{
    // The beginning of a terminal's command, two controls, and a turn of the writing direction.
    const string file =
        Written("a.xml", ProjectXml("label='&#x9B;2J&#x7F;&#10;&#x202E;fine \xC3\xA9'"));
    ASSERT_EQ(Run("info " + file), 0) << m_err;
    EXPECT_EQ(m_out.substr(0, m_out.find('\n')),
              "\\xC2\\x9B2J\\x7F\\x0A\\xE2\\x80\\xAEfine \xC3\xA9");

    ASSERT_EQ(Run("info " + Path("\x1B[2J")), 1);
    EXPECT_THAT(m_err, HasSubstr("vantrel: " + m_folder / "\\x1B[2J: can't be read: No such file"));
}

struct Wrong
{
    const char* name;
    const char* bytes; ///< of the file
    const char* message;
};

class ToolErrors : public Tool, public testing::WithParamInterface<Wrong>
{};

TEST_P(ToolErrors, AreToldInWordsAndByStatus)
{
    const string file = Written("bad.xml", GetParam().bytes);
    const string good = Written("good.xml", ProjectXml("label='Good'"));
    EXPECT_EQ(Run("info --json " + file + " " + good), 1);
    EXPECT_THAT(m_err, HasSubstr("vantrel: " + m_folder / "bad.xml: " + GetParam().message + "\n"));
    EXPECT_EQ(Json::parse(m_out)["label"], "Good"); // and nothing but that

    EXPECT_EQ(Run("save " + file + " " + good), 1);
    EXPECT_EQ(m_out, "");
    EXPECT_THAT(ReadFile(m_folder / "good.xml"), HasSubstr("label='Good'"));
}

INSTANTIATE_TEST_SUITE_P(
    Files, ToolErrors,
    testing::Values(Wrong{ "OldVersion", "<Root><Project Version='799'/></Root>",
                           "version 799 is too old: 800 or later is needed (0xC2010143)" },
                    Wrong{ "NoVersion", "<Root><Project/></Root>",
                           "has no version: 800 or later is needed (0xC2010143)" },
                    Wrong{ "NoProject", "<Root/>",
                           "has no version: 800 or later is needed (0xC2010143)" },
                    Wrong{ "Truncated", "<Root><Project Version='900'",
                           "is no well-formed XML file (0xC2010142)" },
                    Wrong{ "Empty", "", "is no well-formed XML file (0xC2010142)" }),
    [](const auto& row) { return row.param.name; });

TEST_F(Tool, FoldersAndMissingFilesAreNamed)
{
    EXPECT_EQ(Run("info '" + m_folder.path() + "'"), 1);
    EXPECT_THAT(m_err, HasSubstr(": is a folder (0xC2010142)\n"));
    EXPECT_EQ(Run("save '" + kTravelDisc + "' " + Path("no/where.xml")), 1);
    EXPECT_THAT(m_err, HasSubstr(": can't be written (0xC2010144)\n"));
    EXPECT_EQ(Run("save '" + kTravelDisc + "' ''"), 1);
    EXPECT_THAT(m_err, HasSubstr(": an empty path can't be written (0x80000003)\n"));
}

TEST_F(Tool, SavingAgainGivesTheSameBytes)
{
    for (const string& project : { kTravelDisc, kOldDisc }) {
        ASSERT_EQ(Run("save '" + project + "' " + Path("disc.xml")), 0) << m_err;
        const string first = ReadFile(m_folder / "disc.xml");
        EXPECT_THAT(first, HasSubstr(" name=\"disc\" "));
        ASSERT_EQ(Run("save " + Path("disc.xml") + " " + Path("disc.xml")), 0) << m_err;
        EXPECT_EQ(ReadFile(m_folder / "disc.xml"), first);
        EXPECT_EQ(m_out + m_err, "");
    }
}

TEST_F(Tool, WrongUseIsExplained)
{
    for (const char* arguments : { "", "info", "info --bad x", "save one", "save a b c", "burn" }) {
        EXPECT_EQ(Run(arguments), 2) << arguments;
        EXPECT_EQ(m_out, "") << arguments;
        EXPECT_NE(m_err, "") << arguments;
    }
    EXPECT_EQ(Run("--help"), 0);
    EXPECT_THAT(m_out, HasSubstr("Exit status: 0 done"));
    EXPECT_EQ(Run("--version"), 0);
    EXPECT_THAT(m_out, MatchesRegex("vantrel [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST_F(Tool, AFullOutputIsAProblem)
{
    const string command = "'" VANTREL_TOOL "' info '" + kTravelDisc + "' >/dev/full 2>/dev/null";
    EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 1);
}

} // namespace
