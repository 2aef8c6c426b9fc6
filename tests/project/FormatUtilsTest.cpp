#include "project/FormatUtils.h"

#include <gtest/gtest.h>

TEST(FormatEnum, WritesNumberAndName)
{
    EXPECT_EQ(FormatEnum(TVStandard::PA), "2 (PA)");
    EXPECT_EQ(FormatEnum(TVStandard(3)), "3 (unknown)");
    EXPECT_EQ(FormatEnum(TVStandard::NotSet), "0 ()");
    EXPECT_EQ(FormatEnum(TVStandard(-1)), "-1 (unknown)");
    EXPECT_EQ(FormatEnum(DiscFormat::AVCHD), "11 (AVCHD)");
    EXPECT_EQ(FormatEnum(DiscSizeEnum::BluRay_50), "9 (BluRay_50)");
    EXPECT_EQ(FormatEnum(DiscVideoType::RealD_3D), "3 (RealD_3D)");
    EXPECT_EQ(FormatEnum(VideoResolution::HD_1080p_1920), "15 (HD_1080p_1920)");
    EXPECT_EQ(FormatEnum(AspectRatio::None), "0 (None)");
    EXPECT_EQ(FormatEnum(AspectRatio::_16x9), "2 (16x9)");
    EXPECT_EQ(FormatEnum(AudioFormat::DTS_HD), "7 (DTS_HD)");
    EXPECT_EQ(FormatEnum(VideoFormat::MPEG_2), "0 (MPEG-2)");
    EXPECT_EQ(FormatEnum(VideoFormat::AVC_H_264), "1 (AVC/H.264)");
    EXPECT_EQ(FormatEnum(SubpictureFormat::RLE_8Bit), "2 (RLE_8Bit)");
    EXPECT_EQ(FormatEnum(WideDisplayMode::Both), "3 (Both)");
    EXPECT_EQ(FormatEnum(OverlayHighlight::Source), "2 (Source)");
    EXPECT_EQ(FormatEnum(TextHighlight::Outline), "4 (Outline)");
    EXPECT_EQ(FormatEnum(SourceTypes::User_Defined), "9 (User_Defined)");
    EXPECT_EQ(FormatEnum(_TextHandles::BottomRight), "9 (BottomRight)");
}

TEST(FormatFlags, WritesNumberAndNamesOfTheBits)
{
    EXPECT_EQ(FormatMenuTag(5), "5 (Main|MainTemplate)");
    EXPECT_EQ(FormatTitleTag(1), "1 (Norma)");
    EXPECT_EQ(FormatOverlayTag(4), "4 (Thumbnai)");
    EXPECT_EQ(FormatTextTag(1), "1 (Labe)");
    EXPECT_EQ(FormatButtonTag(0x20), "32 (Command)");
    EXPECT_EQ(FormatTargetType(7), "7 (DiscTarget|ISOTarget|FolderTarget)");
    EXPECT_EQ(FormatTextJustify(0x24), "36 (Center|Middle)");
    EXPECT_EQ(FormatProjectOptions(0x41), "65 (Archive_TitleImageSources|Cmd_PlayRemainingTitles)");
    EXPECT_EQ(FormatMenuFlag(2), "2 ()");
    EXPECT_EQ(FormatMenuFlag(0), "0 ()");
    EXPECT_EQ(FormatMenuFlag(~0UL), "4294967295 (StillMenu)"); // the low 32 bits
}

TEST(FormatString, TakesTheWidthOfTheFormatAndCutsWhatIsLong)
{
    EXPECT_EQ(FormatString("%04d", 7), "0007");
    EXPECT_EQ(FormatString("0x%08X", -1), "0xFFFFFFFF");
    EXPECT_EQ(FormatString("%ld", 1L << 40), "1099511627776");
    EXPECT_EQ(FormatString("%d (%s)", 3, "name"), "3 (name)");
    EXPECT_EQ(FormatString("%d %s", 1, std::string(80, 'x').c_str()).size(), 49U);
}

TEST(GetPropValue, ReadsTheLeadingNumberAlone)
{
    EXPECT_EQ(GetPropValue("4 (DVD_47)"), 4);
    EXPECT_EQ(GetPropValue("4 (anything at all)"), 4);
    EXPECT_EQ(GetPropValue(" -7"), -7);
    EXPECT_EQ(GetPropValue("x"), 0);
    EXPECT_EQ(GetPropValue(""), 0);
    EXPECT_EQ(GetPropValue(nullptr), 0);
}

TEST(ReadHex, NeedsItsPrefix)
{
    EXPECT_EQ(ReadHex("0x000000FF"), 255);
    EXPECT_EQ(ReadHex("0xFFFFFFFFFFFFFFFF"), -1);
    EXPECT_EQ(ReadHex("000000FF"), -1);
    EXPECT_EQ(ReadHex("0X10"), -1);
    EXPECT_EQ(ReadHex("0x"), -1);
    EXPECT_EQ(ReadHex("0xZZ"), -1);
    EXPECT_EQ(ReadHex(""), -1);
}
