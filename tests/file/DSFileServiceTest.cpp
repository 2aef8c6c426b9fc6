#include "project/DSFileService.h"

#include "disc/DSProjectData.h"
#include "disc/DSTitle.h"
#include "support/NodeFixture.h"

#include <sys/stat.h>

using std::string;
using namespace vantrel;

namespace {

string Label(const CDSProjectData& project)
{
    string label;
    EXPECT_EQ(project.get_Label(&label), status::kOk);
    return label;
}

/// Loads without showing what a failure prints; `printed` receives that.
Status Load(const string& path, CDSProjectData& project, string* printed = nullptr)
{
    const SilentXml silent;
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const Status result = CDSFileService().LoadProject(path.c_str(), &project);
    (void)testing::internal::GetCapturedStderr();
    const string text = testing::internal::GetCapturedStdout();
    if (printed)
        *printed = text;
    return result;
}

/// What a load and a save make of a file.
string Resaved(const string& path)
{
    CDSProjectData project;
    EXPECT_EQ(Load(path, project), status::kOk);
    EXPECT_EQ(CDSFileService().SaveProject(path, &project), status::kOk);
    return ReadFile(path);
}

constexpr const char* kFullProject =
    R"x(<Root xmlns:dt="urn:schemas-microsoft-com:datatypes"><Project ID="5" Version="900" label="Été"
 name="old" DiscSize="8 (x)" discFormat="7 ()" TVStandard="99" options="65" fitToDisc="yes"
 onDiscSizeKB="18446744073709551615" remainingCaptures="-3" ThemeSource="a&lt;b" onDiscProject="1"
 doCompression="0" discVideoType="2"><Titles><Title ID="40" tag="3" label="x&#10;y" vobSize="1234567"
 flags="-1"><Commands><PlayMenu code="4" param1="9"><file dt:dt="string">f</file><other/><effect
 a="&#9;"><b/></effect></PlayMenu></Commands></Title><Title ID="41"/></Titles><DataFiles><File ID="3"
 sourcePath="C:\a b\%41.txt" destPath="é" tag="18446744073709551611"/></DataFiles><Commands><x/>
<StopPlayback code="-4"/></Commands><Encoding HDVideoFormat="1 (x)" syncToProject="1"/></Project>
<Productions/></Root>)x";

} // namespace

TEST(FileService, LoadAndSaveIsAFixedPoint)
{
    const ScratchFolder folder;
    WriteFile(folder / "disc.xml", kFullProject);
    const string saved = Resaved(folder / "disc.xml");
    EXPECT_EQ(Resaved(folder / "disc.xml"), saved);

    for (
        const char* part :
        { R"x(<Project DiscSize="8 (BluRay_25)" ID="0" TVStandard="99 (unknown)" ThemeSource="a&lt;b")x",
          R"x( Version="900")x", R"x( label="Été" name="disc")x",
          R"x(onDiscSizeKB="18446744073709551615")x",
          R"x(<Title ID="40" discIndex="0" flags="18446744073709551615" label="x&#10;y")x",
          R"x(<file dt:dt="string">f</file>)x", R"x(<effect a="&#9;">)x",
          R"x(vobSize="1.23457e+06")x",
          R"x(sourcePath="C:\a b\%41.txt" tag="18446744073709551611")x",
          R"x(<PlayTitleFromChapter code="-4" param1="0" param2="0"/>)x",
          R"x(videoFormat="1 (AVC/H.264)")x", R"x(syncToProject="1")x" })
        EXPECT_NE(saved.find(part), string::npos) << part;
    EXPECT_EQ(saved.find("other"), string::npos);
    EXPECT_EQ(saved.find("xmlns:dt"), saved.rfind("xmlns:dt")); // declared once
}

