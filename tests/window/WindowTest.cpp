// Layout, bars, placement, settings and scripts of a whole window.
#include "ChartWindowFixture.h"

#include "export/ChartSnapshot.h"
#include "replay/ReplayRunner.h"
#include "settings/SettingsLoader.h"
#include "window/BatchCounters.h"
#include "window/ChartsResizer.h"
#include "window/WindowPlacement.h"
#include "window/WindowTexts.h"

#include <nlohmann/json.hpp>

#include <gtest/gtest.h>
#include <limits>

namespace zantroq {
namespace {

using namespace test;
using Ints = std::vector<int>;

Ints Bottoms(const CChartDlg& window)
{
    const auto& bottoms = window.Layout().Bottoms();
    return {bottoms.begin(), bottoms.begin() + window.ShownPanes() + 1};
}

TEST(ChartsResizer, StacksThePanesBetweenTheBars)
{
    sChartFixture chart; // 620x460, a tool bar of 28
    EXPECT_EQ(chart.Window->Layout().TopOffset(), 30);
    EXPECT_EQ(chart.Window->Layout().Height(), 410); // 460 - 30 - 20: no scroll bar
    EXPECT_EQ(Bottoms(*chart.Window), (Ints{0, 271, 410}));
    EXPECT_EQ(chart.Desktop.Host.Rects[1], (sWindowRect{0, 301, 620, 440}));
    EXPECT_FALSE(chart.Desktop.Host.Visible[2]);
    EXPECT_EQ(chart.Desktop.Host.ScrollTop, 425);
    EXPECT_EQ(chart.Desktop.Host.StatusTop, 440);
    EXPECT_EQ(chart.Window->Pane(0).PixelWidth(), 620);
    EXPECT_EQ(chart.Window->Pane(0).PixelHeight(), 271);
}

TEST(ChartsResizer, AVisibleScrollBarTakesItsRoom)
{
    auto chart = ChartOf(DailyData);
    chart->Chart("X", 300);
    EXPECT_EQ(chart->Window->Layout().Height(), 393); // 460 - 30 - 37
    EXPECT_EQ(chart->Window->Pane(0).PixelHeight() + chart->Window->Pane(1).PixelHeight(), 393);
}

TEST(ChartsResizer, AResizeToNothingIsIgnored)
{
    sChartFixture chart;
    chart.Desktop.Host.Height = 0;
    chart.Window->OnResize();
    EXPECT_EQ(chart.Window->Layout().Height(), 410);
    chart.Desktop.Host.Height = 560;
    chart.Window->OnResize();
    EXPECT_EQ(chart.Window->Layout().Height(), 510);
}

TEST(ChartsResizer, ADraggedBorderMovesWhenItIsLetGoAndIsStored)
{
    sChartFixture chart;
    CChartDlg& window = *chart.Window;
    window.OnChartMouseMove(341, 0, 0, 100, 200);
    EXPECT_EQ(chart.Desktop.Pointer.Shape, CursorShape::Arrow);
    window.OnChartMouseMove(342, 0, 0, 100, 3);
    EXPECT_EQ(chart.Desktop.Pointer.Shape, CursorShape::Split);
    window.OnChartMouseDown(342, MouseLeft, 0, 100, 3);
    EXPECT_EQ(chart.Desktop.Pointer.Line, 274);
    window.OnChartMouseMove(341, MouseLeft, 0, 100, 205);
    EXPECT_EQ(chart.Desktop.Pointer.Line, 205);
    EXPECT_EQ(Bottoms(window), (Ints{0, 271, 410}));
    window.OnChartMouseUp(341, MouseLeft, 0, 100, 205);
    EXPECT_EQ(chart.Desktop.Pointer.Line, -1);
    EXPECT_EQ(Bottoms(window), (Ints{0, 205, 410}));
    EXPECT_EQ(Text(*chart.Key, "Top of chart 1"), "0.500000");
    EXPECT_EQ(Text(*chart.Key, "Maximized Chart Index"), "999");
}

TEST(ChartsResizer, TheDragLineStopsSixteenPixelsFromTheNextPane)
{
    sChartFixture chart;
    CChartDlg& window = *chart.Window;
    window.OnChartMouseMove(341, 0, 0, 100, 271);
    window.OnChartMouseDown(341, MouseLeft, 0, 100, 271);
    window.OnChartMouseMove(341, MouseLeft, 0, 100, 394);
    EXPECT_EQ(chart.Desktop.Pointer.Line, 394);
    window.OnChartMouseMove(341, MouseLeft, 0, 100, 405);
    EXPECT_EQ(chart.Desktop.Pointer.Line, 394);
    window.OnChartMouseUp(341, MouseLeft, 0, 100, 405);
    EXPECT_EQ(Bottoms(window), (Ints{0, 394, 410}));
    EXPECT_EQ(window.Settings().Panes.MaximizedIndex, 0); // the lower pane was minimised
    EXPECT_EQ(Text(*chart.Key, "Chart 1 Minimized"), "1");
    EXPECT_EQ(Text(*chart.Key, "Maximized Chart Index"), "0");
}

TEST(ChartsResizer, PanesAreNotRedrawnDuringADrag)
{
    auto chart = ChartOf(DailyData);
    chart->Chart("X", 20);
    CChartDlg& window = *chart->Window;
    struct sView : IPaneView
    {
        int Changes = 0;
        void PaneChanged() override { ++Changes; }
    } view;
    const int border = Bottoms(window)[1];
    window.OnChartMouseMove(341, 0, 0, 100, border);
    window.OnChartMouseDown(341, MouseLeft, 0, 100, border);
    window.Pane(0).SetView(&view);
    for (int y = 100; y < 200; ++y)
        window.OnChartMouseMove(341, MouseLeft, 0, 100 + y, y);
    EXPECT_EQ(view.Changes, 0);
    window.OnChartMouseUp(341, MouseLeft, 0, 100, 150);
    EXPECT_EQ(view.Changes, 1);
    window.Pane(0).SetView(nullptr);
}

TEST(ChartsResizer, ARightPressDuringADragOpensNoMenu)
{
    sChartFixture chart;
    CChartDlg& window = *chart.Window;
    window.OnChartMouseMove(341, 0, 0, 100, 271);
    window.OnChartMouseDown(341, MouseLeft, 0, 100, 271);
    window.OnChartMouseDown(341, MouseRight, 0, 100, 240);
    EXPECT_EQ(chart.Desktop.Menu.Opened, 0);
    window.OnChartMouseUp(341, MouseLeft, 0, 100, 205);
    EXPECT_EQ(Bottoms(window), (Ints{0, 205, 410}));
    window.OnChartMouseDown(341, MouseRight, 0, 100, 100);
    EXPECT_EQ(chart.Desktop.Menu.Opened, 1);
}

TEST(ChartsResizer, StoredStatesLoadBackTheSame)
{
    sChartFixture chart;
    chart.Window->OpenPaneMenu(1, 5, 5);
    chart.Window->OnMenuCommand(CommandMinimizePane);
    EXPECT_EQ(Bottoms(*chart.Window), (Ints{0, 394, 410}));
    chart.Window = std::make_unique<CChartDlg>(chart.Setup);
    chart.Window->Initialise();
    EXPECT_EQ(Bottoms(*chart.Window), (Ints{0, 394, 410}));
    EXPECT_EQ(chart.Window->Settings().Panes.MaximizedIndex, 0);
}

TEST(ChartsResizer, ANewStudyListRebuildsPanesAndIsStored)
{
    auto chart = ChartOf(DailyData);
    chart->Chart("X", 30);
    sSettingsEdit edit{chart->Window->Settings()};
    edit.Settings.Panes.StudyCount = 2;
    edit.Settings.Panes.StudyTypes = {StudyRSI, StudyVolume};
    chart->Window->ApplySettings(edit);
    EXPECT_EQ(chart->Window->ShownPanes(), 3);
    EXPECT_TRUE(chart->Desktop.Host.Visible[2]);
    EXPECT_EQ(Text(*chart->Key, "Number of displayed study charts"), "2");
    EXPECT_EQ(Text(*chart->Key, "Type of study chart 0"), "0");
    EXPECT_EQ(Text(*chart->Key, "Type of study chart 1"), "6");
    EXPECT_EQ(Text(*chart->Key, "Top of chart 1"), "0.440000"); // 0.66 * 2/3
    EXPECT_EQ(Text(*chart->Key, "Top of chart 2"), "0.773333");
    EXPECT_EQ(chart->Window->DrawManager().Studies()[0]->kind, StudyRSI);
}

TEST(Bars, StartWithTheStoredChecksAndTheZoomOff)
{
    sChartFixture chart;
    EXPECT_TRUE(chart.Desktop.Commands.Checked[CommandGrid]);
    EXPECT_TRUE(chart.Desktop.Commands.Checked[CommandPriceBar]);
    EXPECT_FALSE(chart.Desktop.Commands.On[CommandZoomIn]);
    EXPECT_FALSE(chart.Desktop.Commands.On[CommandZoomOut]);
    EXPECT_TRUE(chart.Desktop.Commands.On[CommandSymbolSearch]);
    EXPECT_FALSE(chart.Desktop.Commands.On[CommandSettings]);
    EXPECT_FALSE(chart.Desktop.Commands.On[CommandPrint]);
}

TEST(Bars, AKeyOverAPaneStartsANewSymbol)
{
    sChartFixture chart;
    chart.Desktop.Symbol.Edit = "OLD";
    chart.Window->OnKeyPress(345, 'M');
    EXPECT_EQ(chart.Desktop.Symbol.Edit, "M");
    EXPECT_EQ(chart.Desktop.Symbol.Focused, 1);
    EXPECT_TRUE(chart.DrawEnabled());
    for (const int code : {0x1f, 0x70, 0xb9, 0xbb, -2, 13})
        chart.Window->OnKeyPress(341, code);
    EXPECT_EQ(chart.Desktop.Symbol.Edit, "M");
    for (const int code : {0x20, 0x6f, 0xba, -1})
        chart.Window->OnKeyPress(341, code);
    EXPECT_EQ(chart.Desktop.Symbol.Focused, 5);
}

TEST(Bars, SymbolTextIsUpperCaseAndAtMostThirtyCharactersWhileNothingIsSelected)
{
    EXPECT_EQ(SymbolBoxText("msft.x"), "MSFT.X");
    EXPECT_EQ(SymbolBoxText(std::string(31, 'A')), std::string(30, 'A'));
    EXPECT_EQ(SymbolBoxText(std::string(31, 'A'), TypedOver::Selection), std::string(31, 'A'));
}

TEST(Bars, TheLastTwentySymbolsStandNewestFirst)
{
    sChartFixture chart;
    for (int k = 0; k < 21; ++k)
        chart.Window->SetSymbol("S" + std::to_string(k));
    chart.Window->SetSymbol("S5");
    EXPECT_EQ(chart.Desktop.Symbol.List.size(), 20u);
    EXPECT_EQ(chart.Desktop.Symbol.List.front(), "S5");
    EXPECT_EQ(chart.Desktop.Symbol.List.back(), "S1"); // S0 fell out
    EXPECT_EQ(chart.Desktop.Symbol.Selected, 0);
    EXPECT_EQ(Text(*chart.Key, "SQ1"), "S20");
}

TEST(Bars, TheGridButtonFlipsStoresAndRebuildsTheGrid)
{
    auto chart = ChartOf(DailyData);
    chart->Chart("X", 60);
    EXPECT_GT(chart->Window->Pane(0).PaneArea().PaneAxes().X().AxisGrid().Spacing(), 0);
    chart->Window->OnCommand(CommandGrid);
    EXPECT_EQ(Text(*chart->Key, "GRID"), "0");
    EXPECT_FALSE(chart->Desktop.Commands.Checked[CommandGrid]);
    EXPECT_EQ(chart->Window->Pane(0).PaneArea().PaneAxes().X().AxisGrid().Spacing(), 0);
    EXPECT_EQ(chart->Window->Pane(1).PaneArea().PaneAxes().Y().AxisGrid().Spacing(), 0);
    const Log& said = chart->Desktop.Status.Said;
    ASSERT_GE(said.size(), 2u);
    EXPECT_EQ(said[said.size() - 2], "Updating Grid...");
    EXPECT_EQ(said.back(), "Ready");
    chart->Window->OnCommand(CommandGrid);
    EXPECT_EQ(chart->Window->Pane(0).PaneArea().PaneAxes().X().AxisGrid().Spacing(), 12); // (60 - 2) / 5 + 1
}

TEST(Bars, ASymbolFoundBySearchGoesIntoTheBox)
{
    sChartFixture chart;
    chart.Window->OnCommand(CommandSymbolSearch);
    EXPECT_EQ(chart.Desktop.Symbol.Edit, "");
    chart.Dialogs.Symbol = "IBM";
    chart.Window->OnCommand(CommandSymbolSearch);
    EXPECT_EQ(chart.Desktop.Symbol.Edit, "IBM");
    EXPECT_TRUE(chart.DrawEnabled());
}

TEST(Bars, ADialogThatIsNotThereIsSaidToBeUnavailable)
{
    sChartFixture chart;
    chart.Window->OnCommand(CommandPrint);
    EXPECT_EQ(chart.Status(), "Print is not available.");
}

TEST(Menus, OfferTrendlineDeletionOnlyWithLines)
{
    auto chart = ChartOf(DailyData, true);
    EXPECT_FALSE(FindMenuItem(chart->Window->MenuOf(0).Items, AskDeleteAllTrends)->Enabled);
    chart->Trends.Lines = 1;
    EXPECT_TRUE(FindMenuItem(chart->Window->MenuOf(0).Items, AskDeleteTrend)->Enabled);
    chart->Window->OpenPaneMenu(0, 1, 1);
    chart->Window->OnMenuCommand(DrawSloping);
    EXPECT_EQ(chart->Trends.Commands, Ints{DrawSloping});
    EXPECT_FALSE(chart->Window->OpenMenu());
    chart->Window->OnMenuCommand(DrawSloping); // no menu is open
    EXPECT_EQ(chart->Trends.Commands.size(), 1u);
}

TEST(Menus, ADisabledItemDoesNothing)
{
    sChartFixture chart;
    chart.Window->OpenPaneMenu(0, 1, 1);
    chart.Window->OnMenuCommand(CommandRestorePane);
    EXPECT_EQ(Text(*chart.Key, "Chart 0 Minimized"), "(missing)");
}

TEST(Placement, ARectangleIsFittedToTheScreen)
{
    const sWindowRect screen{0, 0, 1920, 1080};
    EXPECT_EQ(FitToScreen({-50, 10, 550, 410}, screen), (sWindowRect{0, 10, 600, 410}));
    EXPECT_EQ(FitToScreen({1500, 900, 2100, 1300}, screen), (sWindowRect{1320, 680, 1920, 1080}));
    EXPECT_EQ(FitToScreen({100, 100, 200, 300}, screen), (sWindowRect{50, 100, 250, 300}));
}

TEST(Placement, ARectangleWiderThanAnyWindowIsCut)
{
    constexpr int least = std::numeric_limits<int>::min(), greatest = std::numeric_limits<int>::max();
    EXPECT_EQ(FitToScreen({least, 0, greatest, 400}, {0, 0, 800, 800}), (sWindowRect{-31967, 0, 800, 400}));
}

TEST(Placement, AWindowMovesOnlyWhereTheHostAskedForIt)
{
    sChartFixture chart;
    chart.Window->SetSymbol("X");
    chart.Window->SetResizeParentWindow(false);
    EXPECT_EQ(chart.Desktop.Top.Moves, 0);
    EXPECT_FALSE(chart.Key->Read("RectPosition.Host"));
    chart.Window->SetResizeParentWindow(true); // nothing is stored for "X - Chart"
    EXPECT_EQ(chart.Desktop.Top.Moved, (sWindowRect{0, 0, 620, 460}));
}

TEST(Placement, TheOldTitlesPositionIsSavedAtANewChartAndAtTheEnd)
{
    sChartFixture chart;
    chart.Window->SetResizeParentWindow(true);
    chart.Window->SetSymbol("X");
    EXPECT_TRUE(chart.Key->Read("RectPosition.Host"));
    EXPECT_FALSE(chart.Key->Read("RectPosition.X - Chart"));
    chart.Desktop.Top.Max = true;
    chart.Window.reset();
    const auto rect = chart.Key->Read("RectPosition.X - Chart");
    ASSERT_TRUE(rect);
    const std::vector<std::uint8_t> wanted{10, 0, 0, 0, 20, 0, 0, 0, 0x62, 2, 0, 0, 0xA4, 1, 0, 0};
    EXPECT_EQ(std::get<std::vector<std::uint8_t>>(*rect), wanted);
    EXPECT_EQ(std::get<std::uint32_t>(*chart.Key->Read("RectPosition.X - Chart.Maximized")), 1u);
}

TEST(Placement, AWindowThatADefaultPlacedIsNotSavedOverAPlaceThatCouldNotBeRead)
{
    sUnreliableKey key;
    SaveWindowPosition(key, "Host", {{1, 2, 603, 404}, true});
    const auto stored = key.List();
    sFakeTop top;
    CWindowPlacement placement(key, top);
    key.Reads = false;
    placement.SetResizeParentWindow(true);
    placement.SaveIfAsked();
    EXPECT_EQ(key.List(), stored);
    top.Rect.Left = 300; // the user moved it
    placement.SaveIfAsked();
    EXPECT_NE(key.List(), stored);
}

TEST(ChartsResizer, StatesThatWereNotChangedStayAsTheyAreStored)
{
    sUnreliableKey key;
    key.Put("Chart 0 Minimized", "1");
    key.Put("Maximized Chart Index", "2");
    key.Reads = false;
    sPaneStack stack = LoadChartSettings(key).Panes;
    key.Reads = true;
    CSettingsStore store(key);
    std::array<CChart2D, 11> panes;
    CBatchCounters batch(panes);
    sFakeDesktop desktop;
    sFakeDrawing drawing;
    CPaneLayout layout(stack, panes, desktop.Host, desktop.Scroll);
    CChartsResizer resizer(stack, store, layout, desktop.Pointer, desktop.Scroll, drawing, batch);
    resizer.Restore(1);
    EXPECT_EQ(key.Stored("Chart 0 Minimized"), "1");
    EXPECT_EQ(key.Stored("Maximized Chart Index"), "2");
    resizer.Maximize(1);
    EXPECT_EQ(key.Stored("Chart 0 Minimized"), "1");
    EXPECT_EQ(key.Stored("Maximized Chart Index"), "1");
}

TEST(StoredChanges, AChangeThatTheFileWouldNotHaveIsTriedAgainWhileTheChartRuns)
{
    sChartFixture chart(false);
    chart.Key->SetLocked(true);
    chart.Start();
    chart.Chart("X", 5);
    chart.Window->OnCommand(CommandGrid);
    chart.Key->SetLocked(false);
    EXPECT_EQ(chart.Key->Stored("GRID"), "(missing)");
    for (int tick = 0; tick < 8; ++tick)
        chart.Tick();
    EXPECT_EQ(chart.Key->Stored("GRID"), "0");
    EXPECT_EQ(chart.Key->Stored("PTS INDEX"), "(missing)"); // a default
}

TEST(StoredChanges, ADataTypeThatCouldNotBeReadIsReplacedByOneThatTheUserChoosesAlone)
{
    sChartFixture chart(false);
    chart.Key->Put("RequestDataType", "2");
    chart.Key->Reads = false;
    chart.Start();
    chart.Key->Reads = true;
    chart.Chart("X", 5);
    chart.Desktop.Interval.Selected = 3;
    chart.Window->OnIntervalChanged();
    EXPECT_EQ(chart.Key->Stored("RequestDataType"), "2");
    chart.Desktop.Type.Selected = MinuteData;
    chart.Window->OnDataTypeChanged(0);
    EXPECT_EQ(chart.Key->Stored("RequestDataType"), "1");
}

TEST(StoredChanges, AChangeThatTheFileWouldNotHaveIsTriedOnceMoreWhenTheWindowGoes)
{
    sChartFixture chart(false);
    chart.Key->SetLocked(true);
    chart.Start();
    chart.Window->OnCommand(CommandGrid);
    chart.Key->SetLocked(false);
    chart.Window.reset();
    EXPECT_EQ(chart.Key->Stored("GRID"), "0");
}

TEST(SettingsOk, AlwaysDropsTheChartAndAsksAgain)
{
    auto chart = ChartOf(DailyData);
    chart->Chart("X", 20);
    chart->Feed.Calls.clear();
    chart->Window->ApplySettings({chart->Window->Settings()});
    EXPECT_EQ(chart->Feed.Calls, (Log{"unwatch X", "watch X", "send X"}));
}

TEST(SettingsOk, WithAnEmptyBoxRedrawsWithoutARequest)
{
    auto chart = ChartOf(DailyData);
    chart->Chart("X", 200);
    chart->Feed.Calls.clear();
    chart->Type("");
    std::string error;
    EXPECT_TRUE(chart->Window->ApplySetting("PTS INDEX", "0", error)) << error;
    EXPECT_TRUE(chart->Feed.Calls.empty());
    EXPECT_EQ(chart->Window->Range().shown, 30);
    EXPECT_EQ(chart->Desktop.Scroll.PageSize, 30);
    EXPECT_EQ(Text(*chart->Key, "PTS INDEX"), "0");
}

// Regression: a chart that stayed displayed got its new colors only with the next chart.
TEST(SettingsOk, WithAnEmptyBoxTheChartOnShowTakesNewColors)
{
    auto chart = ChartOf(DailyData);
    chart->Chart("X", 200);
    chart->Type("");
    sSettingsEdit edit{chart->Window->Settings()};
    edit.Settings.BackgroundColor = 0x112233;
    edit.Settings.PriceLabelColor = 0x445566;
    edit.Settings.PriceBarColor = 0x778899;
    edit.Settings.Studies.LabelColors[StudyVolume] = 0xAACCBB;
    chart->Feed.Calls.clear();
    chart->Window->ApplySettings(edit);
    const auto colorsOf = [&](int pane) {
        const CChart2D& chart2D = chart->Window->Pane(pane);
        return std::vector<ColorValue>{
            chart2D.PaneInterior().Background(), chart2D.PaneArea().Interior().Background(),
            chart2D.PaneArea().PlotFrame().Interior().Background(),
            chart2D.PaneArea().Interior().Foreground(), chart2D.PaneArea().Marker().LineLook().LineColor()};
    };
    EXPECT_EQ(colorsOf(0), (std::vector<ColorValue>{0x112233, 0x112233, 0x112233, 0x445566, 0x778899}));
    EXPECT_EQ(colorsOf(1), (std::vector<ColorValue>{0x112233, 0x112233, 0x112233, 0xAACCBB, 0x778899}));
    EXPECT_EQ(chart->Window->Pane(0).PaneLabels().Item(1).Interior().Background(), 0x112233u);
    EXPECT_NE(chart->Window->Pane(0).PaneLabels().Item(2).Interior().Background(), 0x112233u); // the title
    EXPECT_TRUE(chart->Feed.Calls.empty());
}

// Regression: the state had the scroll position from before the change.
TEST(SettingsOk, WithAnEmptyBoxTheScrollPositionIsThatOfTheBar)
{
    auto chart = ChartOf(DailyData);
    chart->Chart("X", 200); // 120 displayed: the bar is at 81
    ASSERT_EQ(chart->Window->Range().scrollPos, 81);
    chart->Type("");
    std::string error;
    ASSERT_TRUE(chart->Window->ApplySetting("PTS INDEX", "4", error)) << error; // 240 of 200
    EXPECT_EQ(chart->Desktop.Scroll.At, 0);
    EXPECT_EQ(chart->Window->Range().scrollPos, 0);
}

TEST(SettingsOk, BeforeAnyChartSendsNothing)
{
    sChartFixture chart;
    std::string error;
    EXPECT_TRUE(chart.Window->ApplySetting("RequestDataType", "1", error));
    EXPECT_TRUE(chart.Feed.Calls.empty());
    EXPECT_EQ(chart.Desktop.Type.Selected, 1);
    EXPECT_TRUE(chart.Desktop.Interval.On);
}

TEST(SettingsOk, AWrongValueIsRefusedAndNothingHappens)
{
    auto chart = ChartOf(DailyData);
    chart->Chart("X", 20);
    chart->Feed.Calls.clear();
    std::string error;
    EXPECT_FALSE(chart->Window->ApplySetting("GRID", "maybe", error));
    EXPECT_NE(error, "");
    EXPECT_TRUE(chart->Feed.Calls.empty());
}

TEST(SettingsOk, TheAxisMovesToTheOtherSide)
{
    auto chart = ChartOf(DailyData);
    chart->Chart("X", 20);
    chart->Type(""); // no request
    std::string error;
    EXPECT_TRUE(chart->Window->ApplySetting("Y Axis Orientation", "1", error)) << error;
    EXPECT_TRUE(chart->Window->Pane(1).PaneArea().PaneAxes().Y2().Shown());
    EXPECT_FALSE(chart->Window->Pane(1).PaneArea().PaneAxes().Y().Shown());
}

TEST(Snapshot, TellsTheWindowsState)
{
    auto chart = ChartOf(MinuteData);
    chart->Chart("ABC", 50);
    const auto json = nlohmann::json::parse(ChartSnapshotText(*chart->Window));
    EXPECT_EQ(json["version"], 1);
    EXPECT_EQ(json["symbol"], "ABC");
    EXPECT_EQ(json["title"], "ABC - Chart");
    EXPECT_EQ(json["caption"], "1 - Minute");
    EXPECT_EQ(json["status"], "50 datapoints available.  Displaying 50.");
    EXPECT_EQ(json["statusParts"][1], "1 - ABC");
    EXPECT_EQ(json["range"]["count"], 50);
    EXPECT_EQ(json["range"]["selectedPoint"], -1000000);
    EXPECT_EQ(json["layout"]["bounds"], nlohmann::json({0.0, 0.66, 1.0}));
    EXPECT_EQ(json["layout"]["bottoms"], nlohmann::json({0, 271, 410}));
    EXPECT_EQ(json["commands"].size(), 22u);
    EXPECT_EQ(json["commands"]["779"]["checked"], true);
    EXPECT_EQ(json["commands"]["32787"]["enabled"], false);
    EXPECT_EQ(json["panes"].size(), 2u);
    EXPECT_EQ(json["panes"][0]["study"], nullptr);
    EXPECT_EQ(json["panes"][1]["control"], 342);
    EXPECT_EQ(json["panes"][1]["study"], 6);
    EXPECT_EQ(json["panes"][1]["rect"], nlohmann::json({0, 301, 620, 139}));
    EXPECT_EQ(ChartSnapshotText(*chart->Window), ChartSnapshotText(*chart->Window));
}

TEST(Snapshot, SaysOfEachCommandWhatAClickWouldFind)
{
    auto chart = ChartOf(DailyData);
    const auto enabled = [&chart] {
        const auto json = nlohmann::json::parse(ChartSnapshotText(*chart->Window));
        std::vector<int> commands;
        for (const auto& [number, state] : json["commands"].items())
            if (state["enabled"].get<bool>())
                commands.push_back(std::stoi(number));
        std::sort(commands.begin(), commands.end());
        return commands;
    };
    chart->Type("X");
    chart->Window->OnCommand(CommandDrawChart);
    // The toolbar is disabled; the price pane's menu offers its tools and the pane states.
    EXPECT_EQ(enabled(), (std::vector<int>{32779, 32784, 32785, 32786, 32788, 32789, 32790, 32792, 32793}));
    chart->Reply(300);
    chart->Tick();
    EXPECT_EQ(enabled(), (std::vector<int>{774, 777, 778, 779, 32779, 32780, 32784, 32785, 32786, 32788,
                                           32789, 32790, 32792, 32793, 32794}));
}

struct sReplayHost : IReplayHost
{
    explicit sReplayHost(sChartFixture& chart) : Chart(chart) {}
    std::string WaitSearch(int) override { return ""; }
    std::string WaitComplete(int) override
    {
        if (!Answers)
            return "X: no reply in 1 s; ask again";
        if (!Chart.Window->CompleteAndDrawn()) {
            Chart.Reply(200);
            Chart.Tick();
        }
        return "";
    }
    void Wait(int) override { Chart.Tick(); }
    void Resize(int width, int height) override
    {
        Chart.Desktop.Host.Width = width;
        Chart.Desktop.Host.Height = height;
        Chart.Window->OnResize();
    }
    std::string Print(const std::string&) override { return ""; }
    std::string Snapshot(const std::string& file) override
    {
        Files.push_back(file);
        return file == "bad.json" ? "bad.json could not be written" : "";
    }
    void Warn(const std::string& sentence) override { Warnings.push_back(sentence); }
    sChartFixture& Chart;
    bool Answers = true;
    Log Files, Warnings;
};

sReplayResult Play(sChartFixture& chart, const std::string& text, bool answers = true,
                   Log* warnings = nullptr)
{
    const sReplayScript script = ParseReplayScript(text);
    EXPECT_EQ(script.Error, "");
    CReplayMessageBox box;
    sReplayHost host(chart);
    host.Answers = answers;
    const sReplayResult result = RunReplay(script, *chart.Window, box, host);
    if (warnings)
        *warnings = host.Warnings;
    return result;
}

TEST(Replay, DrivesTheWindowLikeAPerson)
{
    auto chart = ChartOf(DailyData);
    const sReplayResult result =
        Play(*chart, "symbol msft\ndraw\nwait complete\ncommand 777\nscroll left-end\n"
                     "resize 800 600\nkey 341 65\nsnapshot a.json");
    EXPECT_EQ(result.ExitCode, 0) << result.Message;
    EXPECT_EQ(chart->Window->CurrentSymbol(), "MSFT");
    EXPECT_EQ(chart->Window->Range().shown, 90);
    EXPECT_EQ(chart->Window->Range().first, 0);
    EXPECT_EQ(chart->Window->ChartPixelWidth(), 800);
    EXPECT_EQ(chart->Desktop.Symbol.Edit, "A");
}

TEST(Replay, ADialogStepWithoutADialogWarnsAndTheScriptGoesOn)
{
    sChartFixture chart;
    Log warnings;
    const sReplayResult result = Play(chart, "dialog set 308 Right\ndialog ok\nsymbol X", true, &warnings);
    EXPECT_EQ(result.ExitCode, 0);
    const std::string why = "dialog: no dialog is open; open one by command 774 or 775";
    EXPECT_EQ(warnings, (Log{"line 1: " + why, "line 2: " + why}));
    EXPECT_EQ(chart.Desktop.Symbol.Edit, "X");
}

TEST(Replay, AThumbDrawsWhereItIsLetGo)
{
    auto chart = ChartOf(DailyData);
    Play(*chart, "symbol X\ndraw\nwait complete\nscroll track 10");
    EXPECT_EQ(chart->Window->Range().first, 80);
    Play(*chart, "scroll thumb 20");
    EXPECT_EQ(chart->Window->Range().first, 20);
}

TEST(Replay, ChoosesTypesAndIntervals)
{
    sChartFixture chart;
    Play(chart, "type minute\ninterval 15\nsymbol X\ndraw\nwait complete");
    EXPECT_EQ(chart.Desktop.Top.CaptionText, "15 - Minute");
}

TEST(Replay, EndsWithThreeWhenTheReplyDoesNotCome)
{
    sChartFixture chart;
    const sReplayResult result = Play(chart, "symbol X\ndraw\nwait complete 1\ncommand 779", false);
    EXPECT_EQ(result.ExitCode, 3);
    EXPECT_EQ(result.Message, "line 3: wait complete: X: no reply in 1 s; ask again");
    EXPECT_TRUE(chart.Desktop.Commands.Checked[CommandGrid]); // the next step did not run
}

TEST(Replay, EndsWithFourWhenAFileCannotBeWritten)
{
    sChartFixture chart;
    EXPECT_EQ(Play(chart, "snapshot bad.json").ExitCode, 4);
}

TEST(Replay, PicksFromTheMenuOfTheRightClickBefore)
{
    auto chart = ChartOf(DailyData);
    Play(*chart, "symbol X\ndraw\nwait complete\nmouse down 342 2 100 40\nmenu 32793");
    EXPECT_EQ(chart->Window->Settings().Panes.MaximizedIndex, 1);
    EXPECT_EQ(Play(*chart, "mouse down 342 2 100 40\nmenu 32793").ExitCode, 0) << "a disabled item";
    EXPECT_EQ(chart->Window->Settings().Panes.MaximizedIndex, 1);
}

TEST(Replay, GoesOnWhereNoMenuHasTheItemAndSaysSo)
{
    auto chart = ChartOf(DailyData);
    Play(*chart, "symbol X\ndraw\nwait complete\nmouse down 342 2 100 40\nmenu 32793");
    Log warnings;
    for (const char* before : {"", "mouse down 342 2 100 40\nmenu none\nmenu none\n"}) {
        const sReplayResult result =
            Play(*chart, std::string(before) + "menu 32791\ncommand 779", true, &warnings);
        EXPECT_EQ(result.ExitCode, 0);
        ASSERT_EQ(warnings.size(), 1u);
        EXPECT_EQ(warnings[0].substr(warnings[0].find(':')),
                  ": menu 32791: no context menu is open; open one by a right mouse down in the step before");
    }
    EXPECT_EQ(Play(*chart, "mouse down 342 2 100 40\nmenu 777", true, &warnings).ExitCode, 0);
    EXPECT_EQ(warnings, (Log{"line 2: menu 777: the open context menu has no such item; open that of another "
                             "pane, or use command 777"}));
    EXPECT_EQ(chart->Window->Settings().Panes.MaximizedIndex, 1);
}

} // namespace
} // namespace zantroq
