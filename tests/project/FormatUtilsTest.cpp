#include "project/FormatUtils.h"

#include <gtest/gtest.h>

TEST(FormatEnum, WritesNumberAndName)
{
    EXPECT_EQ(FormatEnum(TVStandard::PA), "2 (PA)");
    EXPECT_EQ(FormatEnum(TVStandard(3)), "3 (unknown)");
    EXPECT_EQ(FormatEnum(TVStandard::NotSet), "0 ()");
    EXPECT_EQ(FormatEnum(TVStandard(-1)), "-1 (unknown)");
    EXPECT_EQ(FormatEnum(DiscFormat::AVCHD), "11 (AVCHD)");
    EXPECT_EQ(FormatEnum(DiscVideoType::RealD_3D), "3 (RealD_3D)");
    EXPECT_EQ(FormatEnum(AspectRatio::None), "0 (None)");
    EXPECT_EQ(FormatEnum(AudioFormat::DTS_HD), "7 (DTS_HD)");
    EXPECT_EQ(FormatEnum(TextHighlight::Outline), "4 (Outline)");
    EXPECT_EQ(FormatEnum(SourceTypes::User_Defined), "9 (User_Defined)");
}

TEST(FormatFlags, WritesNumberAndNamesOfTheBits)
{
    EXPECT_EQ(FormatMenuTag(5), "5 (Main|MainTemplate)");
    EXPECT_EQ(FormatButtonTag(0x20), "32 (Command)");
    EXPECT_EQ(FormatTargetType(7), "7 (DiscTarget|ISOTarget|FolderTarget)");
    EXPECT_EQ(FormatTextJustify(0x24), "36 (Center|Middle)");
    EXPECT_EQ(FormatProjectOptions(0x41), "65 (Archive_TitleImageSources|Cmd_PlayRemainingTitles)");
    EXPECT_EQ(FormatMenuFlag(2), "2 ()");
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
    const std::pair<const char*, long> cases[] = {
        { "4 (anything at all)", 4 }, { " -7", -7 }, { "x", 0 }, { "", 0 }, { nullptr, 0 }
    };
    for (const auto& [text, number] : cases)
        EXPECT_EQ(GetPropValue(text), number) << (text ? text : "null");
}

TEST(ReadHex, NeedsItsPrefix)
{
    EXPECT_EQ(ReadHex("0x000000FF"), 255);
    EXPECT_EQ(ReadHex("0xFFFFFFFFFFFFFFFF"), -1);
    for (const char* other : { "000000FF", "0X10", "0x", "0xZZ", "" })
        EXPECT_EQ(ReadHex(other), -1) << other;
}
