#include "paint/PaneRaster.h"

#include "paint/PanePixels.h"
#include "support/PaneScenes.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

using test::CPaintedPane;
using test::Pane;

Pane TwentyPoints()
{
    std::vector<double> y;
    for (int i = 0; i < 20; ++i)
        y.push_back(30 + 7 * (i % 5));
    return test::LinePane(280, 180, y);
}

// A curve that runs along its level line between its second and fourth point; the level is the later series.
Pane CurveOnItsLevel(int points)
{
    std::vector<double> curve(static_cast<std::size_t>(points), 44.0);
    curve.front() = 10;
    curve.back() = 90;
    Pane pane = test::LinePane(280, 180, curve);
    test::LoadGroup(pane->PaneGroups(1), {curve, std::vector<double>(curve.size(), 44.0)});
    pane->PaneGroups(1).SeriesStyles(1).LineLook().SetColor(0x0000FF);
    pane->PaneGroups(1).SeriesStyles(2).LineLook().SetColor(0x00FF00);
    return pane;
}

TEST(PaneRaster, ALevelLineLiesUnderItsCurveInTheConvenientManner)
{
    for (const int points : {5, 5000}) { // painted point by point, and known by its ends
        const Pane pane = CurveOnItsLevel(points);
        int x = 0, y = 0;
        pane->PaneGroups(1).DataToPixel(points / 2.0, 44, x, y);
        CPaintedPane painted(*pane);
        EXPECT_EQ(painted.Picture.At(x, y), PixelOf(0x00FF00)) << "the order of the series, " << points;
        painted.SetManner(PaneManner::Convenient);
        painted.Paint();
        EXPECT_EQ(painted.Picture.At(x, y), PixelOf(0x0000FF)) << points;
        painted.SetManner(PaneManner::Plain);
        painted.Paint();
        EXPECT_EQ(painted.Picture.At(x, y), PixelOf(0x00FF00)) << points;
    }
}

TEST(PaneRaster, PaintsEveryPixelTheFirstTime)
{
    const Pane pane = TwentyPoints();
    const CPaintedPane painted(*pane);
    for (const PixelColor pixel : painted.Picture.Pixels)
        ASSERT_EQ(pixel >> 24, 0xffu);
}

TEST(PaneRaster, PaintsNothingWhenNothingChanged)
{
    const Pane pane = TwentyPoints();
    CPaintedPane painted(*pane);
    painted.Picture.Pixels.assign(painted.Picture.Pixels.size(), 0x12345678);
    const sPixelRect part = painted.Paint();
    EXPECT_LE(part.Width(), 0);
    for (const PixelColor pixel : painted.Picture.Pixels)
        ASSERT_EQ(pixel, 0x12345678u);
}

TEST(PaneRaster, AChangedLastPointPaintsItsOwnColumnsAlone)
{
    const Pane pane = TwentyPoints();
    CPaintedPane painted(*pane);
    const test::sPixels before = painted.Picture;
    pane->PaneGroups(1).PaneData().SetPointY(1, 20, 90);
    const sPixelRect part = painted.Paint();
    int x19 = 0, x20 = 0, y = 0;
    pane->PaneGroups(1).PointToPixel(1, 19, x19, y);
    pane->PaneGroups(1).PointToPixel(1, 20, x20, y);
    EXPECT_LE(part.Left, x19);
    EXPECT_GT(part.Left, x19 - 10);
    EXPECT_GT(part.Right, x20);
    EXPECT_EQ(part.Top, pane->PlotRect().Top);
    EXPECT_EQ(part.Bottom, pane->PlotRect().Bottom);
    for (int row = 0; row < 180; ++row)
        for (int x = 0; x < 280; ++x)
            if (x < part.Left || x >= part.Right) {
                ASSERT_EQ(painted.Picture.At(x, row), before.At(x, row)) << x << ", " << row;
            }
    EXPECT_TRUE(painted.Picture.Pixels == CPaintedPane(*pane).Picture.Pixels);
    EXPECT_FALSE(painted.Picture.Pixels == before.Pixels);
}

TEST(PaneRaster, AfterEachChangeThePictureIsThatPaintedFromNothing)
{
    const Pane pane = TwentyPoints();
    CPaintedPane painted(*pane);
    const auto expectFresh = [&](const char* change) {
        painted.Paint();
        EXPECT_TRUE(painted.Picture.Pixels == CPaintedPane(*pane).Picture.Pixels) << change;
    };
    pane->PaneGroups(1).PaneData().SetPointY(1, 7, 90);
    expectFresh("a point in the middle");
    pane->PaneArea().PaneAxes().Y().ViewHigh().SetValue(150);
    expectFresh("another range");
    test::AddLabel(*pane, "Hi: 1  Low: 2", AttachToPaneTopLeft, AnchorBelowRight);
    expectFresh("a title");
    pane->PaneArea().PlotFrame().Interior().SetBackground(0xe0ffff);
    expectFresh("another background");
    pane->PaneArea().PlotFrame().LeftMargin().SetValue(80);
    expectFresh("another plot");
    pane->PaneGroups(1).SetChartType(ChartBars);
    expectFresh("bars");
}

} // namespace
} // namespace zantroq
