#include "disc/DSMenu.h"

#include "disc/DSMenuButton.h"
#include "disc/DSMenuColours.h"
#include "disc/DSMenuOverlay.h"
#include "disc/DSMenuText.h"
#include "disc/DSProjectData.h"
#include "project/DSFileService.h"
#include "storyboard/QZBaseSBD.h"
#include "storyboard/SbdUtils.h"
#include "support/NodeFixture.h"

using std::string;
using namespace vantrel;

namespace {

double StoryboardDuration(CDSMenu& menu)
{
    return getSbdDuration(CDSFileService().GetProductionObj(&menu));
}

/// A template: the root stands for the element of a storyboard.
string Template(const string& version, double duration)
{
    return "<Any xmlns:dt='urn:schemas-microsoft-com:datatypes'><version dt:dt='string'>" +
           version +
           "</version><panels><clip key='0' type='file source'><baseObject><duration dt:dt='r8'>" +
           std::to_string(duration) +
           "</duration></baseObject><sourceFile><fileName dt:dt='string'>bg.mpg</fileName>"
           "</sourceFile></clip></panels></Any>";
}

/// A theme folder with a template, and a project in it.
class Theme
{
public:
    explicit Theme(const char* name = "Theme")
    {
        std::filesystem::create_directories(m_folder / name + "/Content");
        m_content = m_folder / name + "/Content/";
        WriteFile(m_content + "bg.pvtx", Template("8.5", 12));
    }
    const string& content() const { return m_content; }

    /// Loads a project whose menus are these elements.
    void Load(const string& menus, CDSProjectData& project) const
    {
        const SilentXml silent;
        WriteFile(m_content + "a.xml",
                  "<R><Project Version='900'><Menus>" + menus + "</Menus></Project></R>");
        testing::internal::CaptureStderr();
        EXPECT_EQ(CDSFileService().LoadProject((m_content + "a.xml").c_str(), &project),
                  status::kOk);
        (void)testing::internal::GetCapturedStderr();
    }

private:
    ScratchFolder m_folder;
    string m_content;
};

CDSMenu& MenuOf(CDSProjectData& project, long index = 1)
{
    CDSMenu* menu = nullptr;
    EXPECT_EQ(project.GetMenu(index, &menu), status::kOk);
    return *menu;
}

} // namespace

TEST(Menu, IsMadeWithItsChildrenAndAnEmptyStoryboard)
{
    const IdCounterGuard guard(1);
    CDSMenu menu;
    const eNodeType fixed[] = { eNodePalette,      eNodeButtonScheme, eNodeButtonScheme,
                                eNodeButtonScheme, eNodeSPUColours,   eNodeLayoutRect,
                                eNodeCommands,     eNodeEncoding,     eNodeElements };
    ASSERT_EQ(menu.GetNumChildren(), 9);
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(menu.GetChild(i)->GetType(), fixed[i]);
        EXPECT_EQ(menu.GetChild(i)->GetID(), i + 1);
    }
    EXPECT_EQ(menu.GetChild(2)->GetObjectTagName(), "ButtonScheme2");

    CQZBaseSBD* storyboard = nullptr;
    EXPECT_EQ(menu.GetProduction(&storyboard), status::kOk);
    EXPECT_EQ(menu.FinalConstruct(), status::kNothingDone); // all is there
    EXPECT_EQ(menu.FinalRelease(), status::kOk);
    EXPECT_EQ(menu.GetProduction(&storyboard), status::kNothingDone);
    EXPECT_EQ(storyboard, nullptr);
    EXPECT_EQ(menu.LoadBkngProdFromPVTX("x.pvtx"), status::kOk); // nowhere to load to
    EXPECT_EQ(menu.CreateProduction(), status::kOk);
}

TEST(Menu, PicksItsDefaultButtonAmongItsButtons)
{
    CDSMenu menu;
    CProjectNode& elements = *menu.GetChild(8);
    CDSMenuOverlay overlay;
    CDSMenuButton first, second;
    overlay.SetID(1);
    first.SetID(2);
    second.SetID(3);
    for (CProjectNode* element : std::initializer_list<CProjectNode*>{ &overlay, &first, &second })
        elements.AddChild(element, true);

    long id = 0;
    EXPECT_EQ(menu.put_DefaultButton(2), status::kOk);
    for (const long bad : { 1L, 4L, -1L, elements.GetID() })
        EXPECT_EQ(menu.put_DefaultButton(bad), status::kNotAButton) << bad;
    EXPECT_EQ(menu.get_DefaultButton(&id), status::kOk);
    EXPECT_EQ(id, 2);

    long count = 0;
    EXPECT_EQ(menu.get_ButtonCount(&count), status::kOk);
    EXPECT_EQ(count, 2);
    CDSMenuButton* button = nullptr;
    EXPECT_EQ(menu.GetButton(1, &button), status::kOk);
    EXPECT_EQ(button, &first);
    for (const long outside : { 0L, 3L, std::numeric_limits<long>::min() })
        EXPECT_EQ(menu.GetButton(outside, &button), status::kNothingDone);
    EXPECT_EQ(button, &first);
}

