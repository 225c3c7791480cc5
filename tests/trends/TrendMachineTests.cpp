// The state machine as a table: every state and every event, with the resulting state, prompt and effect.
#include "TrendFixture.h"

#include "trends/PitchforkTrend.h"

#include <array>
#include <cmath>

namespace zantroq::test {

namespace {

constexpr const char* Unchanged = "untouched";

// How to reach each state, and the effect of each event there.
struct sStateCell
{
    int state;
    int command;   // arms the mode
    int clicks;    // left clicks after it, each followed by a mouse move
    int lines;     // lines in the lists once the state is reached
    int leftState; // after a left click on the pane
    const char* leftPrompt;
    int leftLines;
    bool draws;     // a mouse move draws the line anew
    int rightLines; // after a right click
};

constexpr const char* HBegin =
    "Click on the beginning point of the new horizontal trendline (Right click to cancel)";
constexpr const char* HEnd = "Click on the end point of the new horizontal trendline (Right click to cancel)";
constexpr const char* SBegin =
    "Click on the beginning point of the new sloping trendline (Right click to cancel)";
constexpr const char* SEnd = "Click on the end point of the new sloping trendline (Right click to cancel)";
constexpr const char* PBegin =
    "Click on the beginning point of the new parallel trendline (Right click to cancel)";
constexpr const char* PEnd = "Click on the end point of the new parallel trendline (Right click to cancel)";
constexpr const char* PSecond =
    "Click to set a second line of the new parallel trendline (Right click to cancel)";
constexpr const char* AFirst =
    "Click on the 1st point of the new Andrew's pitchfork trendline (Right click to cancel)";
constexpr const char* ABegin =
    "Click on the beginning point of the new Andrew's pitchfork trendline (Right click to cancel)";
constexpr const char* ASecond =
    "Click on the 2nd point of the new pitchfork trendline (Right click to cancel)";
constexpr const char* AThird = "Move the mouse to the left and click on the 3rd point of the new pitchfork "
                               "trendline (Right click to cancel)";
constexpr const char* FFirst =
    "Click on the 1st point of the new Fibonacci Fan trendline (Right click to cancel)";
constexpr const char* FBegin =
    "Click on the beginning point of the new Fibonacci Fan trendline (Right click to cancel)";
constexpr const char* FEnd =
    "Click on the end point of the new Fibonacci Fan trendline (Right click to cancel)";
constexpr const char* RBegin =
    "Click on the beginning point of the new Fibonacci Retracements trendline (Right click to cancel)";
constexpr const char* REnd =
    "Click on the end point of the new Fibonacci Retracements trendline (Right click to cancel)";
constexpr const char* VFirst =
    "Click on the 1st point of the new speed resistance trendline (Right click to cancel)";
constexpr const char* VBegin =
    "Click on the beginning point of the new speed resistance trendline (Right click to cancel)";
constexpr const char* VEnd = "Click on the end point of the new trendline (Right click to cancel)";
constexpr const char* Delete = "Click on a trendline to delete (Right click to cancel)";

constexpr std::array<sStateCell, 17> Cells{{
    {1, 32779, 0, 0, 2, HEnd, 1, false, 0},
    {2, 32779, 1, 1, 1, HBegin, 1, true, 0},
    {3, 32784, 0, 0, 4, SEnd, 1, false, 0},
    {4, 32784, 1, 1, 3, SBegin, 1, true, 0},
    {5, 32785, 0, 0, 6, PEnd, 1, false, 0},
    {6, 32785, 1, 1, 7, PSecond, 1, true, 0},
    {7, 32785, 2, 1, 5, PBegin, 1, true, 0},
    {8, 32786, 0, 0, 9, ASecond, 1, false, 0},
    {9, 32786, 1, 1, 10, AThird, 1, true, 0},
    {10, 32786, 2, 1, 8, ABegin, 1, true, 0},
    {11, 32789, 0, 0, 12, FEnd, 1, false, 0},
    {12, 32789, 1, 1, 11, FBegin, 1, true, 0},
    {13, 32790, 0, 0, 14, REnd, 1, false, 0},
    {14, 32790, 1, 1, 13, RBegin, 1, true, 0},
    {15, 32788, 0, 0, 16, VEnd, 1, false, 0},
    {16, 32788, 1, 1, 15, VBegin, 1, true, 0},
    {17, 32782, 0, 0, 17, Unchanged, 0, false, 0},
}};

struct sArming
{
    int command, state;
    const char* prompt;
};

constexpr std::array<sArming, 8> Armings{{{32779, 1, HBegin},
                                          {32784, 3, SBegin},
                                          {32785, 5, PBegin},
                                          {32786, 8, AFirst},
                                          {32788, 15, VFirst},
                                          {32789, 11, FFirst},
                                          {32790, 13, RBegin},
                                          {32782, 17, Delete}}};

} // namespace

class TrendMachine : public CTrendTest
{
protected:
    // A separate machine for each cell, so that cells do not influence each other.
    struct sFresh
    {
        CTrendLists lists;
        CTrendInteraction machine;
        sFresh(TrendMachine& t)
            : lists(t.window), machine(t.window, t.prices, lists, t.status, t.box, t.timer)
        {
        }
    };

