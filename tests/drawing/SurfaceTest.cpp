#include "scene/Chart2D.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <tuple>
#include <vector>

namespace zantroq {
namespace {

struct CCountingView : IPaneView
{
    void PaneChanged() override { ++Times; }
    int Times = 0;
};

struct sWatchedPane
{
    sWatchedPane() { chart.SetView(&view); }
    CChart2D chart;
    CCountingView view;
};

TEST(Surface, TellsItsViewOfEachChange)
{
    sWatchedPane pane;
    pane.chart.PaneInterior().SetBackground(1);
    EXPECT_EQ(pane.view.Times, 1);
    pane.chart.PaneArea().PaneAxes().Y().ViewHigh().SetValue(17.0);
    EXPECT_GE(pane.view.Times, 2);
}

TEST(Surface, ABatchIsToldOnceAndOnlyIfAnythingChanged)
{
    sWatchedPane pane;
    pane.chart.SetBatched(true);
    pane.chart.PaneInterior().SetBackground(1);
    pane.chart.PaneGroups(1).PaneData().SetSeriesCount(1);
    pane.chart.PaneGroups(1).PaneData().SetPointCount(1, 5);
    EXPECT_EQ(pane.view.Times, 0);
    pane.chart.SetBatched(false);
    EXPECT_EQ(pane.view.Times, 1);
    pane.chart.SetBatched(true);
    pane.chart.SetBatched(false);
    EXPECT_EQ(pane.view.Times, 1);
}

TEST(Surface, ASingleValueRepaintsUnlessBatched)
{
    sWatchedPane pane;
    CPaneData& data = pane.chart.PaneGroups(1).PaneData();
    data.SetSeriesCount(1);
    data.SetPointCount(1, 3);
    pane.view.Times = 0;
    data.SetPointY(1, 3, 2.5);
    EXPECT_EQ(pane.view.Times, 1);
    pane.chart.SetBatched(true);
    data.SetPointY(1, 3, 3.5);
    EXPECT_EQ(pane.view.Times, 1);
}

TEST(Surface, SettingAnEqualValueIsNoChange)
{
    sWatchedPane pane;
    CPaneLabel& label = pane.chart.PaneLabels().Add();
    label.SetText("a");
    pane.chart.PaneArea().PaneAxes().X().ViewLow().SetValue(1.0);
    pane.view.Times = 0;
    label.SetText("a");
    label.SetShown(false);
    pane.chart.PaneArea().PaneAxes().X().ViewLow().SetValue(1.0);
    pane.chart.PaneArea().PaneMarkers("x").SetPoint(NoPoint);
    EXPECT_EQ(pane.view.Times, 0);
}

TEST(Surface, ASuspendedLabelIsToldOnceWhenItResumes)
{
    sWatchedPane pane;
    CPaneLabel& label = pane.chart.PaneLabels().Add();
    pane.view.Times = 0;
    label.SetRepaintSuspended(true);
    label.SetText("one");
    label.SetShown(true);
    EXPECT_EQ(pane.view.Times, 0);
    label.SetRepaintSuspended(false);
    EXPECT_EQ(pane.view.Times, 1);
    label.SetRepaintSuspended(false);
    EXPECT_EQ(pane.view.Times, 1);
}

// Regression: a suspended label passed its colors on at once.
TEST(Surface, TheColorsOfASuspendedLabelWaitWithIt)
{
    sWatchedPane pane;
    CPaneLabel& label = pane.chart.PaneLabels().Add();
    pane.view.Times = 0;
    label.SetRepaintSuspended(true);
    label.Interior().SetBackground(0x123456);
    label.Interior().SetForeground(0x654321);
    label.Interior().ClearBackground();
    EXPECT_EQ(pane.view.Times, 0);
    label.SetRepaintSuspended(false);
    EXPECT_EQ(pane.view.Times, 1);
    label.Interior().SetForeground(0x111111);
    EXPECT_EQ(pane.view.Times, 2);
    label.Interior().SetForeground(0x111111);
    EXPECT_EQ(pane.view.Times, 2);
}

TEST(Surface, ItemsOfCollectionsCountFromOneAndHaveNames)
{
    CChart2D chart;
    EXPECT_THROW(chart.PaneGroups(0), std::invalid_argument);
    EXPECT_THROW(chart.PaneGroups(3), std::invalid_argument);
    EXPECT_THROW(chart.PaneLabels().Item(1), std::invalid_argument);
    EXPECT_THROW(chart.PaneGroups(1).SeriesStyles(0), std::invalid_argument);
    EXPECT_THROW(chart.PaneArea().PaneAxes().Item("z"), std::invalid_argument);
    EXPECT_THROW(chart.PaneArea().PaneMarkers("y"), std::invalid_argument);
    EXPECT_THROW(std::ignore = chart.PaneArea().PaneAxes().X().TickLabels().Item(1), std::invalid_argument);
    EXPECT_EQ(&chart.PaneArea().PaneAxes().Item("y2"), &chart.PaneArea().PaneAxes().Y2());
}

TEST(Surface, LabelsBehindARemovedOneMoveDown)
{
    CChart2D chart;
    for (const char* text : {"a", "b", "c"})
        chart.PaneLabels().Add().SetText(text);
    chart.PaneLabels().Remove(2);
    EXPECT_EQ(chart.PaneLabels().Count(), 2);
    EXPECT_EQ(chart.PaneLabels().Item(2).Text(), "c");
    EXPECT_THROW(chart.PaneLabels().Remove(3), std::invalid_argument);
}

TEST(Surface, AnAxisValueThatIsSetIsNoLongerAutomatic)
{
    CChart2D chart;
    CAxisBound& origin = chart.PaneArea().PaneAxes().Y().AxisOrigin();
    EXPECT_TRUE(origin.Automatic());
    origin.SetValue(0.0);
    EXPECT_FALSE(origin.Automatic());
}

TEST(Surface, PrintingHandsThePaneToTheDevice)
{
    struct CPage : IPrintDevice
    {
        bool PaintPane(const CChart2D&, int left, int top, int width, int height) override
        {
            Box = {left, top, width, height};
            return Accepts;
        }
        std::vector<int> Box;
        bool Accepts = true;
    } page;
    CChart2D chart;
    EXPECT_TRUE(chart.DrawToDevice(page, 3, 4, 10, 20, 300, 400));
    EXPECT_EQ(page.Box, (std::vector<int>{10, 20, 300, 400}));
    page.Accepts = false;
    EXPECT_FALSE(chart.DrawToDevice(page, 3, 4, 0, 0, 1, 1));
}

} // namespace
} // namespace zantroq