TEST(Menu, PacksItsLayout)
{
    CDSMenu menu;
    CDSLayout layout(1);
    const auto packed = [&](const char* element) {
        EXPECT_EQ(ReadNode(menu, element), status::kOk);
        EXPECT_EQ(menu.get_ButtonLayout(&layout), status::kOk);
        return static_cast<unsigned long>(layout);
    };
    EXPECT_EQ(packed("<Menu btnLayout='0x0'/>"), static_cast<unsigned long>(CDSLayout()));
    EXPECT_EQ(packed("<Menu btnLayout='0x0000A000'/>"), 0xA000UL);
    EXPECT_EQ(packed("<Menu btnLayout='17'/>"), 0xFFFFFFFFFFFFUL); // the bits that a copy takes
    EXPECT_EQ(packed("<Menu ID='3'/>"), 0xFFFFFFFFFFFFUL);
    EXPECT_NE(WrittenNode(menu).find(R"x(btnLayout="0xFFFFFFFF")x"), string::npos);

    EXPECT_EQ(menu.put_LayoutRect(nullptr), status::kNullPointer);
    EXPECT_EQ(menu.get_LayoutRect(nullptr), status::kNullPointer);
    FloatRect rect{ 1, 2, 3, 4 };
    FloatRect got;
    EXPECT_EQ(menu.put_LayoutRect(&rect), status::kOk);
    EXPECT_EQ(menu.get_LayoutRect(&got), status::kOk);
    EXPECT_EQ(got.bottom, 4);
}

TEST(Menu, ReadsAndWritesTheNativeFormOnRequest)
{
    CDSMenu menu;
    EXPECT_EQ(ReadNode(menu, "<Menu background='b' audio='a' duration='4'/>"), status::kOk);
    const string ordinary = WrittenNode(menu);
    for (const char* name : { "background=", "audio=", "duration=" })
        EXPECT_EQ(ordinary.find(name), string::npos); // dropped, and not read either
    for (const string& asked : { WrittenNode(menu, "N", 1), MappedNode(menu, "N", true) }) {
        EXPECT_NE(asked.find(R"x(native="1")x"), string::npos);
        EXPECT_NE(asked.find(R"x(audio="" background="" )x"), string::npos);
        EXPECT_NE(asked.find(R"x(duration="30")x"), string::npos);
    }
    EXPECT_EQ(ReadNode(menu, "<Menu native='false' background='%CONTENT%\\a' duration='4'/>"),
              status::kOk); // any text but "0" is true
    string background;
    EXPECT_EQ(menu.get_Background(&background), status::kOk);
    EXPECT_EQ(background, "/a");
    EXPECT_EQ(ReadNode(menu, "<Menu native='1' audio='/x/Content/y.ac3'/>"), status::kOk);
    const string saved = WrittenNode(menu);
    EXPECT_NE(saved.find(R"x(audio="/x/Content/y.ac3" background="%CONTENT%/a")x"), string::npos)
        << saved; // the theme of another document is none of its own
    EXPECT_EQ(ReadNode(menu, saved), status::kOk);
    EXPECT_EQ(WrittenNode(menu), saved);
}

TEST(Menu, TellsItsBackgroundAndDuration)
{
    CDSMenu menu;
    string background = "before";
    double duration = 0.0;
    EXPECT_EQ(menu.get_Duration(&duration), status::kOk);
    EXPECT_EQ(duration, 30.0); // an empty storyboard tells none
    EXPECT_EQ(menu.put_Background("clip.mpg"), status::kOk);
    EXPECT_EQ(menu.get_Background(&background), status::kOk);
    EXPECT_EQ(background, ""); // it went to the storyboard
    (void)getSbdBkgndVideo(CDSFileService().GetProductionObj(&menu), &background);
    EXPECT_EQ(background, "clip.mpg");
    EXPECT_EQ(setSbdDuration(CDSFileService().GetProductionObj(&menu), 7.5), status::kOk);
    EXPECT_EQ(menu.get_Duration(&duration), status::kOk);
    EXPECT_EQ(duration, 7.5);
    EXPECT_EQ(menu.put_BkgndID(3), status::kOk);
    EXPECT_EQ(menu.put_Duration(9), status::kOk);
    EXPECT_EQ(menu.get_Duration(&duration), status::kOk);
    EXPECT_EQ(duration, 9.0);
    EXPECT_EQ(menu.put_Background(""), status::kNullPointer);

    CDSMenu native;
    EXPECT_EQ(ReadNode(native, "<Menu native='1' backgroundID='4' background='b'/>"), status::kOk);
    EXPECT_EQ(native.put_Background("still.png"), status::kOk);
    EXPECT_EQ(native.get_Background(&background), status::kOk);
    EXPECT_EQ(background, "still.png");
    long id = 4;
    EXPECT_EQ(native.get_BkgndID(&id), status::kOk);
    EXPECT_EQ(id, 0);
}

