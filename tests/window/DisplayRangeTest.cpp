#include "window/DisplayRange.h"

#include "WindowFakes.h"

#include "window/RangeBars.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

using namespace test;

// A window of 120 points (index 3 of the list) and a series of `points`; the scroll bar as after a first
// draw.
struct sRangeFixture
{
    explicit sRangeFixture(int points = 1000)
    {
        Drawing.Points = points;
        Display.SetUp();
        Bar.SetRange(0, points);
        Bar.SetPosition(points - 120 + 1);
        Drawing.Calls.clear();
    }
    sFakeStatus StatusBar;
    sFakeTrends Trends;
    CStatusText Status{StatusBar, Trends};
    sFakeScroll Bar;
    sFakeDrawing Drawing;
    sChartSettings Settings;
    CDisplayRange Display{Settings, Bar, Status, Drawing};
};

TEST(DisplayRange, StartsHiddenWithAPageOfItsPoints)
{
    sRangeFixture fresh(0);
    fresh.Display.SetUp();
    EXPECT_EQ(fresh.Bar.High, 120);
    EXPECT_EQ(fresh.Bar.PageSize, 120);
    EXPECT_EQ(fresh.Bar.At, 0);
    EXPECT_FALSE(fresh.Bar.Shown);
    EXPECT_EQ(fresh.Display.Range().scrollPos, 0);
}

TEST(DisplayRange, LineStepsByOnePointAndPageByThePage)
{
    sRangeFixture view;
    view.Bar.SetPosition(500);
    view.Display.OnHScroll(ScrollCode::LineLeft, 0);
    EXPECT_EQ(view.Bar.At, 499);
    view.Display.OnHScroll(ScrollCode::LineRight, 0);
    EXPECT_EQ(view.Bar.At, 500);
    view.Display.OnHScroll(ScrollCode::PageLeft, 0);
    EXPECT_EQ(view.Bar.At, 380);
    view.Display.OnHScroll(ScrollCode::PageRight, 0);
    EXPECT_EQ(view.Bar.At, 500);
    EXPECT_EQ(view.Drawing.Calls, (Log{"draw 499", "draw 500", "draw 380", "draw 500"}));
}

TEST(DisplayRange, StepsStopAtBothEnds)
{
    sRangeFixture view;
    view.Bar.SetPosition(50);
    view.Display.OnHScroll(ScrollCode::PageLeft, 0);
    EXPECT_EQ(view.Bar.At, 0);
    view.Display.OnHScroll(ScrollCode::LineLeft, 0);
    EXPECT_EQ(view.Bar.At, 0);
    view.Display.OnHScroll(ScrollCode::RightEnd, 0);
    EXPECT_EQ(view.Bar.At, 881); // 1000 - 120 + 1
    view.Display.OnHScroll(ScrollCode::LineRight, 0);
    view.Display.OnHScroll(ScrollCode::PageRight, 0);
    EXPECT_EQ(view.Bar.At, 881);
    view.Display.OnHScroll(ScrollCode::LeftEnd, 0);
    EXPECT_EQ(view.Bar.At, 0);
}

TEST(DisplayRange, ADraggedThumbDrawsOnlyWhenItIsLetGo)
{
    sRangeFixture view;
    view.Display.OnHScroll(ScrollCode::ThumbTrack, 300);
    view.Display.OnHScroll(ScrollCode::ThumbTrack, 310);
    view.Display.OnHScroll(ScrollCode::ThumbPosition, 310);
    EXPECT_TRUE(view.Drawing.Calls.empty());
    EXPECT_EQ(view.Bar.At, 881);
    EXPECT_EQ(view.Display.Range().scrollPos, 310);
    view.Display.OnHScroll(ScrollCode::EndScroll, 0);
    EXPECT_EQ(view.Drawing.Calls, Log{"draw 310"});
    EXPECT_EQ(view.Bar.At, 310);
}

TEST(DisplayRange, EndOfScrollWithoutADragRedrawsAtThePositionStored)
{
    sRangeFixture view;
    view.Bar.SetPosition(200);
    view.Display.OnHScroll(ScrollCode::LineLeft, 0);
    view.Drawing.Calls.clear();
    view.Display.OnHScroll(ScrollCode::EndScroll, 0);
    EXPECT_EQ(view.Drawing.Calls, Log{"draw 199"});
}

