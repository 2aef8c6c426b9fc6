#include "disc/DSCommandList.h"
#include "disc/DSDataFile.h"
#include "disc/DSEncodingParams.h"
#include "disc/DSMenu.h"
#include "disc/DSMenuButton.h"
#include "disc/DSMenuColours.h"
#include "disc/DSMenuOverlay.h"
#include "disc/DSMenuText.h"
#include "disc/DSProjectData.h"
#include "disc/DSTitle.h"
#include "support/NodeFixture.h"

#include <functional>
#include <memory>

using std::string;
using namespace vantrel;

/// Every class of nodes whose attributes stand in one table, with all of them set to something else
/// than the default.
struct NodeCase
{
    const char* name;
    std::function<std::unique_ptr<CProjectNode>()> make;
    const char* element;
    const char* fresh; ///< what a new node writes
};
class NodeFileForm : public testing::TestWithParam<NodeCase>
{};

TEST_P(NodeFileForm, IsReadAndWrittenTheSameByMapAndDirectly)
{
    const IdCounterGuard guard(1);
    const auto fresh = GetParam().make();
    EXPECT_EQ(WrittenNode(*fresh), GetParam().fresh);
    EXPECT_EQ(MappedNode(*fresh), GetParam().fresh);

    const auto direct = GetParam().make();
    EXPECT_EQ(ReadNode(*direct, GetParam().element), status::kOk);
    EXPECT_EQ(WrittenNode(*direct), GetParam().element);
    const auto mapped = GetParam().make();
    EXPECT_EQ(mapped->ParseAttributeMap(AttributesOf(GetParam().element)), status::kOk);
    EXPECT_EQ(MappedNode(*mapped), GetParam().element);

    EXPECT_EQ(mapped->ParseAttributeMap({}), status::kOk); // what is absent leaves the field
    EXPECT_EQ(MappedNode(*mapped), GetParam().element);
}