TEST(FileService, ANewProjectHasTheSkeletonOfAFile)
{
    const ScratchFolder folder;
    CDSProjectData project;
    ASSERT_EQ(CDSFileService().SaveProject("file::" + folder / "a.xml", &project), status::kOk);
    EXPECT_EQ(
        ReadFile(folder / "a.xml"),
        R"x(<?xml version="1.0" encoding="UTF-8"?>
<Root xmlns:dt="urn:schemas-microsoft-com:datatypes">
  <Project DiscSize="4 (DVD_47)" ID="0" TVStandard="1 (NTSC)" ThemeSource="" Version="900" )x"
        R"x(discFormat="1 (DVD_Video)" discVideoType="1 (Normal_2D)" doCompression="1" fitToDisc="0" )x"
        R"x(label="" name="a" onDiscProject="0" onDiscSizeKB="0" options="0 ()" remainingCaptures="-1">
    <Titles NumItems="0"/>
    <Menus NumItems="0"/>
    <DataFiles NumItems="0"/>
    <Commands/>
    <Encoding VBREncoding="0" aspectRatio="1 (4x3)" audioBitrate="224000" audioChannels="2" )x"
        R"x(audioFormat="3 (AC-3)" subpictureFormat="1 (RLE)" syncToProject="0" twoPassEncoding="0" )x"
        R"x(videoBitrate="8000000" videoFormat="0 (MPEG-2)" videoResolution="1 (Full_D1)" )x"
        R"x(wideDisplayMode="1 (Letterbox)"/>
  </Project>
  <Productions/>
</Root>
)x");
    string directory;
    ASSERT_EQ(project.get_ProjectDirectory(&directory), status::kOk);
    EXPECT_EQ(directory, folder.path());
    EXPECT_EQ(Label(project), "a"); // shows from the next save on

    ASSERT_EQ(project.put_Label("mine"), status::kOk);
    ASSERT_EQ(CDSFileService().SaveProjectAtomic(folder / "b.xml", &project), status::kOk);
    EXPECT_NE(ReadFile(folder / "b.xml").find(R"x(label="mine" name="b")x"), string::npos);
    EXPECT_EQ(Label(project), "mine");
}

TEST(FileService, TheVersionDecidesWhetherAFileIsRead)
{
    const ScratchFolder folder;
    const std::pair<const char*, Status> cases[] = {
        { "<Project Version='800' label='new'/>", status::kOk },
        { "<Project Version='799' label='new'/>", status::kOldVersion },
        { "<Project Version='900abc' label='new'/>", status::kOk },
        { "<Project Version='5000' label='new'/>", status::kOk },
        { "<Project label='new'/>", status::kOldVersion },
        { "<Project xmlns:p='urn:p' p:Version='900' label='new'/>", status::kOldVersion },
        { "<x><Project Version='900' label='new'/></x>", status::kOldVersion },
    };
    for (const auto& [text, result] : cases) {
        WriteFile(folder / "a.xml", string("<AnyName>") + text + "</AnyName>");
        CDSProjectData project;
        string printed;
        EXPECT_EQ(Load(folder / "a.xml", project, &printed), result) << text;
        EXPECT_EQ(Label(project) + printed, result == status::kOk ? "new" : "") << text;
    }
}

TEST(FileService, ABadFileIsRefusedWithAMessageAndChangesNothing)
{
    string deep;
    for (int i = 0; i < 100000; ++i)
        deep += "<Title>";
    const ScratchFolder folder;
    CDSProjectData project;
    for (const string& bytes :
         { string(), string("PK\x03\x04 not xml"), string("<?xml version='1.0'?><!-- nothing -->"),
           string(kFullProject).substr(0, 700), deep,
           string("<!DOCTYPE r [<!ENTITY a 'aaaaaaaaaaaaaaaaaaaaaaaa'>"
                  "<!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;'>"
                  "<!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;'>"
                  "<!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;'>"
                  "<!ENTITY e '&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;'>]>"
                  "<r><Project Version='900' label='&e;&e;&e;&e;&e;&e;'/></r>") }) {
        WriteFile(folder / "a.xml", bytes);
        string printed;
        EXPECT_EQ(Load(folder / "a.xml", project, &printed), status::kUnreadableFile);
        EXPECT_EQ(printed, "LoadProject: could not parse file " + folder / "a.xml" + "\n");
        EXPECT_EQ(Label(project), "") << bytes.substr(0, 60);
    }
}