    void Enter(sFresh& fresh, const sStateCell& cell)
    {
        fresh.machine.OnCommand(cell.command);
        for (int click = 0; click < cell.clicks; ++click) {
            Click(fresh, 341, 1, 30, 100);
            MoveTo(fresh, 40, 110);
        }
        ASSERT_EQ(fresh.machine.State(), cell.state);
        ASSERT_EQ(fresh.lists.Count(), cell.lines);
        status.text = Unchanged;
    }
    bool Click(sFresh& fresh, int control, int button, double x, double y)
    {
        int px = 0, py = 0;
        Pixel(x, y, px, py);
        return fresh.machine.OnMouseDown(control, button, px, py);
    }
    void MoveTo(sFresh& fresh, double x, double y)
    {
        int px = 0, py = 0;
        Pixel(x, y, px, py);
        fresh.machine.OnMouseMove(px, py);
    }
    std::vector<double> Curve(int series) const
    {
        const auto y = window.pane.PaneGroups(2).PaneData().Y(series);
        return {y.begin(), y.end()};
    }
};

TEST_F(TrendMachine, EveryCommandArmsItsModeFromEveryState)
{
    for (const sStateCell& cell : Cells) {
        for (const sArming& arming : Armings) {
            sFresh fresh(*this);
            Enter(fresh, cell);
            EXPECT_TRUE(fresh.machine.OnCommand(arming.command));
            EXPECT_EQ(fresh.machine.State(), arming.state) << cell.state;
            EXPECT_EQ(status.text, arming.prompt);
            EXPECT_EQ(fresh.lists.Count(), cell.lines) << "a half drawn line stays in its list";
            if (cell.lines == 1) {
                EXPECT_EQ(Shape(4), SymbolMark) << "with its markers on";
            }
            fresh.lists.RemoveAll();
        }
    }
}

TEST_F(TrendMachine, LeftClickOnThePricePaneDoesWhatTheTableSays)
{
    for (const sStateCell& cell : Cells) {
        sFresh fresh(*this);
        Enter(fresh, cell);
        EXPECT_TRUE(Click(fresh, 341, 1, 20, 100));
        EXPECT_EQ(fresh.machine.State(), cell.leftState) << cell.state;
        EXPECT_EQ(status.text, cell.leftPrompt) << cell.state;
        EXPECT_EQ(fresh.lists.Count(), cell.leftLines) << cell.state;
        fresh.lists.RemoveAll();
    }
}

TEST_F(TrendMachine, LeftClickOnAStudyPaneChangesNothingInAnyState)
{
    for (const sStateCell& cell : Cells) {
        for (int control = 342; control <= 351; ++control) {
            sFresh fresh(*this);
            Enter(fresh, cell);
            EXPECT_FALSE(Click(fresh, control, 1, 20, 100));
            EXPECT_EQ(fresh.machine.State(), cell.state);
            EXPECT_EQ(status.text, Unchanged);
            EXPECT_EQ(fresh.lists.Count(), cell.lines);
            fresh.lists.RemoveAll();
        }
    }
}

TEST_F(TrendMachine, RightClickOnAnyPaneCancelsFromEveryState)
{
    for (const sStateCell& cell : Cells) {
        for (int control = 341; control <= 351; ++control) {
            sFresh fresh(*this);
            Enter(fresh, cell);
            EXPECT_TRUE(Click(fresh, control, 2, 20, 100));
            EXPECT_EQ(fresh.machine.State(), 0);
            EXPECT_EQ(status.text, "Ready");
            EXPECT_EQ(fresh.lists.Count(), cell.rightLines) << cell.state;
            fresh.lists.RemoveAll();
        }
    }
}

TEST_F(TrendMachine, MouseMoveRubberBandsOnlyWhileALineIsBeingDrawn)
{
    for (const sStateCell& cell : Cells) {
        sFresh fresh(*this);
        Enter(fresh, cell);
        std::vector<std::vector<double>> before;
        for (int series = 4; series <= 13; ++series)
            before.push_back(Curve(series));
        MoveTo(fresh, 25, 75);
        bool changed = false;
        for (int series = 4; series <= 13; ++series)
            changed = changed || Curve(series) != before[static_cast<std::size_t>(series - 4)];
        EXPECT_EQ(changed, cell.draws) << cell.state;
        EXPECT_EQ(fresh.machine.State(), cell.state);
        EXPECT_EQ(status.text, Unchanged) << "moving writes no prompt";
        EXPECT_EQ(window.priceBatches, 0);
        fresh.lists.RemoveAll();
    }
}

TEST_F(TrendMachine, NewChartGoesBackToIdleWithoutAPromptFromEveryState)
{
    for (const sStateCell& cell : Cells) {
        sFresh fresh(*this);
        Enter(fresh, cell);
        fresh.machine.OnNewChart();
        fresh.machine.OnRequest();
        EXPECT_EQ(fresh.machine.State(), 0);
        EXPECT_EQ(status.text, Unchanged);
        EXPECT_EQ(fresh.lists.Count(), 0);
    }
}

TEST_F(TrendMachine, RequestAloneRemovesAllLinesAndLeavesTheStateAsItIs)
{
    for (const sStateCell& cell : Cells) {
        sFresh fresh(*this);
        Enter(fresh, cell);
        fresh.machine.OnRequest();
        EXPECT_EQ(fresh.machine.State(), cell.state);
        EXPECT_EQ(fresh.lists.Count(), 0);
        // Later events find no line and do no harm.
        MoveTo(fresh, 25, 75);
        Click(fresh, 341, 1, 25, 75);
        Click(fresh, 341, 2, 25, 75);
        EXPECT_EQ(fresh.machine.State(), 0);
        fresh.lists.RemoveAll();
    }
}

TEST_F(TrendMachine, DeleteAllAsksAndLeavesTheStateAsItIs)
{
    for (const sStateCell& cell : Cells) {
        for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Yes}) {
            sFresh fresh(*this);
            Enter(fresh, cell);
            box.answer = answer;
            box.texts.clear();
            EXPECT_TRUE(fresh.machine.OnCommand(32783));
            EXPECT_EQ(box.texts, std::vector<std::string>{"Delete all trendlines?"});
            EXPECT_EQ(fresh.machine.State(), cell.state);
            EXPECT_EQ(fresh.lists.Count(), answer == BoxAnswer::Yes ? 0 : cell.lines);
            MoveTo(fresh, 25, 75);
            fresh.machine.OnFlashTimer();
            Click(fresh, 341, 1, 25, 75);
            fresh.lists.RemoveAll();
        }
    }
}

