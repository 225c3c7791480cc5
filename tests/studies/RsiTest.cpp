#include "StudyPane.h"

#include <gmock/gmock.h>

#include <cmath>

namespace zantroq {
namespace {

using testing::Each;

constexpr double Hole = 1e+308;

// 20 closes that rise by 2 and fall by 1 in turn.
class CZigzagPane : public CStudyPane
{
public:
    explicit CZigzagPane(int closes = 20, int period = 14) : CStudyPane(StudyRSI)
    {
        SetPeriod(period);
        for (int i = 0; i < closes; ++i)
            Series.AddTick(100 + i / 2 + (i % 2 ? 2 : 0));
    }
};

TEST(Rsi, BeginsOneBarLateWithTwoEqualPointsAndThenCollapses)
{
    CZigzagPane pane;
    pane.Draw(0, 20);
    for (int point = 1; point <= 15; ++point)
        EXPECT_EQ(pane.Y(1, point), Hole) << point;
    // Index 14: seven gains of 2 and seven losses of 1 are 100 - 100 / (2 + 1).
    EXPECT_EQ(pane.Y(1, 16), 100 - 100 / ((7 * 2.0 / 14) / (7 * 1.0 / 14) + 1));
    EXPECT_EQ(pane.Y(1, 17), pane.Y(1, 16));
    EXPECT_EQ(pane.Y(1, 18), 0); // index 16 fell
}

TEST(Rsi, CollapsesTo100AfterARiseAndToNothingAfterNoChange)
{
    CZigzagPane rising;
    rising.Series.ClosePrices[16] = rising.Series.ClosePrices[15] + 1;
    rising.Draw(0, 20);
    EXPECT_EQ(rising.Y(1, 18), 100);
    CZigzagPane flat;
    flat.Series.ClosePrices[16] = flat.Series.ClosePrices[15];
    flat.Draw(0, 20);
    EXPECT_TRUE(std::isnan(flat.Y(1, 18)));
}

TEST(Rsi, LeftmostPointOfALaterDisplayCollapsesAndTheNextGoOnFromIt)
{
    CZigzagPane pane(60, 5);
    pane.Draw(30, 20);
    // The leftmost point is index 29, which rose by 2; index 30 fell by 1.
    EXPECT_EQ(pane.Y(1, 1), 100);
    const double gain = 2 * (1.0 / 5), k = 1.0 / 5;
    const double nextGain = gain + (0 - gain) * k, nextLoss = 0 + (1 - 0.0) * k;
    EXPECT_DOUBLE_EQ(pane.Y(1, 2), 100 - 100 / (nextGain / nextLoss + 1));
}

TEST(Rsi, ScrollingChangesTheCurve)
{
    CZigzagPane pane(60, 5);
    pane.Draw(30, 20);
    const double before = pane.Y(1, 5); // index 33
    pane.Draw(33, 20);
    EXPECT_NE(pane.Y(1, 2), before);
}

TEST(Rsi, LivePointsContinueFromTheLastRedraw)
{
    CZigzagPane pane(60, 5);
    pane.DrawEnd(30);
    // The display requested index 58 last.
    ASSERT_EQ(CHistRSIChart::StudyRunningState().Index, 58);
    const sRSIRunningState state = CHistRSIChart::StudyRunningState();
    pane.Series.AddTick(200);
    pane.Window.Shown.ptsIndex = 0;
    pane.Update(1);
    const double d = pane.Series.ClosePrices[59] - pane.Series.ClosePrices[58], k = 1.0 / 5;
    const double gain = state.AvgGain + ((d > 0 ? d : 0) - state.AvgGain) * k;
    const double loss = state.AvgLoss + ((d > 0 ? 0 : -d) - state.AvgLoss) * k;
    EXPECT_EQ(pane.Y(1, 30), 100 - 100 / (gain / loss + 1));
    EXPECT_EQ(CHistRSIChart::StudyRunningState().Index, 59);
}

TEST(Rsi, IndexPastTheSeedLeavesTheStateUnwritten)
{
    CZigzagPane pane(60, 5);
    auto& study = pane.As<CHistRSIChart>();
    study.CalcRSI(6);
    study.CalcRSI(7);
    EXPECT_EQ(CHistRSIChart::StudyRunningState().Index, -10);
    study.CalcRSI(8);
    EXPECT_EQ(CHistRSIChart::StudyRunningState().Index, 7);
}

TEST(Rsi, AnotherChartWhoseIndexFollowsGoesOnFromTheState)
{
    CZigzagPane pane(60, 5);
    CHistRSIChart::StudyRunningState() = {28, 3.0, 1.0};       // left by another series
    const double value = pane.As<CHistRSIChart>().CalcRSI(30); // index 29, a rise of 2
    const double k = 1.0 / 5, gain = 3 + (2 - 3.0) * k, loss = 1 + (0 - 1.0) * k;
    EXPECT_EQ(value, 100 - 100 / (gain / loss + 1));
}

TEST(Rsi, NewSymbolDoesNotClearTheState)
{
    CZigzagPane pane(60, 5);
    pane.DrawEnd(30);
    const int reached = CHistRSIChart::StudyRunningState().Index;
    pane.Series = CBarSeries();
    for (int i = 0; i < 3; ++i)
        pane.Series.AddTick(5);
    pane.DrawEnd(30);
    EXPECT_EQ(CHistRSIChart::StudyRunningState().Index, reached);
}

TEST(Rsi, ConstantCloseIsNotANumberFromThePeriodOn)
{
    CStudyPane pane(StudyRSI);
    pane.SetPeriod(5);
    for (int i = 0; i < 20; ++i)
        pane.Series.AddTick(100);
    pane.Draw(0, 20);
    EXPECT_EQ(pane.Y(1, 6), Hole);
    for (int point = 7; point <= 20; ++point)
        EXPECT_TRUE(std::isnan(pane.Y(1, point))) << point;
}

TEST(Rsi, LevelsAreLinesAndNotLabels)
{
    CZigzagPane pane;
    pane.Draw(0, 20);
    EXPECT_THAT(pane.Values(2), Each(70.0));
    EXPECT_THAT(pane.Values(3), Each(30.0));
    EXPECT_THAT(pane.Labels(), testing::ElementsAre("25", "50", "75"));
    EXPECT_EQ(pane.YAxis().ViewHigh().Value(), 100);
    EXPECT_EQ(pane.YAxis().DataHigh().Value(), 100);
    EXPECT_EQ(pane.YAxis().ViewLow().Value(), 0);
    EXPECT_EQ(pane.YAxis().TickSpacing().Value(), 25);
    EXPECT_EQ(pane.YAxis().AxisGrid().Spacing(), 25);
}

TEST(Rsi, ShortSeriesDrawsTheLevelsAlone)
{
    CZigzagPane pane(14);
    pane.Draw(0, 14);
    EXPECT_THAT(pane.Values(1), Each(Hole));
    EXPECT_THAT(pane.Values(2), Each(70.0));
}

TEST(Rsi, TickChartRunsOnTheLastPrice)
{
    CZigzagPane ticks, bars;
    for (double& high : bars.Series.HighPrices)
        high += 10;
    ticks.Draw(0, 20);
    bars.Draw(0, 20);
    for (int point = 1; point <= 18; ++point)
        EXPECT_EQ(ticks.Y(1, point), bars.Y(1, point));
}

TEST(Rsi, HeaderNamesPeriodLevelsAndMarkedValue)
{
    CZigzagPane pane;
    pane.Draw(0, 20);
    EXPECT_EQ(pane.Header(), "RSI, lookback period - 14, levels - 70, 30");
    pane.Marker().SetPoint(16);
    EXPECT_EQ(pane.Study().GetStudyInfoText(), "RSI, lookback period - 14, levels - 70, 30 RSI: 66.6667");
}

TEST(Rsi, ColorsAreThoseOfDataAndLevels)
{
    CZigzagPane pane;
    pane.Settings().DataColors[StudyRSI] = 0x010203;
    pane.Settings().RsiUpperColor = 0x040506;
    pane.Settings().RsiLowerColor = 0x070809;
    pane.Draw(0, 20);
    CPaneGroup& group = pane.Window.Study.PaneGroups(1);
    EXPECT_EQ(group.SeriesStyles(1).LineLook().LineColor(), 0x010203u);
    EXPECT_EQ(group.SeriesStyles(2).LineLook().LineColor(), 0x040506u);
    EXPECT_EQ(group.SeriesStyles(3).LineLook().LineColor(), 0x070809u);
}

} // namespace
} // namespace zantroq
