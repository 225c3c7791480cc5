#include "ChartWindowFixture.h"

#include "window/PointInspection.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

using namespace test;

constexpr int Price = FirstPaneControl, FirstStudy = FirstPaneControl + 1;

struct sPixel
{
    int X = 0, Y = 0;
};

// The pixel of a displayed point's value in the price pane.
sPixel At(sChartFixture& chart, int series, int point)
{
    const CPaneGroup& group = chart.Window->Pane(0).PaneGroups(1);
    sPixel pixel;
    group.DataToPixel(group.PaneData().PointX(series, point), group.PaneData().PointY(series, point), pixel.X,
                      pixel.Y);
    return pixel;
}

// A daily chart of 20 points; point k has the close 100 + k % 10, the high one above and the low one below.
std::unique_ptr<sChartFixture> DailyChart(bool fakeTrends = false)
{
    auto chart = ChartOf(DailyData, fakeTrends);
    chart->Chart("X", 20);
    return chart;
}

const CPaneLabel& Readout(sChartFixture& chart)
{
    return chart.Window->Pane(0).PaneLabels().Item(1);
}

void RightClick(sChartFixture& chart, sPixel pixel)
{
    chart.Window->OnChartMouseDown(Price, MouseRight, 0, pixel.X, pixel.Y);
}

TEST(PointInspection, TheMarkerFollowsTheMouseOnAllPanes)
{
    auto chart = DailyChart();
    const sPixel pixel = At(*chart, 1, 7);
    chart->Window->OnChartMouseMove(Price, 0, 0, pixel.X, pixel.Y);
    EXPECT_EQ(chart->Window->SelectedPoint(), 7);
    EXPECT_EQ(chart->Window->Pane(0).PaneArea().Marker().Point(), 7);
    EXPECT_EQ(chart->Window->Pane(1).PaneArea().Marker().Point(), 7);
}

TEST(PointInspection, FarFromAnyPointTheNearestInXIsMarked)
{
    auto chart = DailyChart();
    const sPixel pixel = At(*chart, 1, 7);
    chart->Window->OnChartMouseMove(Price, 0, 0, pixel.X, 60);
    EXPECT_EQ(chart->Window->SelectedPoint(), 7);
}

TEST(PointInspection, TheMarkerRestsDuringALoadAndWithTheBarSwitchedOff)
{
    auto chart = DailyChart();
    const sPixel pixel = At(*chart, 1, 7);
    chart->Window->OnCommand(CommandPriceBar);
    EXPECT_EQ(Text(*chart->Key, "Show Price Bar"), "0");
    EXPECT_FALSE(chart->Window->Pane(0).PaneArea().Marker().Shown());
    chart->Window->OnChartMouseMove(Price, 0, 0, pixel.X, pixel.Y);
    EXPECT_EQ(chart->Window->SelectedPoint(), NoPoint);
    chart->Window->OnCommand(CommandPriceBar);
    EXPECT_TRUE(chart->Window->Pane(0).PaneArea().Marker().Shown());
    chart->Window->OnCommand(CommandDrawChart);
    chart->Window->OnChartMouseMove(Price, 0, 0, pixel.X, pixel.Y);
    EXPECT_EQ(chart->Window->SelectedPoint(), NoPoint);
}

TEST(PointInspection, AnEmptySeriesMarksAndShowsNothing)
{
    auto chart = ChartOf(DailyData);
    chart->Chart("X", 0);
    chart->Window->OnChartMouseMove(Price, 0, 0, 200, 100);
    chart->Window->OnChartMouseDown(Price, MouseLeft, 0, 200, 100);
    EXPECT_EQ(chart->Window->SelectedPoint(), NoPoint);
    EXPECT_FALSE(Readout(*chart).Shown());
    RightClick(*chart, {200, 100});
    EXPECT_EQ(chart->Desktop.Menu.Opened, 1);
}

TEST(PointInspection, AClickNearABarShowsItsReadoutTowardTheMiddle)
{
    auto chart = DailyChart();
    const sPixel left = At(*chart, 1, 3), right = At(*chart, 1, 19);
    chart->Window->OnChartMouseDown(Price, MouseLeft, 0, left.X + 9, left.Y);
    ASSERT_TRUE(Readout(*chart).Shown());
    EXPECT_EQ(Readout(*chart).Text().substr(0, 7), "Hi: 103");
    EXPECT_EQ(Readout(*chart).DataX(), 3);
    EXPECT_EQ(Readout(*chart).DataY(), 103);
    EXPECT_EQ(Readout(*chart).Side() & 0x0F, 1); // the text is on the right
    EXPECT_EQ(chart->Status(), "Ready");
    chart->Window->OnChartMouseDown(Price, MouseLeft, 0, right.X, right.Y);
    EXPECT_EQ(Readout(*chart).Side() & 0x0F, 2);
    // Point 19 has one of the greatest highs and is in the upper half.
    EXPECT_EQ(Readout(*chart).Side() & 0xF0, 0x20);
}

