#include "printing/PaperInk.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

constexpr ColorValue White = 0xFFFFFF, Black = 0x000000, Red = 0x0000FF, Yellow = 0x00FFFF;

} // namespace

// The contrasts of the plain colors are known: black 21, red 5.25 / 1.3126 = 3.998, yellow 1.05 / 0.9778 = 1.074.
TEST(PaperInk, ContrastRunsFromWhiteToBlack)
{
    EXPECT_DOUBLE_EQ(ContrastOnPaper(White), 1);
    EXPECT_DOUBLE_EQ(ContrastOnPaper(Black), 21);
    EXPECT_NEAR(ContrastOnPaper(Red), 3.998, 0.001);
    EXPECT_NEAR(ContrastOnPaper(Yellow), 1.074, 0.001);
}

TEST(PaperInk, WhatCanBeSeenKeepsItsColor)
{
    EXPECT_EQ(InkOnPaper(Black, TextContrast), Black);
    EXPECT_EQ(InkOnPaper(Red, LineContrast), Red);
}

TEST(PaperInk, WhatCannotBeSeenTurnsJustDarkEnough)
{
    for (const ColorValue color : {White, Yellow, ColorValue(0xC0C0C0), ColorValue(0xFFD0A0)}) {
        for (const double least : {LineContrast, TextContrast}) {
            const double contrast = ContrastOnPaper(InkOnPaper(color, least));
            EXPECT_GE(contrast, least) << color;
            EXPECT_LT(contrast, least + 0.2) << color;
        }
    }
    const ColorValue dark = InkOnPaper(Yellow, TextContrast);
    EXPECT_EQ(dark & 0xFF0000, 0U) << "yellow stays a yellow";
    EXPECT_EQ(dark & 0xFF, dark >> 8 & 0xFF);
}

TEST(PaperInk, TextsLinesAndBarsOfAPaneAreRecolored)
{
    CChart2D pane;
    pane.PaneInterior().SetForeground(White);
    CSeriesStyle& style = pane.PaneGroups(2).SeriesStyles(3);
    style.LineLook().SetColor(White);
    style.FillLook().SetColor(White);
    CPaneLabel& label = pane.PaneLabels().Add();
    label.Interior().SetBackground(Black);
    label.Interior().SetForeground(White);
    TakePaperInk(pane);
    EXPECT_GE(ContrastOnPaper(pane.PaneInterior().Foreground()), TextContrast);
    EXPECT_GE(ContrastOnPaper(style.LineLook().LineColor()), LineContrast);
    EXPECT_GE(ContrastOnPaper(style.FillLook().FillColor()), LineContrast);
    EXPECT_GE(ContrastOnPaper(label.Interior().Foreground()), TextContrast);
    EXPECT_EQ(label.Interior().Background(), White);
}

} // namespace zantroq