TEST_F(TrendMachine, IdleStatePassesEverythingToTheWindow)
{
    EXPECT_FALSE(machine.OnMouseDown(341, 1, 100, 100));
    EXPECT_FALSE(machine.OnMouseDown(341, 2, 100, 100));
    EXPECT_FALSE(machine.OnMouseMove(100, 100));
    EXPECT_FALSE(machine.OnCommand(777));
    EXPECT_EQ(status.text, "untouched");
}

TEST_F(TrendMachine, ClickBesideThePlotStartsNoLineInAnyFirstPointState)
{
    for (const sArming& arming : Armings) {
        machine.OnCommand(arming.command);
        EXPECT_TRUE(machine.OnMouseDown(341, 1, 5, 100)); // in the axis area
        EXPECT_EQ(machine.State(), arming.state);
        EXPECT_EQ(lists.Count(), 0);
        EXPECT_EQ(status.text, arming.prompt);
    }
}

TEST_F(TrendMachine, FirstIndexStartsASlopingLineButNotAHorizontalOne)
{
    window.Show(0, 60, 50, 150);
    machine.OnCommand(DrawHorizontal);
    Down(1, 1, 100);
    EXPECT_EQ(lists.Count(), 0);
    Down(1, 2, 100);
    EXPECT_EQ(lists.Count(), 1);
    for (int command :
         {DrawSloping, DrawParallel, DrawPitchfork, DrawFan, DrawRetracements, DrawSpeedResistance}) {
        lists.RemoveAll();
        machine.OnCommand(command);
        Down(1, 1, 100);
        EXPECT_EQ(lists.Count(), 1) << command;
    }
}

