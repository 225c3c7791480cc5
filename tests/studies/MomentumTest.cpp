// Momentum, rate of change and on-balance volume: the studies that look a period back.
#include "StudyPane.h"

#include "studies/HistMOMChart.h"
#include "studies/HistOBVChart.h"
#include "studies/HistROCChart.h"

#include <gmock/gmock.h>

namespace zantroq {
namespace {

using testing::Each;

constexpr double Hole = 1e+308;

void AddSquares(CStudyPane& pane, int count)
{
    for (int i = 0; i < count; ++i)
        pane.Series.AddTick(100 + i * i);
}

TEST(Momentum, DrawnPointsLagOneBarAndLivePointsDoNot)
{
    CStudyPane pane(StudyMomentum);
    pane.SetPeriod(3);
    AddSquares(pane, 10);
    pane.DrawEnd(120);
    // Point 10 is index 9 in the price pane and index 8 here: 8 * 8 - 5 * 5.
    EXPECT_EQ(pane.Y(1, 10), 64 - 25);
    pane.Series.AddTick(100 + 10 * 10);
    pane.Update(1);
    EXPECT_EQ(pane.Y(1, 11), 100 - 49); // index 10 itself
    EXPECT_EQ(pane.Y(1, 10), 64 - 25);
    pane.DrawEnd(120);
    EXPECT_EQ(pane.Y(1, 11), 81 - 36);
}

TEST(Momentum, AndRocBothStartAtPointTwelveForAPeriodOfTen)
{
    for (const int kind : {int{StudyMomentum}, int{StudyROC}}) {
        CStudyPane pane(kind);
        pane.SetPeriod(10);
        AddSquares(pane, 20);
        pane.Draw(0, 20);
        EXPECT_EQ(pane.Y(1, 11), Hole) << kind;
        EXPECT_NE(pane.Y(1, 12), Hole) << kind;
    }
}

TEST(Momentum, StartsAtThePeriodAndRocOneLater)
{
    CStudyPane momentum(StudyMomentum), roc(StudyROC);
    for (CStudyPane* pane : {&momentum, &roc}) {
        pane->SetPeriod(10);
        AddSquares(*pane, 20);
    }
    EXPECT_EQ(momentum.As<CHistMOMChart>().CalcMomentum(9), Hole);
    EXPECT_EQ(momentum.As<CHistMOMChart>().CalcMomentum(10), 100);
    EXPECT_EQ(roc.As<CHistROCChart>().CalcROC(10), Hole);
    EXPECT_EQ(roc.As<CHistROCChart>().CalcROC(11), (221.0 - 101) / 101 * 100);
}

TEST(Momentum, ShortSeriesDrawsNothingAndOnlyClearsTheLabels)
{
    CStudyPane pane(StudyMomentum);
    pane.SetPeriod(30);
    AddSquares(pane, 20);
    pane.YAxis().TickLabels().Add(1, "left over");
    pane.Draw(0, 20);
    EXPECT_THAT(pane.Values(1), Each(Hole));
    EXPECT_THAT(pane.Values(2), Each(0.0));
    EXPECT_TRUE(pane.Labels().empty());
    EXPECT_EQ(pane.YAxis().ViewHigh().Value(), 2); // as the pane was set up
}

TEST(Momentum, FixedScaleLeavesTheAxisFrom31Points)
{
    for (const int points : {30, 31}) {
        CStudyPane pane(StudyMomentum);
        pane.SetPeriod(3);
        pane.Window.AllSettings.FixedScale = true;
        AddSquares(pane, points);
        pane.DrawEnd(120);
        EXPECT_EQ(pane.YAxis().ViewHigh().Value() == 2, points == 31);
        pane.Window.Reset = true;
        pane.DrawEnd(120);
        EXPECT_NE(pane.YAxis().ViewHigh().Value(), 2);
    }
}

TEST(Momentum, ZeroPeriodIsALevelLine)
{
    CStudyPane pane(StudyMomentum);
    pane.SetPeriod(0);
    AddSquares(pane, 10);
    pane.Draw(0, 10);
    EXPECT_EQ(pane.Y(1, 1), Hole); // one bar before the first
    EXPECT_EQ(pane.Y(1, 2), 0);
    EXPECT_EQ(pane.Y(1, 10), 0);
}

TEST(Momentum, ValuesBeyondTheStartOfTheSearchAreNotSeenByTheAxis)
{
    CStudyPane pane(StudyMomentum);
    pane.SetPeriod(1);
    for (const double close : {0.0, 300000000.0, 0.0, 5.0, 5.0})
        pane.Series.AddTick(close);
    pane.Draw(0, 5);
    EXPECT_EQ(pane.YAxis().DataHigh().Value(), 300000000.0);
    EXPECT_EQ(pane.YAxis().DataLow().Value(), -300000000.0);
}

TEST(Roc, CloseOfZeroAPeriodBackIsAGap)
{
    CStudyPane pane(StudyROC);
    pane.SetPeriod(2);
    for (const double close : {1.0, 2.0, 0.0, 4.0, 5.0, 6.0})
        pane.Series.AddTick(close);
    pane.Draw(0, 6);
    EXPECT_EQ(pane.Y(1, 5), Hole); // 5 against 0
    EXPECT_EQ(pane.Y(1, 6), 50);   // 6 against 4
}

TEST(Roc, FixedScaleDoesNotConcernIt)
{
    CStudyPane pane(StudyROC);
    pane.SetPeriod(3);
    pane.Window.AllSettings.FixedScale = true;
    AddSquares(pane, 60);
    pane.DrawEnd(120);
    EXPECT_NE(pane.YAxis().ViewHigh().Value(), 2);
}

TEST(Roc, HeaderNamesPeriodAndMarkedValue)
{
    CStudyPane pane(StudyROC);
    pane.SetPeriod(2);
    for (const double close : {1.0, 2.0, 3.0, 4.0, 5.0, 6.0})
        pane.Series.AddTick(close);
    pane.Draw(0, 6);
    pane.Marker().SetPoint(6);
    EXPECT_EQ(pane.Study().GetStudyInfoText(), "ROC, lookback period - 2 ROC: 50.0000");
}

TEST(Obv, SumsTheSignedVolumesOfTheWindow)
{
    CStudyPane pane(StudyOBV);
    pane.SetPeriod(3);
    const double closes[] = {10, 11, 11, 10, 12, 13};
    for (int i = 0; i < 6; ++i)
        pane.Series.AddTick(closes[i], 1 << i);
    pane.Draw(0, 6);
    EXPECT_EQ(pane.Y(1, 3), Hole);
    EXPECT_EQ(pane.Y(1, 4), 2 + 0 - 8);
    EXPECT_EQ(pane.Y(1, 5), 0 - 8 + 16);
    EXPECT_EQ(pane.Y(1, 6), -8 + 16 + 32);
}

TEST(Obv, ZeroPeriodIsZeroAtEveryPoint)
{
    CStudyPane pane(StudyOBV);
    pane.SetPeriod(0);
    AddSquares(pane, 10);
    pane.Draw(0, 10);
    EXPECT_THAT(pane.Values(), Each(0.0));
}

TEST(Obv, FlatTicksStayAtZero)
{
    CStudyPane pane(StudyOBV);
    for (int i = 0; i < 20; ++i)
        pane.Series.AddTick(50, 300);
    pane.Draw(9, 11);
    EXPECT_THAT(pane.Values(), Each(0.0));
}

TEST(Obv, SumPassesThirtyTwoBits)
{
    CStudyPane pane(StudyOBV);
    pane.SetPeriod(2);
    for (int i = 0; i < 4; ++i)
        pane.Series.AddTick(50 + i, 3000000000);
    pane.Draw(0, 4);
    EXPECT_EQ(pane.Y(1, 4), 6000000000.0);
    EXPECT_EQ(pane.Labels().back().back(), 'B');
}

TEST(Obv, SumsThatRoundAreAddedFromTheEarliest)
{
    CStudyPane pane(StudyOBV);
    pane.SetPeriod(3);
    const std::int64_t large = std::int64_t{1} << 53;
    pane.Series.AddTick(1, 0);
    pane.Series.AddTick(2, large);
    pane.Series.AddTick(3, 1);
    pane.Series.AddTick(4, 1);
    pane.Draw(0, 4);
    // 2^53 + 1 rounds back to 2^53, twice; 1 + 1 + 2^53 would not.
    EXPECT_EQ(pane.Y(1, 4), 9007199254740992.0);
}

TEST(Obv, ShortSeriesDrawsTheZeroLineAlone)
{
    CStudyPane pane(StudyOBV);
    AddSquares(pane, 9);
    pane.Draw(0, 9);
    EXPECT_THAT(pane.Values(1), Each(Hole));
    EXPECT_THAT(pane.Values(2), Each(0.0));
}

TEST(Obv, HeaderNamesPeriodAndMarkedValueWithoutDecimals)
{
    CStudyPane pane(StudyOBV);
    AddSquares(pane, 12);
    pane.Draw(0, 12);
    pane.Marker().SetPoint(12);
    EXPECT_EQ(pane.Study().GetStudyInfoText(), "OBV, smoothing period - 9 OBV: 900");
}

} // namespace
} // namespace zantroq