template <class Node>
std::unique_ptr<CProjectNode> Make()
{
    return std::make_unique<Node>();
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Classes, NodeFileForm, testing::Values(
    NodeCase{ "Title", Make<CDSTitle>,
        R"x(<N ID="9" discIndex="-2" flags="3" label="a &lt; b" stillWaitSecs="-1" tag="6 (FirstPlay|Transition)" vobDuration="7" vobSize="0.25"/>)x",
        R"x(<N ID="0" discIndex="0" flags="0" label="" stillWaitSecs="5" tag="1 (Norma)" vobDuration="0" vobSize="0"/>)x" },
    NodeCase{ "DataFile", Make<CDSDataFile>,
        R"x(<N ID="9" destPath="d" sourcePath="s" tag="18446744073709551615"/>)x",
        R"x(<N ID="0" destPath="" sourcePath="" tag="0"/>)x" },
    NodeCase{ "Command", Make<CDiscCommandNode>,
        R"x(<N code="9" param1="-1" param2="9223372036854775807"/>)x",
        R"x(<N code="1" param1="0" param2="0"/>)x" },
    NodeCase{ "Encoding", Make<CDSEncodingParams>,
        R"x(<N VBREncoding="1" aspectRatio="2 (16x9)" audioBitrate="-5" audioChannels="6" audioFormat="1 (LPCM)" subpictureFormat="2 (RLE_8Bit)" syncToProject="1" twoPassEncoding="1" videoBitrate="4" videoFormat="2 (VC-1)" videoResolution="15 (HD_1080p_1920)" wideDisplayMode="3 (Both)"/>)x",
        R"x(<N VBREncoding="0" aspectRatio="1 (4x3)" audioBitrate="224000" audioChannels="2" audioFormat="3 (AC-3)" subpictureFormat="1 (RLE)" syncToProject="0" twoPassEncoding="0" videoBitrate="8000000" videoFormat="0 (MPEG-2)" videoResolution="1 (Full_D1)" wideDisplayMode="1 (Letterbox)"/>)x" },
    NodeCase{ "Palette", Make<CPaletteNode>,
        R"x(<N entry00="0x000001" entry01="0x000200" entry02="0x030000" entry03="0xFFFFFF" entry04="0x000004" entry05="0x000005" entry06="0x000006" entry07="0x000007" entry08="0x000008" entry09="0x000009" entry10="0x00000A" entry11="0x00000B" entry12="0x00000C" entry13="0x00000D" entry14="0x00000E" entry15="0x123456"/>)x",
        R"x(<N entry00="0x000000" entry01="0x000000" entry02="0x000000" entry03="0x000000" entry04="0x000000" entry05="0x000000" entry06="0x000000" entry07="0x000000" entry08="0x000000" entry09="0x000000" entry10="0x000000" entry11="0x000000" entry12="0x000000" entry13="0x000000" entry14="0x000000" entry15="0x000000"/>)x" },
    NodeCase{ "ButtonScheme", [] { return std::make_unique<CButtonSchemeNode>("ButtonScheme2"); },
        R"x(<N bkgdActCnt="1" bkgdActCol="2" bkgdSelCnt="3" bkgdSelCol="4" emp1ActCnt="5" emp1ActCol="6" emp1SelCnt="7" emp1SelCol="8" emp2ActCnt="9" emp2ActCol="10" emp2SelCnt="11" emp2SelCol="12" pattActCnt="13" pattActCol="14" pattSelCnt="15" pattSelCol="255"/>)x",
        R"x(<N bkgdActCnt="0" bkgdActCol="0" bkgdSelCnt="0" bkgdSelCol="0" emp1ActCnt="0" emp1ActCol="0" emp1SelCnt="0" emp1SelCol="0" emp2ActCnt="0" emp2ActCol="0" emp2SelCnt="0" emp2SelCol="0" pattActCnt="0" pattActCol="0" pattSelCnt="0" pattSelCol="0"/>)x" },
    NodeCase{ "SPUColours", Make<CSPUColourNode>,
        R"x(<N bkgdCnt="1" bkgdCol="2" emp1Cnt="3" emp1Col="4" emp2Cnt="5" emp2Col="6" pattCnt="7" pattCol="8"/>)x",
        R"x(<N bkgdCnt="0" bkgdCol="0" emp1Cnt="0" emp1Col="0" emp2Cnt="0" emp2Col="0" pattCnt="0" pattCol="0"/>)x" },
    NodeCase{ "LayoutRect", Make<CLayoutRectNode>,
        R"x(<N bottom="-0.5" left="1e+06" right="0.1" top="2"/>)x",
        R"x(<N bottom="0" left="0" right="0" top="0"/>)x" },
    NodeCase{ "Links", Make<CButtonLinksNode>,
        R"x(<N left="1" lower="4" right="2" upper="-3"/>)x",
        R"x(<N left="0" lower="0" right="0" upper="0"/>)x" },
    NodeCase{ "ActiveRegion", Make<CActiveRgnNode>,
        R"x(<N bottom="-1.5" left="1" right="3" top="2" valid="1"/>)x",
        R"x(<N bottom="0" left="0" right="0" top="0" valid="0"/>)x" },
    NodeCase{ "Menu", Make<CDSMenu>,
        R"x(<N ID="9" audio="a.ac3" background="b.png" backgroundID="3" btnLayout="0xFFFFFFFF" defaultButton="4" duration="12.5" flag="1 (StillMenu)" label="l" native="1" tag="6 (Chapter|MainTemplate)" templateID="5"/>)x",
        R"x(<N ID="0" backgroundID="0" btnLayout="0x00000000" defaultButton="0" flag="0 ()" label="" native="0" tag="0 ()" templateID="0"/>)x" },
    NodeCase{ "Button", Make<CDSMenuButton>,
        R"x(<N ID="9" anchor="8" buttonStyle="s" buttonTextCache="c" flags="7" label="l" rotation="30" scheme="2" tag="33 (Next|Command)" templateID="6" userdata="-1" x="0.5" y="-0.25" zOrder="-3"/>)x",
        R"x(<N ID="0" anchor="0" buttonStyle="" buttonTextCache="" flags="0" label="" rotation="0" scheme="0" tag="0 ()" templateID="0" userdata="0" x="0" y="0" zOrder="0"/>)x" },
    NodeCase{ "Text", Make<CDSMenuText>,
        R"x(<N ID="9" flags="1" handle="9 (BottomRight)" highlight="5 (unknown)" rotation="-45" tag="3 (Labe|Index)" templateID="6" x="0.5" y="-0.25" zOrder="2"/>)x",
        R"x(<N ID="0" flags="0" handle="1 (TopLeft)" highlight="0 (None)" rotation="0" tag="0 ()" templateID="0" x="0" y="0" zOrder="0"/>)x" },
    NodeCase{ "Overlay", Make<CDSMenuOverlay>,
        R"x(<N ID="9" alphaMask="m.png" corpRectH="0.4" corpRectW="0.3" corpRectX="0.1" corpRectY="0.2" cropRotateMode="1" dynamicScalingFactor="1.5" flags="1" height="2" highlight="2 (Source)" inPoint="-1" label="l" outPoint="3" privateID="4" rotateAngle="5" rotation="6" source="/p/a.png" sourceID="7" sourceType="3 (Title)" stillImage="1" tag="16 (Matte)" templateID="8" width="0.5" x="9" y="10" zOrder="11" zoomMask="0" zoomSource="1"/>)x",
        R"x(<N ID="0" alphaMask="" corpRectH="1" corpRectW="1" corpRectX="0" corpRectY="0" cropRotateMode="0" dynamicScalingFactor="0" flags="0" height="1" highlight="0 (None)" inPoint="0" label="" outPoint="0" privateID="0" rotateAngle="0" rotation="0" source="" sourceID="0" sourceType="0 (None)" stillImage="0" tag="0 ()" templateID="0" width="1" x="0" y="0" zOrder="0" zoomMask="0" zoomSource="0"/>)x" }),
    [](const auto& row) { return row.param.name; });