TEST_F(TrendMachine, IndexEqualToTheCountIsAcceptedAndOneBeyondIsNot)
{
    prices.count = 120; // index 120 is at position 21
    machine.OnCommand(DrawSloping);
    Down(1, 22, 100);
    EXPECT_EQ(lists.Count(), 0);
    Down(1, 21, 100);
    ASSERT_EQ(lists.Count(), 1);
    EXPECT_EQ(machine.Current()->m_startIndex, 120);
}

TEST_F(TrendMachine, NewLineHasWidthOneMarkersAndTheKindsColor)
{
    window.settings.Trends[TrendSloping] = {0x445566, 4, 1};
    machine.OnCommand(DrawSloping);
    Down(1, 10, 100);
    EXPECT_EQ(machine.Current()->m_width, 1);
    EXPECT_EQ(machine.Current()->m_color, 0x445566u);
    EXPECT_EQ(machine.Current()->m_extendable, 1);
    EXPECT_EQ(Shape(4), SymbolMark);
    Move(20, 110);
    Down(1, 20, 110);
    EXPECT_EQ(lists.List(TrendSloping).Item(0).m_width, 4);
    EXPECT_EQ(Shape(4), SymbolNone);
    EXPECT_EQ(window.pane.PaneGroups(2).SeriesStyles(4).LineLook().Width(), 4);
}

TEST_F(TrendMachine, EndPointClampsToIndexOne)
{
    window.Show(0, 60, 50, 150);
    machine.OnCommand(DrawSloping);
    Down(1, 10, 100); // index 9
    Move(1, 90);      // index 0
    EXPECT_EQ(machine.Current()->m_endIndex, 1);
}

TEST_F(TrendMachine, MoveOntoTheStartIndexChangesNothing)
{
    machine.OnCommand(DrawSloping);
    Down(1, 10, 100);
    Move(20, 110);
    const double end = machine.Current()->GetEndValue();
    Move(10, 60);
    EXPECT_EQ(machine.Current()->m_endIndex, 119);
    EXPECT_EQ(machine.Current()->GetEndValue(), end);
}

TEST_F(TrendMachine, HorizontalLineStaysAtTheFirstPrice)
{
    machine.OnCommand(DrawHorizontal);
    Down(1, 10, 100);
    const double value = machine.Current()->m_value;
    Move(20, 60);
    EXPECT_EQ(machine.Current()->m_endIndex, 119);
    EXPECT_EQ(machine.Current()->m_value, value);
}

TEST_F(TrendMachine, RubberBandPassesUnderThePointer)
{
    machine.OnCommand(DrawSloping);
    Down(1, 10, 100);
    for (int px = 200; px < 560; px += 7) {
        for (int py = 30; py < 360; py += 13) {
            machine.OnMouseMove(px, py);
            double x = 0, y = 0;
            ASSERT_EQ(window.pane.PaneGroups(1).PixelToData(px, py, x, y), GeometryFound);
            const CBaseTrend& trend = *machine.Current();
            const double slope =
                (trend.GetEndValue() - trend.m_value) / (trend.m_endIndex - trend.m_startIndex);
            const double atPointer =
                trend.m_value + slope * (x + 99 - trend.m_startIndex); // position x is index x + 99
            EXPECT_NEAR(atPointer, y, 1e-6);
        }
    }
}