TEST(FileService, WhatIsNoReadableFileIsTold)
{
    const ScratchFolder folder;
    CDSProjectData project;
    EXPECT_EQ(Load(folder.path(), project), status::kUnreadableFile);
    EXPECT_EQ(Load(folder / "none.xml", project), status::kUnreadableFile);
    if (geteuid() != 0) { // root reads everything
        WriteFile(folder / "shut.xml", kFullProject);
        chmod((folder / "shut.xml").c_str(), 0);
        EXPECT_EQ(Load(folder / "shut.xml", project), status::kUnreadableFile);
    }
    CDSFileService service;
    EXPECT_EQ(service.LoadProject(nullptr, &project), status::kNullPointer);
    EXPECT_EQ(service.LoadProject("a", nullptr), status::kNullPointer);
}

TEST(FileService, ArgumentsOfASaveAreChecked)
{
    const ScratchFolder folder;
    const EmptyXml xml;
    xmlNode* loose = xmlNewNode(nullptr, XmlChars("Root"));
    const XmlNodePtr holder{ loose };
    CDSProjectData project;
    CDSFileService service;
    EXPECT_EQ(service.SaveProject(folder / "a.xml", nullptr), status::kNullPointer);
    EXPECT_EQ(service.SaveProjectAux(folder / "a.xml", nullptr), status::kNullPointer);
    EXPECT_EQ(service.SaveProject("", &project), status::kBadArgument);
    EXPECT_EQ(service.SaveProject("file::", &project), status::kBadArgument);
    EXPECT_EQ(service.WriteProjectXML(nullptr, &project), status::kNullPointer);
    EXPECT_EQ(service.WriteProjectXML(AsNode(loose), &project), status::kNullPointer);
    EXPECT_EQ(service.WriteProjectXML(AsNode(xml.root()), nullptr), status::kNullPointer);
    EXPECT_EQ(project.SaveXML(nullptr), status::kNullPointer);
    EXPECT_EQ(project.LoadXML(nullptr), status::kNoProjectNode);
    EXPECT_EQ(service.ReadProjectXML(nullptr, &project), status::kNoProjectNode);
    EXPECT_EQ(service.SaveProject(folder / "none/a.xml", &project), status::kUnwritableFile);
}

/// Whatever a number's text is, the load neither fails nor changes its mind on the next save.
TEST(FileService, HostileValuesInEveryAttributeSurviveTwoSaves)
{
    const ScratchFolder folder;
    CDSProjectData blank;
    const auto title = std::make_unique<CDSTitle>();
    ASSERT_EQ(title->FinalConstruct(), status::kOk);
    blank.GetChild(0)->AddChild(title.get(), true);
    ASSERT_EQ(CDSFileService().SaveProject(folder / "blank.xml", &blank), status::kOk);
    const string text = ReadFile(folder / "blank.xml");

    for (const char* value : { "-1", "99999999999999999999999", "-99999999999999999999999", "nan",
                               "1e999", "0x7FFFFFFF", "", " 7 up", "&#xFFFD;", "%s%n" }) {
        SCOPED_TRACE(value);
        string hostile = text;
        for (std::size_t at = hostile.find("Project ");
             (at = hostile.find("=\"", at)) != string::npos;) {
            at += 2;
            const std::size_t end = hostile.find('"', at);
            const bool isVersion = hostile.compare(at - 9, 7, "Version") == 0;
            if (!isVersion)
                hostile.replace(at, end - at, value);
        }
        WriteFile(folder / "a.xml", hostile);
        const string saved = Resaved(folder / "a.xml");
        EXPECT_EQ(Resaved(folder / "a.xml"), saved);
    }
}

TEST(FileService, NoTextOfAnApplicationMakesAnUnreadableFile)
{
    const ScratchFolder folder;
    CDSProjectData project, again;
    CDSTitle title;
    ASSERT_EQ(title.put_Label(string("\x00\x01\xC3(\xED\xA0\x80]]>\"'&", 14)), status::kOk);
    project.GetChild(0)->AddChild(&title, true);
    ASSERT_EQ(project.put_Label("\xFF\xFE"), status::kOk);
    ASSERT_EQ(CDSFileService().SaveProject(folder / "a.xml", &project), status::kOk);
    ASSERT_EQ(Load(folder / "a.xml", again), status::kOk);
    EXPECT_EQ(Label(again), "��");
    EXPECT_EQ(again.GetChild(0)->GetNumChildren(), 1);
}
