#include "support/XmlFixture.h"

#include <nlohmann/json.hpp>

#include <gmock/gmock.h>

#include <sys/wait.h>

#include <cstdlib>

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