// The order of the operations affects the result: the fraction is added to the index before the start is
// subtracted.
TEST_F(TrendMachine, EndPriceIsWorkedOutInOneOrder)
{
    prices.count = 300000;
    window.Show(245700, 60, 50.0, 150.0);
    machine.OnCommand(DrawSloping);
    Down(1, 10, 100);
    for (int px = 200; px < 560; ++px) {
        machine.OnMouseMove(px, 77);
        double x = 0, y = 0;
        ASSERT_EQ(window.pane.PaneGroups(1).PixelToData(px, 77, x, y), GeometryFound);
        const CBaseTrend& trend = *machine.Current();
        const int xi = static_cast<int>(x + 0.5), index = 245700 - 1 + xi;
        double run = x - xi;
        run += index;
        run -= trend.m_startIndex;
        double wanted = (y - trend.m_value) / run;
        wanted *= index - trend.m_startIndex;
        wanted += trend.m_value;
        ASSERT_EQ(trend.GetEndValue(), wanted) << px;
    }
}

TEST_F(TrendMachine, SecondParallelLineSitsUnderThePointer)
{
    machine.OnCommand(DrawParallel);
    Down(1, 10, 100);
    Move(40, 120);
    Down(1, 40, 120);
    for (int py : {60, 150, 300}) {
        machine.OnMouseMove(307, py);
        double x = 0, y = 0;
        ASSERT_EQ(window.pane.PaneGroups(1).PixelToData(307, py, x, y), GeometryFound);
        const CBaseTrend& trend = *machine.Current();
        const double slope = (trend.GetEndValue() - trend.m_value) / (trend.m_endIndex - trend.m_startIndex);
        EXPECT_NEAR(trend.m_value + slope * (x + 99 - trend.m_startIndex) + trend.GetOffset(), y, 1e-9);
    }
}

TEST_F(TrendMachine, SecondLineAboveHasAPositiveOffsetAndBelowANegativeOne)
{
    machine.OnCommand(DrawParallel);
    Down(1, 10, 120);
    Move(40, 80); // downward
    Down(1, 40, 80);
    Move(25, 130);
    EXPECT_GT(machine.Current()->GetOffset(), 0.0);
    Move(25, 60);
    EXPECT_LT(machine.Current()->GetOffset(), 0.0);
}

TEST_F(TrendMachine, ParallelWithoutAMoveGetsAnOffsetThatIsNotFinite)
{
    machine.OnCommand(DrawParallel);
    Down(1, 10, 100);
    Down(1, 10, 100);
    ASSERT_EQ(machine.State(), ParallelSecondLine);
    Move(30, 120);
    EXPECT_FALSE(std::isfinite(machine.Current()->GetOffset()));
    Down(1, 30, 120);
    EXPECT_EQ(machine.State(), ParallelStart);
}

TEST_F(TrendMachine, RightClickOnAHalfDrawnParallelGivesBothSeriesBack)
{
    machine.OnCommand(DrawParallel);
    Down(1, 10, 100);
    Move(30, 120);
    Down(2, 30, 120, 345);
    EXPECT_EQ(lists.Count(), 0);
    EXPECT_EQ(std::vector<int>(lists.Pool().Free().begin(), lists.Pool().Free().end()),
              (std::vector<int>{4, 5}));
}

TEST_F(TrendMachine, ThirdPointFreezesRightOfTheMiddle)
{
    machine.OnCommand(DrawPitchfork);
    Down(1, 30, 100);
    Move(40, 120); // middle at position 35
    Down(1, 40, 120);
    const auto& fork = dynamic_cast<const CPitchforkTrend&>(*machine.Current());
    EXPECT_EQ(fork.m_thirdValue, -1.0);
    Move(36, 90);
    EXPECT_EQ(fork.m_thirdValue, -1.0) << "right of the middle there is no third point";
    Move(35, 90);
    EXPECT_EQ(fork.m_thirdValue, -1.0) << "nor on it";
    Move(20, 90);
    EXPECT_EQ(fork.m_thirdIndex, 119);
    const double value = fork.m_thirdValue;
    EXPECT_NEAR(value, 90.0, 3.0);
    Move(45, 70);
    EXPECT_EQ(fork.m_thirdIndex, 119);
    EXPECT_EQ(fork.m_thirdValue, value);
}

