#include "ChartWindowFixture.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

using namespace test;

TEST(Lifecycle, AFreshWindowStandsIdle)
{
    sChartFixture chart;
    EXPECT_EQ(chart.Status(), "Ready...");
    EXPECT_FALSE(chart.DrawEnabled());
    EXPECT_TRUE(chart.Feed.Calls.empty());
    EXPECT_FALSE(chart.Desktop.Interval.On); // tick data
    EXPECT_EQ(chart.Desktop.Type.Selected, 0);
    EXPECT_TRUE(chart.Desktop.Timer.Running.empty());
    EXPECT_EQ(Text(*chart.Key, "RequestDataType"), "0");
}

TEST(Lifecycle, AStoredMinuteTypeEnablesTheIntervalBox)
{
    EXPECT_TRUE(ChartOf(MinuteData)->Desktop.Interval.On);
}

TEST(Lifecycle, ARefusedLoginLeavesTheWindowEmpty)
{
    struct sRefuse : ILoginVerification
    {
        bool Agrees() override { return false; }
    } refuse;
    sChartFixture chart(false);
    chart.Setup.Login = &refuse;
    chart.Window = std::make_unique<CChartDlg>(chart.Setup);
    EXPECT_FALSE(chart.Window->Initialise());
    EXPECT_EQ(chart.Window->Series(), nullptr);
    chart.Window->OnCommand(CommandDrawChart);
    chart.Tick();
    EXPECT_TRUE(chart.Feed.Calls.empty());
}

TEST(Lifecycle, DrawChartIsEnabledExactlyWhileThereIsASymbol)
{
    sChartFixture chart;
    chart.Type("A");
    EXPECT_TRUE(chart.DrawEnabled());
    chart.Type("");
    EXPECT_FALSE(chart.DrawEnabled());
}

TEST(Lifecycle, AnEmptySymbolOnTheButtonIsRefusedWithAWarning)
{
    sChartFixture chart;
    chart.Window->OnCommand(CommandDrawChart);
    ASSERT_EQ(chart.Desktop.Box.Texts, Log{"Empty Symbol is not allowed"});
    EXPECT_EQ(chart.Desktop.Box.Captions, Log{"Warning"});
    EXPECT_EQ(chart.Desktop.Box.Icon, BoxIcon::Error);
    EXPECT_TRUE(chart.Feed.Calls.empty());
}

TEST(Lifecycle, AnEmptySymbolOnOtherRoadsSaysNothing)
{
    sChartFixture chart;
    chart.Window->OnSymbolEnter();
    chart.Window->SetSymbol("");
    EXPECT_TRUE(chart.Desktop.Box.Texts.empty());
    EXPECT_TRUE(chart.Feed.Calls.empty());
}

TEST(Lifecycle, ACommaIsRefusedInTheStatusBarAndTheTitleStays)
{
    sChartFixture chart;
    chart.Type("A,B");
    chart.Window->OnCommand(CommandDrawChart);
    EXPECT_EQ(chart.Status(), "Symbols cannot contain any commas.");
    EXPECT_EQ(chart.Desktop.Top.TitleText, "Host");
    EXPECT_TRUE(chart.Feed.Calls.empty());
}

TEST(Lifecycle, ACommaDropsAChartThatWasOnShow)
{
    sChartFixture chart;
    chart.Chart("OLD", 5);
    ASSERT_NE(chart.Window->StatusPart(2), "");
    chart.Feed.Calls.clear();
    chart.Type("A,B");
    chart.Window->OnCommand(CommandDrawChart);
    EXPECT_EQ(chart.Feed.Calls, Log{"unwatch OLD"});
    EXPECT_EQ(chart.Window->Series()->GetCount(FieldTime), 0);
    EXPECT_EQ(chart.Desktop.Top.TitleText, "OLD - Chart");
    EXPECT_EQ(chart.Window->StatusPart(2), "") << "the last trade goes with its chart";
    EXPECT_EQ(chart.Window->Loading(), 0);
    EXPECT_TRUE(chart.Desktop.Timer.Running.empty());
    EXPECT_EQ(chart.Status(), "Symbols cannot contain any commas.");
}

