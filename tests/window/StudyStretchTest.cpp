// The study panes of a tick chart show the same range as the price pane, whatever was drawn between two timer
// ticks.
#include "ChartWindowFixture.h"

#include <gtest/gtest.h>

#include <random>

namespace zantroq {
namespace {

using namespace test;

// A tick chart with only the volume study; the size of each trade is its index.
struct sTickChart : sChartFixture
{
    explicit sTickChart(int points)
    {
        Type("X");
        Window->OnCommand(CommandDrawChart);
        Trades(points);
        Feed.Sent->SetComplete(true);
        Tick();
    }
    void Trades(int count)
    {
        for (int k = 0; k < count; ++k) {
            const int n = Window->Series()->GetCount(FieldTime);
            sHIST_POINT point;
            point.Time.Time = 41641.0 + n / 86400.0;
            point.Last = 100 + n % 7;
            point.LastSize = static_cast<std::uint32_t>(n);
            Window->Series()->AppendPoint(point);
        }
    }
    testing::AssertionResult StudiesShowThePricesStretch()
    {
        const sDisplayRange& range = Window->Range();
        const CPaneData& prices = Window->Pane(0).PaneGroups(1).PaneData();
        const CPaneData& volumes = Window->Pane(1).PaneGroups(1).PaneData();
        if (volumes.PointCount(1) != prices.PointCount(1))
            return testing::AssertionFailure()
                   << volumes.PointCount(1) << " volumes, " << prices.PointCount(1) << " prices";
        for (int point = 1; point <= volumes.PointCount(1); ++point)
            if (volumes.PointY(1, point) != range.first + point - 1)
                return testing::AssertionFailure()
                       << "point " << point << " shows the volume of index " << volumes.PointY(1, point)
                       << ", the first price being of " << range.first;
        return testing::AssertionSuccess();
    }
};

TEST(StudyStretch, ReturningToTheEndOfATickChartDoublesNoPoint)
{
    sTickChart chart(200);
    ASSERT_TRUE(chart.StudiesShowThePricesStretch());
    chart.Window->OnHScroll(ScrollCode::LineLeft, 0);
    chart.Trades(10);
    chart.Window->OnHScroll(ScrollCode::RightEnd, 0);
    EXPECT_TRUE(chart.StudiesShowThePricesStretch());
    chart.Tick();
    EXPECT_EQ(chart.Window->Range().last, 209);
    EXPECT_TRUE(chart.StudiesShowThePricesStretch());
}

TEST(StudyStretch, ADrawBetweenATradeAndTheTimerDoublesNoPoint)
{
    for (const int points : {20, 200}) {
        sTickChart chart(points);
        chart.Trades(1);
        chart.Window->OnCommand(CommandGrid);
        chart.Window->OnHScroll(ScrollCode::RightEnd, 0);
        chart.Tick();
        EXPECT_EQ(chart.Window->Range().last, points);
        EXPECT_TRUE(chart.StudiesShowThePricesStretch()) << points;
    }
}

// A thumb dragged to the end moves only the bar; the timer draws there.
TEST(StudyStretch, AThumbDraggedToTheEndBringsTheStudiesAlong)
{
    sTickChart chart(500);
    chart.Window->OnHScroll(ScrollCode::LeftEnd, 0);
    chart.Desktop.Scroll.SetPosition(chart.Desktop.Scroll.Limit());
    chart.Trades(3);
    chart.Tick();
    EXPECT_EQ(chart.Window->Range().last, 502);
    EXPECT_TRUE(chart.StudiesShowThePricesStretch());
}

TEST(StudyStretch, HoldsThroughAnyRowOfTradesScrollsAndZooms)
{
    for (unsigned seed = 1; seed <= 60; ++seed) {
        std::mt19937 random(seed);
        const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
        sTickChart chart(1 + below(seed % 2 ? 60 : 700));
        std::string row;
        for (int step = 0; step < 120; ++step) {
            const int kind = below(9);
            row += " " + std::to_string(kind);
            if (kind < 3)
                chart.Trades(1 + below(kind == 0 ? 40 : 3));
            else if (kind < 5)
                chart.Tick();
            else if (kind == 5)
                chart.Window->OnCommand(below(2) ? CommandZoomIn : CommandZoomOut);
            else if (kind == 6)
                chart.Window->OnHScroll(ScrollCode::RightEnd, 0);
            else
                chart.Window->OnHScroll(std::array{ScrollCode::LineLeft, ScrollCode::LineRight,
                                                   ScrollCode::PageLeft, ScrollCode::PageRight,
                                                   ScrollCode::LeftEnd}[static_cast<std::size_t>(below(5))],
                                        0);
            ASSERT_TRUE(chart.StudiesShowThePricesStretch()) << "seed " << seed << ", steps" << row;
        }
    }
}

} // namespace
} // namespace zantroq