TEST(PointInspection, AClickTenPixelsAwayHidesTheReadout)
{
    auto chart = DailyChart();
    const sPixel pixel = At(*chart, 1, 20);
    chart->Window->OnChartMouseDown(Price, MouseLeft, 0, pixel.X, pixel.Y);
    ASSERT_TRUE(Readout(*chart).Shown());
    const sPixel below = At(*chart, 2, 20);
    chart->Window->OnChartMouseDown(Price, MouseLeft, 0, pixel.X + 10, (pixel.Y + below.Y) / 2);
    EXPECT_FALSE(Readout(*chart).Shown());
}

TEST(PointInspection, TheDistanceToABarIsThatToItsLineFromHighToLow)
{
    auto chart = DailyChart();
    const sPixel high = At(*chart, 1, 20), low = At(*chart, 2, 20);
    const CChart2D& pane = chart->Window->Pane(0);
    EXPECT_EQ(FindNearPoint(pane, false, 20, high.X, (high.Y + low.Y) / 2).Distance, 0);
    EXPECT_EQ(FindNearPoint(pane, false, 20, high.X + 6, high.Y).Distance, 6);
    EXPECT_EQ(FindNearPoint(pane, false, 20, high.X + 3, high.Y - 4).Distance, 5);
    EXPECT_EQ(FindNearPoint(pane, false, 20, low.X + 3, low.Y + 5).Distance, 5); // 5.83 truncated
    EXPECT_EQ(FindNearPoint(pane, false, 0, high.X, high.Y).Distance, 1000);
}

TEST(PointInspection, ADeletedBarIsAskedForInFullAndGoes)
{
    auto chart = DailyChart();
    chart->Desktop.Box.Answers = {BoxAnswer::Yes};
    RightClick(*chart, At(*chart, 1, 5)); // index 4: close 104
    ASSERT_EQ(chart->Desktop.Box.Texts.size(), 1u);
    EXPECT_EQ(chart->Desktop.Box.Captions.front(), "Interval deletion");
    EXPECT_EQ(chart->Desktop.Box.Texts.front(),
              "Do you really want to delete this interval?\n\n"
              "Hi: 105.0000, Low: 103.0000, Open: 104.0000, Close: 104.0000\nDate: 2014/01/06\n");
    EXPECT_EQ(chart->Window->Series()->GetCount(FieldTime), 19);
    EXPECT_EQ(chart->Window->Series()->GetCloseAt(4), 105);
    EXPECT_EQ(chart->Window->Range().shown, 19);
    EXPECT_EQ(chart->Window->Range().knownCount, 20); // new points wait until the count is reached again
    EXPECT_EQ(chart->Desktop.Menu.Opened, 0);
}

TEST(PointInspection, ABoxAnsweredWithNoChangesNothing)
{
    auto chart = DailyChart();
    RightClick(*chart, At(*chart, 1, 5));
    EXPECT_EQ(chart->Desktop.Box.Texts.size(), 1u);
    EXPECT_EQ(chart->Window->Series()->GetCount(FieldTime), 20);
    EXPECT_FALSE(chart->Window->DrawManager().seriesEdited);
}

TEST(PointInspection, ATickBoxNamesPriceVolumeTimeAndDate)
{
    sChartFixture chart;
    chart.Chart("X", 20);
    RightClick(chart, At(chart, 1, 5));
    ASSERT_EQ(chart.Desktop.Box.Captions, Log{"Tick deletion"});
    EXPECT_EQ(chart.Desktop.Box.Texts.front(),
              "Do you really want to delete this tick?\n\nPrice: 104.00\nVolume: 10\n"
              "Time: 00:00:00min on 2014/01/06");
}

TEST(PointInspection, ARightClickTenPixelsFromAnyBarOpensTheMenu)
{
    auto chart = DailyChart();
    const sPixel last = At(*chart, 1, 20), low = At(*chart, 2, 20);
    RightClick(*chart, {last.X + 10, (last.Y + low.Y) / 2});
    EXPECT_TRUE(chart->Desktop.Box.Texts.empty());
    EXPECT_EQ(chart->Desktop.Menu.Last.Number, 129);
    RightClick(*chart, {last.X + 9, (last.Y + low.Y) / 2});
    EXPECT_EQ(chart->Desktop.Box.Texts.size(), 1u);
}