TEST(Lifecycle, AFirstChartIsWatchedBeforeItIsAskedForAndNothingIsUnwatched)
{
    sChartFixture chart;
    chart.Type("MSFT");
    chart.Window->OnCommand(CommandDrawChart);
    EXPECT_EQ(chart.Feed.Calls, (Log{"watch MSFT", "send MSFT"}));
    EXPECT_EQ(chart.Desktop.Top.TitleText, "MSFT - Chart");
    EXPECT_EQ(chart.Desktop.Top.CaptionText, "Tick");
    EXPECT_EQ(chart.Desktop.Timer.Running[ProgressTimer], 250);
    EXPECT_EQ(chart.Window->Loading(), 1);
    EXPECT_FALSE(chart.DrawEnabled());
    EXPECT_FALSE(chart.Desktop.Host.ControlsOn);
    EXPECT_EQ(chart.Window->StatusPart(1), "MSFT");
    EXPECT_EQ(Text(*chart.Key, "SQ0"), "MSFT");
    const Log& said = chart.Desktop.Status.Said;
    EXPECT_NE(std::find(said.begin(), said.end(), "Loading Data..."), said.end());
}

TEST(Lifecycle, TheSameSymbolAgainIsDroppedAndAskedForAnew)
{
    sChartFixture chart;
    chart.Chart("MSFT", 5);
    chart.Feed.Calls.clear();
    chart.Window->OnCommand(CommandDrawChart);
    EXPECT_EQ(chart.Feed.Calls, (Log{"unwatch MSFT", "watch MSFT", "send MSFT"}));
    EXPECT_EQ(chart.Window->Series()->GetCount(FieldTime), 0);
}

TEST(Lifecycle, ProgressIsToldInTheWordsOfTheDataType)
{
    const char* const words[] = {
        "Retrieving Tick Data (2 Ticks Received)", "Retrieving Minute Data (2 Minutes Received)",
        "Retrieving Day Data (2 Days Received)", "Retrieving Week Data (2 Weeks Received)",
        "Retrieving Month Data (2 Months Received)"};
    for (int type = 0; type < 5; ++type) {
        const auto chart = ChartOf(type);
        chart->Type("X");
        chart->Window->OnCommand(CommandDrawChart);
        chart->Append(2);
        chart->Tick();
        EXPECT_EQ(chart->Status(), words[type]);
        EXPECT_EQ(chart->Window->Range().knownCount, 2);
    }
}

TEST(Lifecycle, AFeedThatNeverAnswersKeepsTheRetrievingText)
{
    sChartFixture chart;
    chart.Type("X");
    chart.Window->OnCommand(CommandDrawChart);
    for (int k = 0; k < 1000; ++k)
        chart.Tick();
    EXPECT_EQ(chart.Status(), "Retrieving Tick Data (0 Ticks Received)");
    EXPECT_EQ(chart.Window->Loading(), 1);
}

TEST(Lifecycle, ACompleteReplyIsDrawnAtTheLiveEdge)
{
    const auto chart = ChartOf(DailyData);
    chart->Chart("GOOG", 300);
    EXPECT_EQ(chart->Status(), "300 datapoints available.  Displaying 120.");
    EXPECT_EQ(chart->Window->Loading(), 0);
    EXPECT_TRUE(chart->DrawEnabled());
    EXPECT_TRUE(chart->Desktop.Host.ControlsOn);
    EXPECT_TRUE(chart->Window->CompleteAndDrawn());
    EXPECT_EQ(chart->Window->Range().first, 180);
    EXPECT_EQ(chart->Window->Range().last, 299);
    EXPECT_EQ(chart->Desktop.Scroll.At, 181);
    EXPECT_TRUE(chart->Desktop.Scroll.Shown);
    EXPECT_EQ(chart->Window->Pane(0).PaneGroups(1).PaneData().PointCount(1), 120);
}

TEST(Lifecycle, AnEmptyReplyIsDrawnWithNoPoints)
{
    sChartFixture chart;
    chart.Chart("X", 0);
    EXPECT_EQ(chart.Status(), "0 datapoints available.  Displaying 120.");
    EXPECT_EQ(chart.Window->Loading(), 0);
}

