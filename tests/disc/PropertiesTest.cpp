#include "disc/DSEncodingParams.h"
#include "disc/DSMenuOverlay.h"
#include "disc/DSProjectData.h"
#include "project/FormatUtils.h"
#include "support/NodeFixture.h"

using std::string;
using namespace vantrel;

namespace {

/// Puts a value into a new node: it comes back, and changes the one attribute of the file, as
/// `name=text`; none when that is empty.
template <class Node, class T>
void Keeps(Status (Node::*put)(T), auto get, const std::type_identity_t<T>& value,
           const string& change)
{
    Node node;
    std::map<string, string> before, after;
    EXPECT_EQ(node.FillAttributeMap(before, false), status::kOk);
    EXPECT_EQ((node.*put)(value), status::kOk);
    EXPECT_EQ(node.FillAttributeMap(after, false), status::kOk);
    string changes;
    for (const auto& [name, text] : after)
        changes += before[name] == text ? "" : name + '=' + text;
    EXPECT_EQ(changes, change);

    T got{};
    EXPECT_EQ((node.*get)(&got), status::kOk);
    EXPECT_EQ(got, value) << change;
    EXPECT_EQ((node.*get)(nullptr), status::kNullPointer);
}

} // namespace

// clang-format off
TEST(Properties, OfAnEncodingSet)
{
    using E = CDSEncodingParams;
    Keeps(&E::put_VideoResolution, &E::get_VideoResolution, VideoResolution::Cropped_D1, "videoResolution=2 (Cropped_D1)");
    Keeps(&E::put_AspectRatio, &E::get_AspectRatio, AspectRatio::_16x9, "aspectRatio=2 (16x9)");
    Keeps(&E::put_VideoFormat, &E::get_VideoFormat, VideoFormat::VC_1, "videoFormat=2 (VC-1)");
    Keeps(&E::put_VideoBitrate, &E::get_VideoBitrate, 5, "videoBitrate=5");
    Keeps(&E::put_AudioFormat, &E::get_AudioFormat, AudioFormat::LPCM, "audioFormat=1 (LPCM)");
    Keeps(&E::put_AudioBitrate, &E::get_AudioBitrate, 6, "audioBitrate=6");
    Keeps(&E::put_AudioChannels, &E::get_AudioChannels, 7, "audioChannels=7");
    Keeps(&E::put_WideDisplayMode, &E::get_WideDisplayMode, WideDisplayMode::PanAndScan, "wideDisplayMode=2 (PanAndScan)");
    Keeps(&E::put_VBREncoding, &E::get_VBREncoding, true, "VBREncoding=1");
    Keeps(&E::put_TwoPassEncoding, &E::get_TwoPassEncoding, true, "twoPassEncoding=1");
    Keeps(&E::put_SubpictureFormat, &E::get_SubpictureFormat, SubpictureFormat::RLE_8Bit, "subpictureFormat=2 (RLE_8Bit)");
}

TEST(Properties, OfAnOverlay)
{
    using O = CDSMenuOverlay;
    Keeps(&O::put_Highlight, &O::get_Highlight, OverlayHighlight::Source, "highlight=2 (Source)");
    Keeps(&O::put_Label, &O::get_Label, "l", "label=l");
    Keeps(&O::put_PrivateId, &O::get_PrivateId, 4, "privateID=4");
    Keeps(&O::put_StillImage, &O::get_StillImage, true, "stillImage=1");
    Keeps(&O::put_DynamicScalingFactor, &O::get_DynamicScalingFactor, 1.5, "dynamicScalingFactor=1.5");
    Keeps(&O::put_ZoomSource, &O::get_ZoomSource, true, "zoomSource=1");
    Keeps(&O::put_ZoomMask, &O::get_ZoomMask, true, "zoomMask=1");
    Keeps(&O::put_AlphaMask, &O::get_AlphaMask, "m", "alphaMask=m");
    Keeps(&O::put_InPoint, &O::get_InPoint, 2, "inPoint=2");
    Keeps(&O::put_OutPoint, &O::get_OutPoint, 3, "outPoint=3");
    Keeps(&O::put_SourceRotation, &O::get_SourceRotation, 90, "");
}

