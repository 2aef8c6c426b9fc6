#include "disc/DSMenuColours.h"

#include "support/NodeFixture.h"

using namespace vantrel;

TEST(Palette, StopsAtTheFirstMissingEntry)
{
    for (const char* gap : { "", "entry02=''" }) {
        CPaletteNode node;
        testing::internal::CaptureStdout();
        EXPECT_EQ(ReadNode(node, std::string("<P entry00='0x000102' entry01='12' entry03='0x1' ") +
                                     gap + "/>"),
                  status::kOk);
        EXPECT_EQ(testing::internal::GetCapturedStdout(),
                  "ParsePaletteAttributes: No entry! (2)\n");
        RGBEntry palette[16];
        ASSERT_EQ(node.GetPalette(palette), status::kOk);
        EXPECT_EQ(palette[0].red, 2); // the lowest byte
        EXPECT_EQ(palette[0].green, 1);
        EXPECT_EQ(palette[1].blue, 0xFF); // no "0x": all bits
        EXPECT_EQ(palette[3].red, 0);
    }
}

TEST(Palette, IsSetAsAWhole)
{
    CPaletteNode node;
    RGBEntry palette[16];
    palette[15] = { 1, 2, 3 };
    EXPECT_EQ(node.SetPalette(palette), status::kOk);
    EXPECT_NE(WrittenNode(node).find(R"x(entry15="0x030201")x"), std::string::npos);
    EXPECT_EQ(node.SetPalette(nullptr), status::kNullPointer);
    EXPECT_EQ(node.GetPalette(nullptr), status::kNullPointer);
}

TEST(ButtonScheme, DerivesEmphasis2AfterItHasAnswered)
{
    CButtonSchemeNode node("ButtonScheme1");
    SPUColourInfo selected{ 3, 15, 0, 0, 0, 0, 7, 7 }, activated{ 4, 0, 0, 0, 0, 0, 7, 7 };
    ASSERT_EQ(node.SetColourInfo(selected, activated), status::kOk);
    ASSERT_EQ(node.GetColourInfo(&selected, &activated), status::kOk);
    EXPECT_EQ(selected.emp2Cnt, 7);
    ASSERT_EQ(node.GetColourInfo(&selected, &activated), status::kOk);
    EXPECT_EQ(selected.emp2Cnt, 8);
    EXPECT_EQ(selected.emp2Col, 3);
    EXPECT_EQ(activated.emp2Cnt, 0);
    EXPECT_EQ(activated.emp2Col, 4);
    EXPECT_EQ(node.GetObjectTagName(), "ButtonScheme1");
}

TEST(Colours, TheFirstBadValueDecidesAndNothingIsStored)
{
    CButtonSchemeNode scheme("ButtonScheme1");
    CSPUColourNode spu;
    const SPUColourInfo good{ 15, 15, 15, 15, 15, 15, 15, 15 };
    const SPUColourInfo colourFirst{ 16, 16, 0, 0, 0, 0, 0, 0 };
    const SPUColourInfo contrastFirst{ 0, 16, 16, 0, 0, 0, 0, 0 };
    SPUColourInfo lastContrast{ 0, 0, 0, 0, 0, 0, 0, 16 };

    EXPECT_EQ(spu.SetColourInfo(good), status::kOk);
    EXPECT_EQ(spu.SetColourInfo(colourFirst), status::kBadColour);
    EXPECT_EQ(spu.SetColourInfo(contrastFirst), status::kBadContrast);
    EXPECT_EQ(spu.SetColourInfo(lastContrast), status::kBadContrast);
    EXPECT_EQ(spu.GetColourInfo(&lastContrast), status::kOk);
    EXPECT_EQ(lastContrast.pattCol, 15);

    EXPECT_EQ(scheme.SetColourInfo(good, colourFirst), status::kBadColour);
    EXPECT_EQ(scheme.SetColourInfo(contrastFirst, colourFirst), status::kBadContrast);
    EXPECT_EQ(WrittenNode(scheme), WrittenNode(*std::make_unique<CButtonSchemeNode>("")));
}

TEST(Colours, AFileIsCutToTheLowByte)
{
    CSPUColourNode node;
    SPUColourInfo info;
    ASSERT_EQ(ReadNode(node, "<S pattCol='300' emp1Cnt='x'/>"), status::kOk);
    ASSERT_EQ(node.GetColourInfo(&info), status::kOk);
    EXPECT_EQ(info.pattCol, 44);
    EXPECT_EQ(info.emp1Cnt, 0);
}