TEST(Lifecycle, AnEmptyReplyLeavesEveryPaneWithoutPointsThroughLaterDraws)
{
    sChartFixture chart;
    std::string error;
    ASSERT_TRUE(chart.Window->ApplySetting("Number of displayed study charts", "10", error)) << error;
    for (int kind = 0; kind < StudyKinds; ++kind) {
        const std::string name = "Type of study chart " + std::to_string(kind);
        ASSERT_TRUE(chart.Window->ApplySetting(name, std::to_string(kind), error)) << error;
    }
    ASSERT_EQ(chart.Window->ShownPanes(), 11);
    chart.Type("X");
    chart.Window->OnCommand(CommandDrawChart);
    const auto expectNoPoints = [&chart](const char* when) {
        for (int pane = 0; pane < 11; ++pane)
            for (const int group : {1, 2})
                EXPECT_EQ(chart.Window->Pane(pane).PaneGroups(group).PaneData().PointCount(1), 0)
                    << when << ", pane " << pane << ", group " << group;
    };
    chart.Window->OnResize();
    expectNoPoints("while it loads");
    chart.Reply(0);
    chart.Tick();
    chart.Window->OnHScroll(ScrollCode::PageLeft, 0);
    expectNoPoints("when it is there");
}

TEST(Lifecycle, AShortSeriesIsShownWholeWithoutAScrollBar)
{
    const auto chart = ChartOf(DailyData);
    chart->Chart("X", 3);
    EXPECT_EQ(chart->Window->Range().shown, 3);
    EXPECT_EQ(chart->Window->Range().first, 0);
    EXPECT_EQ(chart->Window->Range().last, 2);
    EXPECT_FALSE(chart->Desktop.Scroll.Shown);
    EXPECT_EQ(chart->Status(), "3 datapoints available.  Displaying 3.");
}

TEST(Lifecycle, AShortSeriesGrowsWithLivePointsUntilTheWindowIsFull)
{
    const auto chart = ChartOf(DailyData);
    chart->Chart("X", 118);
    chart->Append(2);
    chart->Tick();
    EXPECT_EQ(chart->Window->Range().shown, 120);
    chart->Append(5);
    chart->Tick();
    EXPECT_EQ(chart->Window->Range().shown, 120);
    EXPECT_EQ(chart->Window->Range().last, 124);
    EXPECT_EQ(chart->Window->Range().first, 5);
    EXPECT_EQ(chart->Status(), "125 datapoints available.  Displaying 120.");
}

TEST(Lifecycle, LivePointsDoNotMoveAViewThatIsScrolledBack)
{
    const auto chart = ChartOf(DailyData);
    chart->Chart("X", 300);
    chart->Window->OnHScroll(ScrollCode::PageLeft, 0);
    const int first = chart->Window->Range().first;
    EXPECT_EQ(first, 61);
    chart->Append(4);
    chart->Tick();
    EXPECT_EQ(chart->Window->Range().first, first);
    EXPECT_EQ(chart->Status(), "Ready");
    chart->Window->OnHScroll(ScrollCode::RightEnd, 0);
    chart->Tick();
    EXPECT_EQ(chart->Window->Range().last, 303);
    EXPECT_EQ(chart->Status(), "304 datapoints available.  Displaying 120.");
}

TEST(Lifecycle, AChangeOfTypeWithAnEmptySymbolIsStoredAndSendsNothing)
{
    sChartFixture chart;
    chart.Desktop.Type.Selected = MinuteData;
    chart.Window->OnDataTypeChanged(0);
    EXPECT_EQ(Text(*chart.Key, "RequestDataType"), "1");
    EXPECT_TRUE(chart.Feed.Calls.empty());
    EXPECT_TRUE(chart.Desktop.Interval.On);
}

TEST(Lifecycle, AChangeOfTypeAsksForTheChartAnewEvenDuringALoad)
{
    sChartFixture chart;
    chart.Type("X");
    chart.Window->OnCommand(CommandDrawChart);
    chart.Append(3);
    chart.Feed.Calls.clear();
    chart.Desktop.Type.Selected = DailyData;
    chart.Window->OnDataTypeChanged(0);
    EXPECT_EQ(chart.Feed.Calls, (Log{"unwatch X", "unwatch X", "watch X", "send X"}));
    EXPECT_EQ(chart.Window->Series()->GetRequestKind(), DailyByDatapoints);
    EXPECT_EQ(chart.Window->Series()->GetCount(FieldTime), 0);
    EXPECT_EQ(chart.Desktop.Top.CaptionText, "Daily");
}