// clang-format on

TEST(ProjectData, StartsWithItsDefaultsAndFixedChildren)
{
    CDSProjectData project;
    const eNodeType fixed[] = { eNodeTitles, eNodeMenus, eNodeDataFiles, eNodeCommands,
                                eNodeEncoding };
    ASSERT_EQ(project.GetNumChildren(), 5);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(project.GetChild(i)->GetType(), fixed[i]);

    string volume; // the other defaults show in a new project's file
    EXPECT_EQ(project.get_VolumeName(&volume), status::kOk);
    EXPECT_EQ(volume, "KELDODISC");
    EXPECT_EQ(project.get_TitleCount(nullptr), status::kNullPointer);
    EXPECT_EQ(project.get_Label(nullptr), status::kNullPointer);
    EXPECT_EQ(project.get_TargetType(nullptr), status::kNullPointer);
    EXPECT_EQ(project.get_DoCompression(nullptr), status::kNullPointer);
}

TEST(ProjectData, CompressionIsAnsweredOnDiscOnly)
{
    CDSProjectData project;
    bool compressed = false;
    EXPECT_EQ(project.get_DoCompression(&compressed), status::kNothingDone);
    EXPECT_FALSE(compressed);
    ASSERT_EQ(project.put_IsOnDisc(true), status::kOk);
    EXPECT_EQ(project.get_DoCompression(&compressed), status::kOk);
    EXPECT_TRUE(compressed);
}

TEST(ProjectData, AnyTextButZeroIsTrueAndTheIdIsNotRead)
{
    const IdCounterGuard guard(3);
    CDSProjectData project;
    for (const auto& [text, expected] :
         std::map<string, bool>{ { "false", true }, { "0", false } }) {
        EXPECT_EQ(ReadNode(project, "<Project ID='77' fitToDisc='" + text + "'/>"), status::kOk);
        bool fits = !expected;
        EXPECT_EQ(project.get_FitToDisc(&fits), status::kOk);
        EXPECT_EQ(fits, expected) << text;
    }
    EXPECT_EQ(project.GetID(), 0);
}

TEST(Title, RefusesNegativeValuesThatAFileMayHold)
{
    CDSTitle title;
    long seconds = 0;
    EXPECT_EQ(title.put_StillWaitTime(-1), status::kBadArgument);
    EXPECT_EQ(title.put_DiscIndex(-1), status::kBadArgument);
    EXPECT_EQ(title.get_StillWaitTime(&seconds), status::kOk);
    EXPECT_EQ(seconds, 5);
    EXPECT_EQ(title.put_StillWaitTime(0), status::kOk);
    EXPECT_EQ(title.get_StillWaitTime(nullptr), status::kNullPointer);
}

TEST(Command, ItsCodeAloneNamesIt)
{
    CDiscCommandNode command;
    EXPECT_EQ(command.GetObjectTagName(), "PlayTitleFromChapter");
    EXPECT_EQ(ReadNode(command, "<StopPlayback/>"),
              status::kOk); // no attributes is no failure
    EXPECT_EQ(command.GetObjectTagName(), "PlayTitleFromChapter");
    EXPECT_EQ(ReadNode(command, "<PlayMenu code='4'/>"), status::kOk);
    EXPECT_EQ(command.GetObjectTagName(), "SetSubpictureStream");
    for (const int code : { 0, -1, 10, 0x7FFFFFFF }) {
        EXPECT_EQ(command.SetCommandParams({ code, 0, 0 }), status::kOk);
        EXPECT_EQ(command.GetObjectTagName(), "") << code;
    }
}

TEST(Command, KeepsFileAndEffectOfTheLastRead)
{
    CDiscCommandNode command;
    EXPECT_EQ(ReadNode(command, "<PlayClip code='6'><file>old</file></PlayClip>"), status::kOk);
    EXPECT_EQ(ReadNode(command, "<PlayClip>\n<effect/><x/><file a='b'>new</file></PlayClip>"),
              status::kOk);
    for (int save = 0; save < 2; ++save)
        EXPECT_EQ(WrittenNode(command),
                  R"x(<N code="6" param1="0" param2="0"><effect/><file a="b">)x"
                  R"x(new</file></N>)x");
}