TEST(PointInspection, AStudyPaneOpensItsOwnMenuWithThePaneCommands)
{
    auto chart = DailyChart();
    chart->Window->OnChartMouseDown(FirstStudy, MouseRight, 0, 100, 40);
    EXPECT_EQ(chart->Desktop.Menu.Last.Number, 212);
    ASSERT_EQ(chart->Desktop.Menu.Last.Items.size(), 3u);
    EXPECT_EQ(chart->Window->ClickedPane(), 1);
}

TEST(PointInspection, ACollapsedPricePaneOpensItsMenuOverAnyPoint)
{
    auto chart = DailyChart();
    chart->Window->OnCommand(CommandMinimizePane); // the price pane, clicked last
    RightClick(*chart, {100, 8});
    EXPECT_EQ(chart->Desktop.Menu.Opened, 1);
    EXPECT_TRUE(FindMenuItem(chart->Desktop.Menu.Last.Items, CommandRestorePane)->Enabled);
}

TEST(PointInspection, RestoringIsOfferedForWhatWasDeletedAndAsksTheFeedAgain)
{
    auto chart = DailyChart();
    EXPECT_FALSE(FindMenuItem(chart->Window->MenuOf(0).Items, CommandRestoreBars)->Enabled);
    chart->Window->OnCommand(CommandRestoreBars);
    EXPECT_TRUE(chart->Desktop.Box.Texts.empty());
    chart->Desktop.Box.Answers = {BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::Yes};
    RightClick(*chart, At(*chart, 1, 5));
    EXPECT_TRUE(FindMenuItem(chart->Window->MenuOf(0).Items, CommandRestoreBars)->Enabled);
    EXPECT_FALSE(FindMenuItem(chart->Window->MenuOf(0).Items, CommandRestoreTicks)->Enabled);
    chart->Feed.Calls.clear();
    chart->Window->OnCommand(CommandRestoreBars);
    EXPECT_TRUE(chart->Feed.Calls.empty());
    chart->Window->OnCommand(CommandRestoreBars);
    EXPECT_EQ(chart->Desktop.Box.Texts.back(), "Restore deleted intervals?");
    EXPECT_EQ(chart->Desktop.Box.Captions.back(), "Restoring intervals");
    EXPECT_EQ(chart->Feed.Calls, (Log{"unwatch X", "watch X", "send X"}));
    EXPECT_TRUE(chart->Window->DrawManager().seriesEdited);
    EXPECT_EQ(chart->Desktop.Top.TitleText, "X - Chart");
    chart->Reply(20);
    chart->Tick();
    EXPECT_FALSE(chart->Window->DrawManager().seriesEdited);
    EXPECT_EQ(chart->Window->Range().shown, 20);
}

TEST(PointInspection, AnArmedTrendlineModeKeepsTheMouse)
{
    auto chart = DailyChart(true);
    chart->Trends.Mode = 1;
    const sPixel pixel = At(*chart, 1, 5);
    RightClick(*chart, pixel);
    chart->Window->OnChartMouseDown(Price, MouseLeft, 0, pixel.X, pixel.Y);
    chart->Window->OnChartMouseMove(Price, 0, 0, pixel.X, pixel.Y);
    EXPECT_EQ(chart->Trends.Downs, 2);
    EXPECT_EQ(chart->Trends.Moves, 1);
    EXPECT_TRUE(chart->Desktop.Box.Texts.empty());
    EXPECT_EQ(chart->Window->SelectedPoint(), NoPoint);
    EXPECT_FALSE(Readout(*chart).Shown());
}

TEST(PointInspection, DeletingTheLastPointLeavesTheMarkerWhereItIs)
{
    auto chart = DailyChart();
    const sPixel pixel = At(*chart, 1, 20);
    chart->Window->OnChartMouseMove(Price, 0, 0, pixel.X, pixel.Y);
    chart->Desktop.Box.Answers = {BoxAnswer::Yes};
    RightClick(*chart, pixel);
    EXPECT_EQ(chart->Window->Series()->GetCount(FieldTime), 19);
    EXPECT_EQ(chart->Window->SelectedPoint(), 20);
}