TEST(Lifecycle, AReplyThatRunsOnWhileAnotherTypeIsChosenLeavesNoHalfPoints)
{
    sChartFixture chart;
    chart.Type("X");
    chart.Window->OnCommand(CommandDrawChart);
    chart.Append(3);
    chart.Desktop.Type.Selected = DailyData;
    chart.Desktop.Status.OnSaid = [&](const std::string& text) {
        if (text == "Loading..." && chart.Window->Series()->GetRequestKind() == TicksByDatapoints)
            chart.Append(20); // the series is empty already, and still one of ticks
    };
    chart.Window->OnDataTypeChanged(0);
    chart.Desktop.Status.OnSaid = [](const std::string&) {};
    chart.Reply(60);
    chart.Tick();
    EXPECT_EQ(chart.Status(), "60 datapoints available.  Displaying 60.");
    EXPECT_EQ(chart.Window->Series()->GetCount(FieldOpen), chart.Window->Series()->GetCount(FieldTime));
}

TEST(Lifecycle, TheSameTypeAgainDoesNothing)
{
    sChartFixture chart;
    chart.Chart("X", 3);
    chart.Feed.Calls.clear();
    chart.Window->OnDataTypeChanged(0);
    EXPECT_TRUE(chart.Feed.Calls.empty());
}

TEST(Lifecycle, ABoxWithoutASelectionGoesBackToWhatHolds)
{
    sChartFixture chart;
    chart.Desktop.Type.Selected = -1;
    chart.Window->OnDataTypeChanged(0);
    EXPECT_EQ(chart.Desktop.Type.Selected, 0);
    chart.Desktop.Interval.Selected = -1;
    chart.Window->OnIntervalChanged();
    EXPECT_EQ(chart.Desktop.Interval.Selected, 0);
}

TEST(Lifecycle, AChangeOfIntervalIsStoredAndAsksAnew)
{
    const auto chart = ChartOf(MinuteData);
    chart->Chart("X", 3);
    chart->Feed.Calls.clear();
    chart->Desktop.Interval.Selected = 5;
    chart->Window->OnIntervalChanged();
    EXPECT_EQ(Text(*chart->Key, "RequestIntervalIndex"), "5");
    EXPECT_EQ(chart->Desktop.Top.CaptionText, "10 - Minute");
    EXPECT_EQ(chart->Window->StatusPart(1), "10 - X");
    EXPECT_EQ(chart->Window->Series()->GetIntervalSeconds(), 600);
    EXPECT_EQ(chart->Feed.Calls.back(), "send X");
}

TEST(Lifecycle, ASymbolSetBeforeTheWindowStartedIsKeptAndStartsNoChart)
{
    sChartFixture chart(false);
    chart.Window = std::make_unique<CChartDlg>(chart.Setup);
    chart.Window->SetSymbol("EARLY");
    chart.Window->Initialise();
    EXPECT_EQ(chart.Window->CurrentSymbol(), "EARLY");
    EXPECT_TRUE(chart.Feed.Calls.empty());
    EXPECT_EQ(chart.Desktop.Symbol.Edit, "");
}

TEST(Lifecycle, AHostsSymbolStartsAChart)
{
    sChartFixture chart;
    chart.Window->SetSymbol("IBM");
    EXPECT_EQ(chart.Desktop.Symbol.Edit, "IBM");
    EXPECT_EQ(chart.Feed.Calls, (Log{"watch IBM", "send IBM"}));
    EXPECT_FALSE(chart.DrawEnabled());
}

TEST(Lifecycle, ANewChartDisarmsTheTrendlineModeAndRemovesTheLines)
{
    const auto chart = ChartOf(DailyData, true);
    chart->Chart("X", 3);
    chart->Trends.Mode = 3;
    chart->Trends.Lines = 2;
    const int removed = chart->Trends.Removed;
    chart->Window->OnCommand(CommandDrawChart);
    EXPECT_EQ(chart->Trends.Mode, 0);
    EXPECT_EQ(chart->Trends.Removed, removed + 1);
}

TEST(Lifecycle, StatusTextsAreHeldBackWhileATrendlineModeIsArmed)
{
    const auto chart = ChartOf(DailyData, true);
    chart->Chart("X", 200);
    chart->Window->SetStatusText("Click somewhere");
    chart->Trends.Mode = 1;
    chart->Append(1);
    chart->Tick();
    EXPECT_EQ(chart->Status(), "Click somewhere");
    EXPECT_EQ(chart->Window->Range().knownCount, 201);
}