TEST(DisplayRange, AScrollSaysThatItLoadsAndThenReady)
{
    sRangeFixture view;
    view.Display.OnHScroll(ScrollCode::LineLeft, 0);
    EXPECT_EQ(view.StatusBar.Said, (Log{"Loading...", "Ready"}));
}

TEST(DisplayRange, ZoomInKeepsTheBarWhereItStands)
{
    sRangeFixture view;
    view.Bar.SetPosition(500);
    view.Display.ZoomIn();
    EXPECT_EQ(view.Display.Range().ptsIndex, 2);
    EXPECT_EQ(view.Display.Range().shown, 90);
    EXPECT_EQ(view.Bar.PageSize, 90);
    EXPECT_EQ(view.Display.Range().scrollPos, 500);
    EXPECT_EQ(view.Drawing.Calls, Log{"draw 500"});
}

TEST(DisplayRange, ZoomInGoesOnUntilAnEntryIsBelowTheCount)
{
    sRangeFixture view(61);
    view.Settings.PtsIndex = 8; // 3840
    view.Display.ResetShown();
    view.Display.ZoomIn();
    EXPECT_EQ(view.Display.Range().shown, 60);
    EXPECT_EQ(view.Display.Range().ptsIndex, 1);
}

TEST(DisplayRange, ZoomInWithThirtyPointsOrFewerDoesNothing)
{
    sRangeFixture view(30);
    view.Display.ZoomIn();
    EXPECT_EQ(view.Display.Range().ptsIndex, 3);
    EXPECT_TRUE(view.Drawing.Calls.empty());
}

TEST(DisplayRange, ZoomOutStopsAtTheLastEntry)
{
    sRangeFixture view;
    view.Display.ZoomOut();
    EXPECT_EQ(view.Display.Range().shown, 240);
    view.Settings.PtsIndex = 14;
    view.Display.ResetShown();
    view.Drawing.Calls.clear();
    view.Display.ZoomOut();
    EXPECT_EQ(view.Display.Range().ptsIndex, 14);
    EXPECT_TRUE(view.Drawing.Calls.empty());
}

TEST(RangeBars, ZoomButtonsFollowTheCount)
{
    sFakeCommands commands;
    EnableZoomButtons(commands, 3, 119);
    EXPECT_TRUE(commands.On[CommandZoomIn]);
    EXPECT_FALSE(commands.On[CommandZoomOut]); // 120 is above 119
    EnableZoomButtons(commands, 3, 120);
    EXPECT_TRUE(commands.On[CommandZoomOut]);
    EnableZoomButtons(commands, 3, 30);
    EXPECT_FALSE(commands.On[CommandZoomIn]);
    EnableZoomButtons(commands, 3, 31);
    EXPECT_TRUE(commands.On[CommandZoomIn]);
}

TEST(RangeBars, ZoomInIsNotOfferedAtTheFirstEntry)
{
    sFakeCommands commands;
    EnableZoomButtons(commands, 0, 1000);
    EXPECT_FALSE(commands.On[CommandZoomIn]);
}

TEST(RangeBars, ZoomOutStaysOfferedAtTheLastEntryOfAFullSeries)
{
    sFakeCommands commands;
    EnableZoomButtons(commands, 14, 245760);
    EXPECT_TRUE(commands.On[CommandZoomOut]);
}

TEST(RangeBars, TheScrollBarComesAndGoesWithTheSeriesLengthAndPanesTakeTheirSizesThen)
{
    sFakeDesktop desktop;
    sPaneStack stack;
    std::array<CChart2D, MaxPanes> panes;
    CPaneLayout layout(stack, panes, desktop.Host, desktop.Scroll);
    CRangeBars bars(desktop.Scroll, desktop.Commands, layout);
    bars.Follow({30, true}, 0);
    EXPECT_TRUE(desktop.Scroll.Shown);
    EXPECT_EQ(layout.Height(), 393); // 460 - 30 - 37
    desktop.Host.Height = 560;
    bars.Follow({31, true}, 0); // stays visible: nothing is sized
    EXPECT_EQ(layout.Height(), 393);
    bars.Follow({29, false}, 0);
    EXPECT_FALSE(desktop.Scroll.Shown);
    EXPECT_EQ(layout.Height(), 510); // 560 - 30 - 20
    EXPECT_FALSE(desktop.Commands.On[CommandZoomIn]);
}

