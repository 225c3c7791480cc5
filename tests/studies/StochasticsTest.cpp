#include "StudyPane.h"

#include "studies/HistSTOChart.h"

#include <gmock/gmock.h>

namespace zantroq {
namespace {

using testing::Each;

constexpr double Hole = 1e+308;

class CStoPane : public CStudyPane
{
public:
    CStoPane(bool fast, int period, int bars) : CStudyPane(StudyStochastics)
    {
        Settings().StoFast = fast;
        SetPeriod(period);
        for (int i = 0; i < bars; ++i) {
            const double close = 100 + (i * 37) % 23;
            Series.Add(close, close + 1 + i % 3, close - 1 - i % 2, close, 100);
        }
    }
    int FirstPoint(int series)
    {
        int point = 1;
        while (point <= Data().PointCount(series) && Y(series, point) == Hole)
            ++point;
        return point;
    }
};

TEST(Stochastics, BeginAsTheirTableSays)
{
    CStoPane fast(true, 5, 40);
    fast.Draw(0, 40);
    EXPECT_EQ(fast.FirstPoint(1), 6); // index 5
    EXPECT_EQ(fast.FirstPoint(2), 11);
    CStoPane slow(false, 5, 40);
    slow.Draw(0, 40);
    EXPECT_EQ(slow.FirstPoint(1), 11);
    EXPECT_EQ(slow.FirstPoint(2), 21);
}

TEST(Stochastics, SlowWithTwentyFiveBeginsAtFiftyAndAHundred)
{
    CStoPane pane(false, 25, 120);
    pane.Draw(0, 120);
    EXPECT_EQ(pane.FirstPoint(1), 51);
    EXPECT_EQ(pane.FirstPoint(2), 101);
}

TEST(Stochastics, WindowHoldsOneBarMoreThanThePeriod)
{
    CStoPane pane(true, 2, 0);
    pane.Series.Add(10, 20, 0, 10, 1); // the extremes lie in the bar two before
    pane.Series.Add(10, 12, 8, 10, 1);
    pane.Series.Add(10, 12, 8, 5, 1);
    pane.Draw(0, 3);
    EXPECT_EQ(pane.Y(1, 3), 5.0 / 20 * 100);
}

TEST(Stochastics, KMovesBackOnePointAtTwiceThePeriod)
{
    CStoPane pane(true, 2, 8);
    pane.Draw(0, 8);
    const auto& bars = pane.Series;
    const auto raw = [&](std::size_t i) {
        const double low = std::min({bars.LowPrices[i], bars.LowPrices[i - 1], bars.LowPrices[i - 2]});
        const double high = std::max({bars.HighPrices[i], bars.HighPrices[i - 1], bars.HighPrices[i - 2]});
        return (bars.ClosePrices[i] - low) / (high - low) * 100;
    };
    EXPECT_EQ(pane.Y(1, 4), raw(3)); // index 3: the raw value itself
    EXPECT_EQ(pane.Y(1, 5), raw(3)); // index 4: the one before
    EXPECT_EQ(pane.Y(1, 6), raw(4));
    EXPECT_EQ(pane.Y(2, 5), (raw(2) + raw(3)) / 2);
    EXPECT_EQ(pane.Y(2, 4), Hole);
}

TEST(Stochastics, NoRangeIsFifty)
{
    CStoPane pane(true, 3, 0);
    for (int i = 0; i < 12; ++i)
        pane.Series.AddTick(77);
    pane.Draw(3, 9);
    EXPECT_THAT(pane.Values(1), Each(50.0));
}

TEST(Stochastics, PricesBeyondTheSearchLimitsNeverReplaceThem)
{
    CStoPane pane(true, 1, 0);
    pane.Series.Add(2000000, 3000000, 2000000, 2500000, 1);
    pane.Series.Add(2000000, 3000000, 2000000, 2500000, 1);
    pane.Draw(0, 2);
    EXPECT_EQ(pane.Y(1, 2), (2500000.0 - 1000000) / (3000000 - 1000000) * 100);
}

TEST(Stochastics, NegativeResultIsNone)
{
    CStoPane pane(true, 1, 0);
    pane.Series.Add(10, 12, 8, 10, 1);
    pane.Series.Add(10, 12, 8, 6, 1); // a close below the low
    pane.Draw(0, 2);
    EXPECT_EQ(pane.Y(1, 2), Hole);
}

TEST(Stochastics, ValueAboveTheAxisIsDrawnAsItIs)
{
    CStoPane pane(true, 1, 0);
    pane.Series.Add(10, 12, 8, 10, 1);
    pane.Series.Add(10, 12, 8, 14, 1);
    pane.Draw(0, 2);
    EXPECT_EQ(pane.Y(1, 2), 150);
    EXPECT_EQ(pane.YAxis().ViewHigh().Value(), 100);
}

TEST(Stochastics, ShortSeriesDrawsTheLevelsAlone)
{
    CStoPane pane(false, 5, 5);
    pane.Draw(0, 5);
    EXPECT_THAT(pane.Values(1), Each(Hole));
    EXPECT_THAT(pane.Values(2), Each(Hole));
    EXPECT_THAT(pane.Values(3), Each(80.0));
    EXPECT_THAT(pane.Values(4), Each(20.0));
}

TEST(Stochastics, AxisIsFixed)
{
    CStoPane pane(true, 5, 40);
    pane.Draw(0, 40);
    EXPECT_EQ(pane.YAxis().ViewHigh().Value(), 100);
    EXPECT_EQ(pane.YAxis().DataHigh().Value(), 100);
    EXPECT_EQ(pane.YAxis().ViewLow().Value(), 0);
    EXPECT_EQ(pane.YAxis().TickSpacing().Value(), 25);
    EXPECT_THAT(pane.Labels(), testing::ElementsAre("25", "50", "75"));
}

TEST(Stochastics, LivePointsGiveWhatARedrawGives)
{
    for (const bool fast : {false, true}) {
        CStoPane pane(fast, 3, 40);
        CBarSeries whole = pane.Series;
        pane.Series = CBarSeries();
        for (std::size_t i = 0; i < 40; ++i) {
            pane.Series.Add(whole.OpenPrices[i], whole.HighPrices[i], whole.LowPrices[i],
                            whole.ClosePrices[i], 1);
            if (i == 0)
                pane.DrawEnd(120);
            else
                pane.Update(1);
        }
        const auto k = pane.Values(1), d = pane.Values(2);
        pane.DrawEnd(120);
        EXPECT_EQ(pane.Values(1), k);
        EXPECT_EQ(pane.Values(2), d);
    }
}

TEST(Stochastics, HeaderHasOnePercentSign)
{
    CStoPane pane(true, 2, 8);
    pane.Draw(0, 8);
    EXPECT_EQ(pane.Header(), "Fast STO, lookback period - 2, levels - 80, 20");
    pane.Marker().SetPoint(3);
    EXPECT_THAT(pane.Study().GetStudyInfoText(),
                testing::StartsWith("Fast STO, lookback period - 2, levels - 80, 20 %K: "));
    EXPECT_THAT(pane.Study().GetStudyInfoText(), testing::Not(testing::HasSubstr("%D")));
    pane.Settings().StoFast = 0;
    EXPECT_THAT(pane.Study().GetStudyInfoText(), testing::StartsWith("Slow STO"));
}

} // namespace
} // namespace zantroq
