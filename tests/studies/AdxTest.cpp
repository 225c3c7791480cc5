#include "StudyPane.h"

#include <gmock/gmock.h>

#include <cmath>

namespace zantroq {
namespace {

using testing::Each;

constexpr double Hole = 1e+308;

class CAdxPane : public CStudyPane
{
public:
    CAdxPane(int period, int bars) : CStudyPane(StudyADX)
    {
        SetPeriod(period);
        Add(bars);
    }
    void Add(int bars)
    {
        for (int i = 0; i < bars; ++i) {
            const int n = Series.Count();
            const double close = 100 + (n * 37) % 23;
            Series.Add(close, close + 1 + n % 3, close - 1 - n % 4, close, 100);
        }
    }
};

TEST(Adx, StartsAtTwiceThePeriodAndTheIndicatorsAtThePeriod)
{
    CAdxPane pane(14, 60);
    pane.Draw(0, 60);
    EXPECT_EQ(pane.Y(2, 14), Hole);
    EXPECT_NE(pane.Y(2, 15), Hole); // index 14
    EXPECT_NE(pane.Y(3, 15), Hole);
    EXPECT_EQ(pane.Y(1, 28), Hole);
    EXPECT_NE(pane.Y(1, 29), Hole); // index 28
}

TEST(Adx, IndicatorsAtThePeriodAndTheIndexAfterAreTheSame)
{
    CAdxPane pane(14, 60);
    pane.Draw(0, 60);
    EXPECT_EQ(pane.Y(2, 16), pane.Y(2, 15));
    EXPECT_EQ(pane.Y(3, 16), pane.Y(3, 15));
    EXPECT_NE(pane.Y(2, 17), pane.Y(2, 16));
}

TEST(Adx, FallingHighsCountAsUpwardMovement)
{
    CAdxPane pane(1, 0);
    pane.Series.Add(0, 100, 90, 95, 1);
    pane.Series.Add(0, 95, 89, 92, 1); // highs fall by 5, lows by 1
    double plus = -1, minus = -1, adx = -1;
    pane.As<CHistADXChart>().CalcADX(1, plus, minus, adx);
    EXPECT_EQ(plus, 5 * 100 / 6.0); // the true range is 6
    EXPECT_EQ(minus, 0);
    EXPECT_EQ(adx, -1);
}

TEST(Adx, EqualMovesCountAsNone)
{
    CAdxPane pane(1, 0);
    pane.Series.Add(0, 100, 90, 95, 1);
    pane.Series.Add(0, 103, 93, 95, 1);
    double plus = -1, minus = -1, adx = -1;
    pane.As<CHistADXChart>().CalcADX(1, plus, minus, adx);
    EXPECT_EQ(plus, 0);
    EXPECT_EQ(minus, 0);
}

TEST(Adx, TicksHaveZeroIndicatorsAndNoIndex)
{
    CAdxPane pane(3, 0);
    for (int i = 0; i < 30; ++i)
        pane.Series.AddTick(100 + (i * 7) % 5);
    pane.Draw(10, 20);
    EXPECT_THAT(pane.Values(2), Each(0.0));
    EXPECT_THAT(pane.Values(3), Each(0.0));
    for (const double value : pane.Values(1))
        EXPECT_TRUE(std::isnan(value));
}

TEST(Adx, NotANumberStaysUntilTheNextFullComputation)
{
    CAdxPane pane(2, 0);
    pane.Window.Shown.ptsIndex = 0;
    for (int i = 0; i < 30; ++i)
        pane.Series.AddTick(100 + i % 5);
    pane.DrawEnd(30);
    pane.Add(1); // a bar with a range
    pane.Update(1);
    EXPECT_GT(pane.Y(2, 30), 0);
    EXPECT_TRUE(std::isnan(pane.Y(1, 30)));
}

TEST(Adx, ScrollingChangesNoValue)
{
    CAdxPane pane(5, 200);
    pane.Draw(0, 200);
    const auto adx = pane.Values(1), plus = pane.Values(2), minus = pane.Values(3);
    for (const int first : {120, 8, 3, 100}) {
        pane.Draw(first, 60);
        for (int point = 1; point <= 60; ++point) {
            const auto index = static_cast<std::size_t>(first + point - 1);
            EXPECT_EQ(pane.Y(1, point), adx[index]);
            EXPECT_EQ(pane.Y(2, point), plus[index]);
            EXPECT_EQ(pane.Y(3, point), minus[index]);
        }
    }
}

TEST(Adx, StateIsWrittenOnlyPastTheSeed)
{
    CAdxPane pane(5, 60);
    double plus = 0, minus = 0, adx = 0;
    for (const int index : {5, 9, 10}) {
        pane.As<CHistADXChart>().CalcADX(index, plus, minus, adx);
        EXPECT_EQ(CHistADXChart::StudyRunningState().Index, -10) << index;
    }
    pane.As<CHistADXChart>().CalcADX(11, plus, minus, adx);
    EXPECT_EQ(CHistADXChart::StudyRunningState().Index, 11);
}

TEST(Adx, AnotherSeriesWhoseIndexFollowsGoesOnFromTheState)
{
    CAdxPane pane(2, 60);
    CHistADXChart::StudyRunningState() = {19, 4.0, 2.0, 1.0, 60.0};
    double plus = 0, minus = 0, adx = 0;
    pane.Series.HighPrices[20] = pane.Series.HighPrices[19] + 3; // a move of 3 against one of 1
    pane.Series.LowPrices[20] = pane.Series.LowPrices[19] + 1;
    pane.Series.ClosePrices[19] = pane.Series.LowPrices[20];
    pane.As<CHistADXChart>().CalcADX(20, plus, minus, adx);
    const double range = pane.Series.HighPrices[20] - pane.Series.LowPrices[20];
    const double tr = (range - 4) * 0.5 + 4, up = (3 - 2.0) * 0.5 + 2, down = (0 - 1.0) * 0.5 + 1;
    EXPECT_EQ(plus, up * 100 / tr);
    EXPECT_EQ(minus, down * 100 / tr);
    EXPECT_EQ(adx, (std::fabs((plus - minus) * 100 / (minus + plus)) - 60) * 0.5 + 60);
}

TEST(Adx, LivePointsNeverChangeTheAxisAndKeepTheCurve)
{
    CAdxPane pane(5, 100);
    pane.DrawEnd(120);
    const double high = pane.YAxis().ViewHigh().Value(), low = pane.YAxis().ViewLow().Value();
    pane.Series.Add(0, 900, 100, 500, 1);
    pane.Update(1);
    EXPECT_EQ(pane.YAxis().ViewHigh().Value(), high);
    EXPECT_EQ(pane.YAxis().ViewLow().Value(), low);
    const auto live = pane.Values(1);
    ForgetRunningStates();
    pane.DrawEnd(120);
    EXPECT_EQ(pane.Values(1), live);
}

// Regression: one bar without a true range left the pane without an axis.
TEST(Adx, AnInfinityDoesNotWidenTheAxis)
{
    CAdxPane pane(1, 30);
    const double close = pane.Series.Close(29);
    pane.Series.Add(close, close, close, close, 100);
    pane.Add(29);
    pane.Draw(0, 60);
    ASSERT_TRUE(std::isinf(pane.Y(2, 31)) || std::isinf(pane.Y(3, 31)));
    double greatest = 0, least = 100;
    for (const int series : {1, 2, 3})
        for (const double value : pane.Values(series))
            if (std::isfinite(value) && value != Hole) {
                greatest = std::max(greatest, value);
                least = std::min(least, value);
            }
    ASSERT_LT(least, greatest);
    EXPECT_GE(pane.YAxis().ViewHigh().Value(), greatest);
    EXPECT_LE(pane.YAxis().ViewLow().Value(), least);
    EXPECT_LT(pane.YAxis().ViewHigh().Value(), 10 * greatest);
}

TEST(Adx, OnlyInfinitiesInViewLeaveTheAxisAsItWasSetUp)
{
    CAdxPane pane(1, 30), empty(1, 0);
    const double close = pane.Series.Close(29);
    pane.Series.Add(close, close, close, close, 100);
    pane.Draw(30, 1);
    for (int i = 0; i < 3; ++i)
        empty.Series.Add(close, close, close, close, 100);
    empty.Draw(0, 1); // nothing but holes
    EXPECT_EQ(pane.YAxis().ViewHigh().Value(), empty.YAxis().ViewHigh().Value());
    EXPECT_EQ(pane.YAxis().ViewLow().Value(), empty.YAxis().ViewLow().Value());
}

TEST(Adx, GridSpacingIsTwentyFiveWhateverTheAxisTook)
{
    CAdxPane pane(5, 100);
    pane.Window.AllSettings.Grid = 1;
    pane.Draw(0, 100);
    EXPECT_EQ(pane.YAxis().AxisGrid().Spacing(), 25);
    EXPECT_NE(pane.YAxis().TickSpacing().Value(), 25);
}

TEST(Adx, HeaderNamesPeriodAndMarkedValues)
{
    CAdxPane pane(1, 0);
    pane.Series.Add(0, 100, 90, 95, 1);
    pane.Series.Add(0, 95, 89, 92, 1);
    pane.Draw(0, 2);
    pane.Marker().SetPoint(2);
    EXPECT_EQ(pane.Study().GetStudyInfoText(), "ADX, Smoothing period - 1 +DI: 83.3333 -DI: 0.0000");
}

} // namespace
} // namespace zantroq