TEST(NativeMenu, LoadsItsStoryboardFromTheTheme)
{
    for (const char* folder : { "Theme", "Thé me 100%41 #?" }) {
        const Theme theme(folder);
        CDSProjectData project;
        theme.Load(R"x(<Menu native="1" background="%CONTENT%\bg.pvtx" duration="4"/>)x", project);
        CDSMenu& menu = MenuOf(project);
        EXPECT_EQ(StoryboardDuration(menu), 12.0) << folder;
        double duration = 0.0;
        string video, version, file;
        bool missing = true;
        EXPECT_EQ(menu.GetTemplateFile(&file, &missing), status::kOk);
        EXPECT_EQ(file, theme.content() + "/bg.pvtx");
        EXPECT_FALSE(missing);
        EXPECT_EQ(menu.get_Duration(&duration), status::kOk);
        EXPECT_EQ(duration, 4.0);
        EXPECT_EQ(menu.get_Background(&video), status::kOk); // the storyboard's, for a template
        EXPECT_EQ(video, "bg.mpg");
        (void)CDSFileService().GetProductionObj(&menu)->get_Version(&version);
        EXPECT_EQ(version, "8.5");
    }
}

TEST(NativeMenu, SharesATemplateWithoutHarm)
{
    const Theme theme;
    CDSProjectData project;
    string menus;
    for (int i = 0; i < 40; ++i)
        menus += "<Menu native='1' background='" +
                 string(i % 2 ? "bg.pvtx" : "gone" + std::to_string(i)) + "'/>";
    theme.Load(menus, project);
    for (long i = 1; i <= 40; ++i)
        EXPECT_EQ(StoryboardDuration(MenuOf(project, i)), i % 2 ? 0.0 : 12.0);
    EXPECT_EQ(MenuOf(project).LoadBkngProdFromPVTX("bg.pvtx"), status::kOk); // after the load too
    EXPECT_EQ(StoryboardDuration(MenuOf(project)), 12.0);
}

TEST(NativeMenu, StaysUsableWithoutATemplate)
{
    const Theme theme;
    WriteFile(theme.content() + "empty.pvtx", "");
    WriteFile(theme.content() + "broken.pvtx", "<a><b></a>");
    WriteFile(theme.content() + "other.pvtx", "<a><panels/></a>");
    std::filesystem::create_directory(theme.content() + "folder.pvtx");
    ASSERT_EQ(mkfifo((theme.content() + "pipe.pvtx").c_str(), 0600), 0);
    WriteFile(theme.content() + "huge.pvtx", Template("9", 5));
    std::filesystem::resize_file(theme.content() + "huge.pvtx", 17 << 20); // a hole

    const char* backgrounds[] = { "",           "gone.pvtx",   "empty.pvtx",        "broken.pvtx",
                                  "other.pvtx", "folder.pvtx", "pipe.pvtx",         "huge.pvtx",
                                  "a.xml",      "/dev/zero",   "http://host/a.pvtx" };
    string menus;
    for (const char* background : backgrounds)
        menus += "<Menu native='1' background='" + string(background) + "'/>";
    CDSProjectData project;
    theme.Load(menus, project);
    for (long i = 1; i <= static_cast<long>(std::size(backgrounds)); ++i) {
        CDSMenu& menu = MenuOf(project, i);
        EXPECT_TRUE(menu.IsNative());
        string file;
        bool missing = false;
        const string name = backgrounds[i - 1];
        const bool isTemplate = name.ends_with(".pvtx"); // else the background is a picture
        EXPECT_EQ(menu.GetTemplateFile(&file, &missing),
                  isTemplate ? status::kOk : status::kNothingDone);
        EXPECT_EQ(file, isTemplate ? theme.content() + name : "");
        EXPECT_EQ(missing, isTemplate && name != "other.pvtx") << name; // that is XML at least
        CQZBaseSBD* storyboard = nullptr;
        EXPECT_EQ(menu.GetProduction(&storyboard), status::kOk);
        EXPECT_EQ(getSbdDuration(storyboard), 0.0) << backgrounds[i - 1];
        EXPECT_EQ(menu.put_Label("x"), status::kOk);
    }
}