TEST_F(TrendMachine, ThirdPriceUsesHalfTheDifferenceOfTheTwoPrices)
{
    machine.OnCommand(DrawPitchfork);
    Down(1, 30, 100);
    Move(40, 120);
    Down(1, 40, 120);
    int px = 0, py = 0;
    Pixel(20.3, 90, px, py);
    double x = 0, y = 0;
    window.pane.PaneGroups(1).PixelToData(px, py, x, y);
    machine.OnMouseMove(px, py);
    const auto& fork = dynamic_cast<const CPitchforkTrend&>(*machine.Current());
    const int xi = static_cast<int>(x + 0.5);
    const int index = 99 + xi;
    const double mid = (fork.m_startIndex + fork.m_endIndex) * 0.5;
    const double h = (fork.m_value - fork.GetEndValue()) * 0.5;
    EXPECT_EQ(fork.m_thirdIndex, index);
    EXPECT_EQ(fork.m_thirdValue, h + ((y - h) / ((x - xi) + index - mid)) * (index - mid));
}

class TrendDeletion : public TrendMachine
{
protected:
    TrendDeletion()
    {
        for (double price : {80.0, 120.0}) {
            machine.OnCommand(DrawHorizontal);
            Down(1, 10, price);
            Move(40, price);
            Down(1, 40, price);
        }
        machine.OnCommand(AskDeleteTrend);
    }
    // A click so many pixels above the line at 120.
    void ClickAbove(int pixels)
    {
        int px = 0, py = 0;
        Pixel(25, lists.List(TrendHorizontal).Item(lists.Count() - 1).m_value, px, py);
        machine.OnMouseDown(341, 1, px, py - pixels);
    }
};

TEST_F(TrendDeletion, ElevenPixelsAwayIsIgnoredAndTenAsks)
{
    status.text = "untouched";
    ClickAbove(11);
    EXPECT_TRUE(box.texts.empty());
    EXPECT_EQ(status.text, "untouched");
    EXPECT_EQ(machine.State(), DeleteTrend);
    ClickAbove(10);
    EXPECT_EQ(box.texts, std::vector<std::string>{"Delete flashing trendline?"});
}

TEST_F(TrendDeletion, LineFlashesWhileTheBoxIsOpenAndNoLeavesItClean)
{
    box.whileOpen = [this] {
        EXPECT_EQ(status.text, "Confirm the trendline deleting");
        EXPECT_EQ(timer.log, std::vector<std::string>{"start 108 500"});
        EXPECT_EQ(Shape(5), SymbolNone);
        machine.OnFlashTimer();
        EXPECT_EQ(Shape(5), SymbolMark);
        machine.OnFlashTimer();
        EXPECT_EQ(Shape(5), SymbolNone);
        machine.OnFlashTimer();
    };
    ClickAbove(0);
    EXPECT_EQ(timer.log, (std::vector<std::string>{"start 108 500", "stop 108"}));
    EXPECT_EQ(Shape(5), SymbolNone) << "answering no leaves the line with its markers off";
    EXPECT_EQ(lists.Count(), 2);
    EXPECT_EQ(machine.State(), DeleteTrend);
    EXPECT_EQ(status.text, Delete);
}

TEST_F(TrendDeletion, DeletingTheLastLineEndsTheModeAndDeletingAnotherKeepsIt)
{
    box.answer = BoxAnswer::Yes;
    ClickAbove(0);
    EXPECT_EQ(lists.Count(), 1);
    EXPECT_EQ(machine.State(), DeleteTrend);
    EXPECT_EQ(status.text, Delete);
    ClickAbove(0);
    EXPECT_EQ(lists.Count(), 0);
    EXPECT_EQ(machine.State(), 0);
    EXPECT_EQ(status.text, "Ready");
}

TEST_F(TrendDeletion, ModeThatEndsWhileTheBoxIsOpenStaysEnded)
{
    box.whileOpen = [this] {
        machine.OnNewChart();
        machine.OnRequest();
        status.text = "Loading Data...";
    };
    ClickAbove(0);
    EXPECT_EQ(machine.State(), TrendIdle);
    EXPECT_EQ(status.text, "Loading Data...");
}

TEST_F(TrendDeletion, LineThatGoesWhileTheBoxIsOpenDoesNoHarm)
{
    for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Yes}) {
        box.answer = answer;
        box.whileOpen = [this] { machine.OnRequest(); };
        ClickAbove(0);
        EXPECT_EQ(lists.Count(), 0);
        machine.OnCommand(DrawHorizontal);
        Down(1, 10, 100);
        machine.OnCommand(AskDeleteTrend);
    }
}

} // namespace zantroq::test