// A symbol with a comma drops the displayed chart and requests nothing, so the panes still show it over an
// empty series.
TEST(PointInspection, ADroppedChartMarksShowsAndDeletesNothing)
{
    auto chart = DailyChart();
    const sPixel pixel = At(*chart, 1, 5);
    chart->Type("A,B");
    chart->Window->OnCommand(CommandDrawChart);
    ASSERT_EQ(chart->Window->Series()->GetCount(FieldTime), 0);
    chart->Window->OnChartMouseMove(Price, 0, 0, pixel.X, pixel.Y);
    EXPECT_EQ(chart->Window->SelectedPoint(), NoPoint);
    chart->Window->OnChartMouseDown(Price, MouseLeft, 0, pixel.X, pixel.Y);
    EXPECT_FALSE(Readout(*chart).Shown());
    RightClick(*chart, pixel);
    EXPECT_TRUE(chart->Desktop.Box.Texts.empty());
    EXPECT_EQ(chart->Desktop.Menu.Opened, 1);
    EXPECT_FALSE(chart->Window->DrawManager().seriesEdited);
}

TEST(PointInspection, AChartThatIsReplacedWhileItsPointIsAskedAboutKeepsAllPoints)
{
    auto chart = DailyChart();
    // The host sets another symbol, and its reply arrives, while the message box is open.
    chart->Desktop.Box.WhileOpen = [&] {
        chart->Window->SetSymbol("Y");
        for (int k = 0; k < 20; ++k) {
            sHIST_POINT point;
            point.Time.Time = 30000.0 + k;
            point.Open = point.High = point.Low = point.Close = 50;
            chart->Window->Series()->AppendPoint(point);
        }
        chart->Feed.Sent->SetComplete(true);
        chart->Tick();
    };
    chart->Desktop.Box.Answers = {BoxAnswer::Yes};
    RightClick(*chart, At(*chart, 1, 5));
    EXPECT_EQ(chart->Window->Series()->GetCount(FieldTime), 20);
    EXPECT_FALSE(chart->Window->DrawManager().seriesEdited);
}

TEST(PointInspection, LivePointsThatComeWhileAPointIsAskedAboutDoNotShiftTheDeletion)
{
    auto chart = ChartOf(DailyData);
    chart->Chart("X", 300);
    const int index = chart->Window->Range().first + 4; // the fifth displayed point
    const double closeBehind = chart->Window->Series()->GetCloseAt(index + 1);
    chart->Desktop.Box.WhileOpen = [&] {
        chart->Append(7);
        chart->Tick(); // the view moves on by seven
    };
    chart->Desktop.Box.Answers = {BoxAnswer::Yes};
    RightClick(*chart, At(*chart, 1, 5));
    EXPECT_EQ(chart->Window->Series()->GetCount(FieldTime), 306);
    EXPECT_EQ(chart->Window->Series()->GetCloseAt(index), closeBehind);
}

TEST(PointInspection, ALiveChangeOfThePointAskedAboutDoesNotSaveIt)
{
    auto chart = DailyChart();
    chart->Desktop.Box.WhileOpen = [&] {
        sHIST_POINT point;
        chart->Window->Series()->GetPoint(19, point);
        point.Close = 109.5;
        chart->Window->Series()->UpdatePoint(19, point);
        chart->Tick();
    };
    chart->Desktop.Box.Answers = {BoxAnswer::Yes};
    RightClick(*chart, At(*chart, 1, 20));
    EXPECT_EQ(chart->Window->Series()->GetCount(FieldTime), 19);
}

TEST(PointInspection, AChartThatIsReplacedWhileRestoringIsAskedAboutIsNotAskedForTwice)
{
    auto chart = DailyChart();
    chart->Desktop.Box.Answers = {BoxAnswer::Yes, BoxAnswer::Yes};
    RightClick(*chart, At(*chart, 1, 5));
    chart->Feed.Calls.clear();
    chart->Desktop.Box.WhileOpen = [&] { chart->Window->SetSymbol("Y"); };
    chart->Window->OnCommand(CommandRestoreBars);
    EXPECT_EQ(chart->Feed.Calls, (Log{"unwatch X", "watch Y", "send Y"}));
}

std::string PriceTitle(sChartFixture& chart)
{
    return chart.Window->Pane(0).PaneLabels().Item(2).Text();
}

std::string StudyHeader(sChartFixture& chart)
{
    return chart.Window->Pane(1).PaneLabels().Item(1).Text();
}

