#include "disc/DSLayout.h"

#include <gtest/gtest.h>

using Style = CDSLayout::LayoutStyle;
using Justify = CDSLayout::LayoutJustify;
using Weight = CDSLayout::Weight;

TEST(Layout, ZeroStandsForTheDefault)
{
    EXPECT_EQ(static_cast<unsigned long>(CDSLayout()), 0x01500C21UL);
    EXPECT_EQ(static_cast<unsigned long>(CDSLayout(0UL)), 0x01500C21UL);
    const CDSLayout one(1UL);
    EXPECT_EQ(one.GetNumberOfLines(), 0);
    EXPECT_EQ(one.GetStyle(), Style(0));
    EXPECT_EQ(one.GetWeight(), Weight(0));
}

TEST(Layout, PacksItsFieldsAndCutsThem)
{
    const CDSLayout layout(66, 67, Style(18), Justify(5), Justify(6), Weight(7));
    EXPECT_EQ(layout.GetNumberOfLines(), 2); // not forced to 1 here
    EXPECT_EQ(layout.GetButtonsPerLine(), 3);
    EXPECT_EQ(layout.GetStyle(), Style(2));
    EXPECT_EQ(layout.GetLineJustify(), Justify(1));
    EXPECT_EQ(layout.GetButtonJustify(), Justify(2));
    EXPECT_EQ(layout.GetWeight(), Weight(3));
    EXPECT_EQ(static_cast<unsigned long>(layout), 0x03920C21UL);
}

TEST(Layout, ASetterTouchesItsFieldAlone)
{
    CDSLayout layout(~0UL);
    layout.SetStyle(Style(0));
    layout.SetNumberOfLines(64);
    layout.SetButtonsPerLine(65);
    layout.SetLineJustify(Justify(2));
    layout.SetButtonJustify(Justify(0));
    layout.SetWeight(Weight(1));
    EXPECT_EQ(static_cast<unsigned long>(layout), 0xFFFFFFFFFD20040FUL);
    const CDSLayout copy(layout); // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(static_cast<unsigned long>(copy), 0xFFFFFD20040FUL);
    *static_cast<unsigned long*>(layout) = 0x21;
    EXPECT_EQ(layout.GetNumberOfLines(), 2);
}

TEST(Layout, SingleLineStylesHaveOneLine)
{
    CDSLayout layout;
    for (const unsigned style : { 2U, 3U, 18U }) {
        layout.SetStyle(Style(0));
        layout.SetNumberOfLines(9);
        layout.SetStyle(Style(style));
        EXPECT_EQ(layout.GetNumberOfLines(), 1);
        layout.SetNumberOfLines(5);
        EXPECT_EQ(layout.GetNumberOfLines(), 1);
    }
    layout.SetStyle(Style(0));
    layout.SetNumberOfLines(5);
    EXPECT_EQ(layout.GetNumberOfLines(), 5);
}

TEST(Layout, LineJustifyPlacesButtonsWhereTheStyleLetsIt)
{
    const int placed[] = { 0, 2, 1, 2 }; // by line justify
    for (unsigned style = 0; style < 4; ++style) {
        for (unsigned justify = 0; justify < 4; ++justify) {
            CDSLayout layout;
            layout.SetStyle(Style(style));
            layout.SetLineJustify(Justify(justify));
            EXPECT_EQ(layout.GetButtonVJustify(), style == 0 ? placed[justify] : 2);
            EXPECT_EQ(layout.GetButtonHJustify(), style == 1 ? placed[justify] : 2);
        }
    }
}