TEST(DisplayRange, ScrollStepIsAPercentageOfThePointsAndAtLeastOne)
{
    sRangeFixture view;
    view.Settings.ScrollByItems = false;
    view.Settings.ScrollPercent = 20;
    view.Display.RecomputeScrollStep();
    EXPECT_EQ(view.Display.ScrollStep(), 24);
    view.Display.ZoomIn();
    EXPECT_EQ(view.Display.ScrollStep(), 18);
    view.Settings.ScrollPercent = 0;
    view.Display.RecomputeScrollStep();
    EXPECT_EQ(view.Display.ScrollStep(), 1);
    view.Settings.ScrollByItems = true;
    view.Settings.ScrollItems = 7;
    view.Display.RecomputeScrollStep();
    EXPECT_EQ(view.Display.ScrollStep(), 7);
}

TEST(DisplayRange, AShortSeriesPassesANegativePositionAsItIs)
{
    sRangeFixture view(3);
    view.Settings.PtsIndex = 1; // 60
    view.Display.ResetShown();
    view.Display.ShowFirst(3);
    EXPECT_EQ(view.Bar.Asked, -56);
    EXPECT_EQ(view.Bar.At, 0);
    EXPECT_EQ(view.Drawing.Calls, Log{"full"});
}

TEST(DisplayRange, TheViewFollowsNewPointsAtTheLiveEdge)
{
    sRangeFixture view;
    view.Display.ShowFirst(1000);
    view.Drawing.Calls.clear();
    view.Drawing.Points = 1002;
    view.Display.FollowLiveEdge(1002);
    EXPECT_EQ(view.Drawing.Calls, Log{"update 2"});
    EXPECT_EQ(view.Bar.High, 1002);
    EXPECT_EQ(view.Bar.At, 883);
    EXPECT_EQ(view.StatusBar.Said.back(), "1002 datapoints available.  Displaying 120.");
}

TEST(DisplayRange, ATickWithoutNewPointsUpdatesTheLastOne)
{
    sRangeFixture view;
    view.Display.ShowFirst(1000);
    view.Drawing.Calls.clear();
    view.Display.FollowLiveEdge(1000);
    EXPECT_EQ(view.Drawing.Calls, Log{"update 0"});
}

TEST(DisplayRange, AViewScrolledAwayStaysAndCatchesUpAtTheEdge)
{
    sRangeFixture view;
    view.Display.ShowFirst(1000);
    view.Display.OnHScroll(ScrollCode::LineLeft, 0);
    view.Drawing.Calls.clear();
    view.StatusBar.Said.clear();
    view.Display.FollowLiveEdge(1005);
    EXPECT_TRUE(view.Drawing.Calls.empty());
    EXPECT_TRUE(view.StatusBar.Said.empty());
    EXPECT_EQ(view.Bar.High, 1000);
    EXPECT_EQ(view.Display.Range().knownCount, 1000);
    view.Display.OnHScroll(ScrollCode::LineRight, 0);
    view.Drawing.Calls.clear();
    view.Display.FollowLiveEdge(1005);
    EXPECT_EQ(view.Drawing.Calls, Log{"update 5"});
}

TEST(DisplayRange, NewPointsWaitUntilADeletedOneIsMadeUpFor)
{
    sRangeFixture view;
    view.Display.ShowFirst(1000);
    view.Drawing.Calls.clear();
    view.Display.FollowLiveEdge(999); // one was deleted
    EXPECT_TRUE(view.Drawing.Calls.empty());
    view.Display.FollowLiveEdge(1000);
    EXPECT_EQ(view.Drawing.Calls, Log{"update 0"});
    view.Display.FollowLiveEdge(1001);
    EXPECT_EQ(view.Drawing.Calls.back(), "update 1");
}

TEST(DisplayRange, AChartThatBeganEmptyDoesNotFollow)
{
    sRangeFixture view(0);
    view.Display.ShowFirst(0);
    view.Drawing.Calls.clear();
    view.Display.FollowLiveEdge(5);
    EXPECT_TRUE(view.Drawing.Calls.empty());
}

TEST(DisplayRange, AShortSeriesStandsAtTheEdge)
{
    sRangeFixture view(3);
    view.Display.ShowFirst(3);
    EXPECT_TRUE(view.Display.AtLimit());
}

} // namespace
} // namespace zantroq