TEST(Properties, OfAProject)
{
    using P = CDSProjectData;
    Keeps(&P::put_Label, &P::get_Label, "l", "label=l");
    Keeps(&P::put_DisplayName, &P::get_DisplayName, "n", "name=n");
    Keeps(&P::put_DiscFormat, &P::get_DiscFormat, DiscFormat(2), "discFormat=" + FormatEnum(DiscFormat(2)));
    Keeps(&P::put_TVStandard, &P::get_TVStandard, TVStandard::PA, "TVStandard=" + FormatEnum(TVStandard::PA));
    Keeps(&P::put_IsOnDisc, &P::get_IsOnDisc, true, "onDiscProject=1");
    Keeps(&P::put_FitToDisc, &P::get_FitToDisc, true, "fitToDisc=1");
    Keeps(&P::put_Options, &P::get_Options, 3, "options=" + FormatProjectOptions(3));
    Keeps(&P::put_OnDiscSize, &P::get_OnDiscSize, 5, "onDiscSizeKB=5");
    Keeps(&P::put_RemainingCaptures, &P::get_RemainingCaptures, 6, "remainingCaptures=6");
    Keeps(&P::put_ThemeSource, &P::get_ThemeSource, "t", "ThemeSource=t");
    Keeps(&P::put_DiscSize, &P::get_DiscSize, DiscSizeEnum(1), "DiscSize=" + FormatEnum(DiscSizeEnum(1)));
    Keeps(&P::put_DiscVideoType, &P::get_DiscVideoType, DiscVideoType(2), "discVideoType=" + FormatEnum(DiscVideoType(2)));
    Keeps(&P::put_VolumeName, &P::get_VolumeName, "v", "");
    Keeps(&P::put_ProjectDirectory, &P::get_ProjectDirectory, "d", "");
    Keeps(&P::put_TargetType, &P::get_TargetType, 7, "");
    Keeps(&P::put_ImagePath, &P::get_ImagePath, "i", "");
    Keeps(&P::put_TargetDrive, &P::get_TargetDrive, "e", "");
    Keeps(&P::put_ProjectSize, &P::get_ProjectSize, 8, "");
}
// clang-format on

TEST(Properties, OfAnOverlayThatAFileAloneBrings)
{
    CDSMenuOverlay overlay;
    double angle = 0.0;
    bool mode = false;
    EXPECT_EQ(ReadNode(overlay, "<O rotateAngle='30' cropRotateMode='1'/>"), status::kOk);
    EXPECT_EQ(overlay.get_RotateAngle(&angle), status::kOk);
    EXPECT_EQ(angle, 30.0);
    EXPECT_EQ(overlay.get_cropRotateMode(&mode), status::kOk);
    EXPECT_TRUE(mode);
}

TEST(Properties, OfAProjectGoBackToTheirDefaults)
{
    CDSProjectData project;
    EXPECT_EQ(project.put_VolumeName("v"), status::kOk);
    EXPECT_EQ(project.put_TargetDrive("e"), status::kOk);
    EXPECT_EQ(project.put_ProjectSize(8), status::kOk);
    EXPECT_EQ(ReadNode(project, "<P label='l' name='n' DiscSize='1' discFormat='2' TVStandard='2' "
                                "options='1' fitToDisc='1' onDiscSizeKB='1' remainingCaptures='1' "
                                "ThemeSource='t' onDiscProject='1' doCompression='0' "
                                "discVideoType='2'/>"),
              status::kOk);
    project.InitProjectProps();
    EXPECT_EQ(WrittenNode(project), WrittenNode(*std::make_unique<CDSProjectData>()));
    string volume, drive;
    long size = 1;
    EXPECT_EQ(project.get_VolumeName(&volume), status::kOk);
    EXPECT_EQ(volume, "KELDODISC");
    EXPECT_EQ(project.get_TargetDrive(&drive), status::kOk);
    EXPECT_EQ(drive, "");
    EXPECT_EQ(project.get_ProjectSize(&size), status::kOk);
    EXPECT_EQ(size, 0);
    EXPECT_EQ(project.GetNumChildren(), 5); // the tree stays
}