TEST(Lifecycle, ANewChartShowsThePointsOfTheSettingsAgain)
{
    const auto chart = ChartOf(DailyData);
    chart->Chart("X", 3);
    EXPECT_EQ(chart->Window->Range().shown, 3);
    chart->Window->OnCommand(CommandDrawChart);
    EXPECT_EQ(chart->Window->Range().shown, 120);
}

TEST(Lifecycle, AFixedScaleFitsItselfOnceToANewChart)
{
    sChartFixture chart(false);
    chart.Key->Write("Price Bar Show/Hide", std::string("1"));
    chart.Start();
    chart.Type("X");
    chart.Window->OnCommand(CommandDrawChart);
    EXPECT_TRUE(chart.Window->ResetScale());
    chart.Reply(5);
    chart.Tick();
    EXPECT_FALSE(chart.Window->ResetScale()); // the draw used it up
}

TEST(Lifecycle, AFixedScaleFitsTheWholeSeriesWhateverWasDrawnWhileItLoaded)
{
    const auto axisOf = [](bool drawnWhileLoading) {
        sChartFixture chart(false);
        chart.Key->Write("Price Bar Show/Hide", std::string("1"));
        chart.Key->Write("RequestDataType", std::string("2"));
        chart.Start();
        chart.Type("X");
        chart.Window->OnCommand(CommandDrawChart);
        chart.Append(2); // closes of 100 and 101
        if (drawnWhileLoading)
            chart.Window->OnHScroll(ScrollCode::LeftEnd, 0);
        chart.Reply(150); // closes up to 109
        chart.Tick();
        EXPECT_FALSE(chart.Window->ResetScale());
        const CPaneAxis& axis = chart.Window->Pane(0).PaneArea().PaneAxes().Y();
        return std::pair(axis.DataLow().Value(), axis.DataHigh().Value());
    };
    EXPECT_EQ(axisOf(true), axisOf(false));
    EXPECT_GE(axisOf(true).second, 110) << "the greatest high";
}

TEST(Lifecycle, TheEndOfAWindowUnwatchesAndReleasesItsSeries)
{
    sChartFixture chart;
    chart.Chart("X", 3);
    chart.Feed.Calls.clear();
    chart.Window.reset();
    EXPECT_EQ(chart.Feed.Calls, Log{"unwatch X"});
    EXPECT_TRUE(chart.Feed.Released);
    EXPECT_TRUE(chart.Feed.DeadAtRelease);
}

TEST(Lifecycle, TheLastTradeStandsInTheThirdPartWhileLevelOneIsShown)
{
    sChartFixture chart;
    chart.Chart("X", 3); // the last trade is 102
    EXPECT_EQ(chart.Window->StatusPart(2), "102.0000 x 10");
    std::string error;
    EXPECT_TRUE(chart.Window->ApplySetting("Show Level 1", "0", error)) << error;
    chart.Reply(3);
    chart.Tick();
    EXPECT_EQ(chart.Window->StatusPart(2), "");
}

TEST(Lifecycle, ACommaDuringALoadGivesTheToolsBack)
{
    sChartFixture chart;
    chart.Type("X");
    chart.Window->OnCommand(CommandDrawChart);
    ASSERT_FALSE(chart.Desktop.Host.ControlsOn);
    chart.Type("A,B");
    chart.Window->OnSymbolEnter();
    EXPECT_TRUE(chart.Desktop.Timer.Running.empty()) << "nothing would ever end the load";
    EXPECT_TRUE(chart.Desktop.Host.ControlsOn);
    EXPECT_EQ(chart.Window->Loading(), 0);
    EXPECT_TRUE(chart.DrawEnabled());
    // What was typed wrong is typed again.
    chart.Chart("AB", 5);
    EXPECT_EQ(chart.Window->Loading(), 0);
    EXPECT_EQ(chart.Desktop.Top.TitleText, "AB - Chart");
}

TEST(Lifecycle, AChangeOfIntervalWithAnEmptySymbolIsStoredAndSendsNothing)
{
    const auto chart = ChartOf(MinuteData);
    chart->Desktop.Interval.Selected = 3;
    chart->Window->OnIntervalChanged();
    EXPECT_EQ(Text(*chart->Key, "RequestIntervalIndex"), "3");
    EXPECT_EQ(Text(*chart->Key, "RequestDataType"), "1");
    EXPECT_TRUE(chart->Feed.Calls.empty());
    EXPECT_FALSE(chart->DrawEnabled());
}