// Points of 300 days with different volumes; the view is at the end.
std::unique_ptr<sChartFixture> ChartOfUnlikeDays(int dataType)
{
    auto chart = ChartOf(dataType);
    chart->Type("X");
    chart->Window->OnCommand(CommandDrawChart);
    for (int k = 0; k < 300; ++k) {
        sHIST_POINT point;
        point.Time.Time = 41641.0 + k;
        point.Last = point.Close = point.Open = 100 + k;
        point.High = point.Close + 1;
        point.Low = point.Close - 1;
        point.LastSize = 1000 + k;
        point.TotalVolume = 1000 + k;
        chart->Window->Series()->AppendPoint(point);
    }
    chart->Feed.Sent->SetComplete(true);
    chart->Tick();
    return chart;
}

TEST(PointInspection, TitlesStayWithTheMarkedPointWhileItIsScrolledAndEmptyWhenItLeaves)
{
    for (const int type : {int(TickData), int(DailyData)}) {
        auto chart = ChartOfUnlikeDays(type);
        const sPixel pixel = At(*chart, 1, 100); // index 279: close 379, volume 1279
        chart->Window->OnChartMouseMove(Price, 0, 0, pixel.X, pixel.Y);
        ASSERT_EQ(chart->Window->SelectedPoint(), 100);
        const std::string title = PriceTitle(*chart), header = StudyHeader(*chart);
        EXPECT_NE(title.find("379"), std::string::npos) << title;
        EXPECT_NE(header.find("1,279"), std::string::npos) << header;
        // One step back to the limit, and ten more.
        for (int k = 0; k < 11; ++k)
            chart->Window->OnHScroll(ScrollCode::LineLeft, 0);
        EXPECT_EQ(chart->Window->SelectedPoint(), 110);
        EXPECT_EQ(PriceTitle(*chart), title);
        EXPECT_EQ(StudyHeader(*chart), header);
        chart->Window->OnHScroll(ScrollCode::LeftEnd, 0);
        EXPECT_EQ(PriceTitle(*chart), type == TickData ? "Tick Price: " : "Daily Price: ");
        EXPECT_EQ(StudyHeader(*chart).find("Vol: "), std::string::npos) << StudyHeader(*chart);
    }
}

TEST(PointInspection, TitlesStayWithTheMarkedPointWhileTheViewFollowsNewPoints)
{
    for (const int type : {int(TickData), int(DailyData)}) {
        auto chart = ChartOfUnlikeDays(type);
        const sPixel pixel = At(*chart, 1, 3); // index 182: close 282, volume 1182
        chart->Window->OnChartMouseMove(Price, 0, 0, pixel.X, pixel.Y);
        const std::string title = PriceTitle(*chart);
        EXPECT_NE(title.find("282"), std::string::npos) << title;
        chart->Append(2);
        chart->Tick();
        EXPECT_EQ(chart->Window->SelectedPoint(), 1);
        EXPECT_EQ(PriceTitle(*chart), title);
        EXPECT_NE(StudyHeader(*chart).find("1,182"), std::string::npos) << StudyHeader(*chart);
        chart->Append(1);
        chart->Tick(); // the point leaves on the left
        EXPECT_EQ(PriceTitle(*chart), type == TickData ? "Tick Price: " : "Daily Price: ");
        EXPECT_EQ(StudyHeader(*chart).find("Vol: "), std::string::npos) << StudyHeader(*chart);
    }
}

TEST(PointInspection, TitlesEmptyWhenAZoomLeavesTheMarkedPointOutside)
{
    auto chart = ChartOfUnlikeDays(DailyData);
    const sPixel pixel = At(*chart, 1, 100);
    chart->Window->OnChartMouseMove(Price, 0, 0, pixel.X, pixel.Y);
    EXPECT_NE(PriceTitle(*chart).find("379"), std::string::npos) << PriceTitle(*chart);
    chart->Window->OnCommand(CommandZoomIn); // 90 points from the same first one
    ASSERT_EQ(chart->Window->Range().shown, 90);
    EXPECT_EQ(PriceTitle(*chart), "Daily Price: ");
    EXPECT_EQ(StudyHeader(*chart).find("Vol: "), std::string::npos) << StudyHeader(*chart);
}

TEST(PointInspection, TheTitleOfADeletedPointGoesWithIt)
{
    auto chart = DailyChart();
    const sPixel pixel = At(*chart, 1, 5); // close 104
    chart->Window->OnChartMouseMove(Price, 0, 0, pixel.X, pixel.Y);
    EXPECT_NE(PriceTitle(*chart).find("Close: 104"), std::string::npos) << PriceTitle(*chart);
    chart->Desktop.Box.Answers = {BoxAnswer::Yes};
    RightClick(*chart, pixel);
    EXPECT_NE(PriceTitle(*chart).find("Close: 105"), std::string::npos) << PriceTitle(*chart);
}

} // namespace
} // namespace zantroq