TEST(Lifecycle, TheTimerRunsUntilTheNextChartOrTheEnd)
{
    sChartFixture chart;
    chart.Chart("X", 5);
    EXPECT_EQ(chart.Desktop.Timer.Running[ProgressTimer], 250);
    chart.Window->OnCommand(CommandDrawChart);
    EXPECT_EQ(chart.Desktop.Timer.Running[ProgressTimer], 250);
    chart.Window->Destroy();
    EXPECT_FALSE(chart.Desktop.Timer.Running.contains(ProgressTimer));
}

TEST(Lifecycle, AnEmptySymbolDuringALoadLetsItGoOn)
{
    sChartFixture chart;
    chart.Type("X");
    chart.Window->OnCommand(CommandDrawChart);
    chart.Type("");
    chart.Window->OnSymbolEnter();
    chart.Reply(7);
    chart.Tick();
    EXPECT_EQ(chart.Status(), "7 datapoints available.  Displaying 7.");
    EXPECT_EQ(chart.Window->CurrentSymbol(), "X");
}

TEST(Lifecycle, ARequestMadeDuringALoadDrawsWhatBothRepliesBrought)
{
    const auto chart = ChartOf(DailyData);
    chart->Type("X");
    chart->Window->OnCommand(CommandDrawChart);
    chart->Append(10);
    chart->Type("Y");
    chart->Window->OnSymbolEnter();
    EXPECT_EQ(chart->Window->Series()->GetCount(FieldTime), 0);
    chart->Append(4); // the rest of the first reply
    chart->Tick();
    EXPECT_EQ(chart->Status(), "Retrieving Day Data (4 Days Received)");
    chart->Reply(6);
    chart->Tick();
    EXPECT_EQ(chart->Status(), "10 datapoints available.  Displaying 10.");
    EXPECT_EQ(chart->Desktop.Top.TitleText, "Y - Chart");
}

// A tick chart is displayed, the box is empty, and another type is chosen for the next chart.
TEST(Lifecycle, ATypeChosenWithAnEmptySymbolLeavesTheChartOnShowUsable)
{
    sChartFixture chart;
    chart.Chart("X", 200);
    chart.Type("");
    chart.Desktop.Type.Selected = DailyData;
    chart.Window->OnDataTypeChanged(0);
    chart.Append(1);
    chart.Tick();
    EXPECT_EQ(chart.Status(), "201 datapoints available.  Displaying 120.");
    EXPECT_EQ(chart.Window->StatusPart(2), "100.0000 x 10") << "by what the series holds";
    for (int x = 60; x < 600; x += 20) {
        chart.Window->OnChartMouseMove(FirstPaneControl, 0, 0, x, 100);
        chart.Window->OnChartMouseDown(FirstPaneControl, MouseLeft, 0, x, 100);
    }
    chart.Window->OnHScroll(ScrollCode::PageLeft, 0);
    EXPECT_EQ(chart.Window->Range().first, 0);
    EXPECT_TRUE(chart.Window->Pane(0).PaneGroups(1).PaneData().SeriesCount() == 1) << "still ticks";
}

TEST(Lifecycle, TheLastTradeOfTheChartBeforeGoesWithIt)
{
    sChartFixture chart;
    chart.Chart("X", 3);
    ASSERT_NE(chart.Window->StatusPart(2), "");
    chart.Type("Y");
    chart.Window->OnCommand(CommandDrawChart);
    chart.Tick();
    EXPECT_EQ(chart.Window->StatusPart(1), "Y");
    EXPECT_EQ(chart.Window->StatusPart(2), "");
}

TEST(Lifecycle, AHostsOwnTitleKeepsNoPointsOfTheChartBefore)
{
    sChartFixture chart;
    chart.Chart("X", 5);
    chart.Desktop.Top.TitleText = "Trading desk";
    chart.Feed.Calls.clear();
    chart.Type("Y");
    chart.Window->OnCommand(CommandDrawChart);
    EXPECT_EQ(chart.Feed.Calls, (Log{"unwatch X", "watch Y", "send Y"}));
    EXPECT_EQ(chart.Window->Series()->GetCount(FieldTime), 0);
}

} // namespace
} // namespace zantroq
