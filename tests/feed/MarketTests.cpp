// Bars compared with a slow plain model, and the guarantees of the simulated markets.
#include "feed/markets/BarBuilder.h"
#include "feed/markets/RandomNumbers.h"
#include "feed/markets/RecordedMarket.h"
#include "feed/markets/SimulatedMarket.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace zantroq::feed {
namespace {

struct sPLAIN_BAR
{
    double Open = 0, High = 0, Low = 0, Close = 0;
    std::int64_t Volume = 0;
};

// One bar for each interval end, each computed by examining all ticks.
std::map<TFeedTime, sPLAIN_BAR> PlainBars(const std::vector<sFEED_TICK>& ticks, int seconds)
{
    std::map<TFeedTime, sPLAIN_BAR> bars;
    for (const sFEED_TICK& tick : ticks) {
        const TFeedTime midnight = StartOfDay(DayOf(tick.Time));
        TFeedTime end = midnight;
        while (end <= tick.Time)
            end += seconds * 1000;
        end = std::min(end, midnight + 86'400'000);
        const double price = PriceValue(tick.Last);
        const bool isNew = !bars.contains(end);
        sPLAIN_BAR& bar = bars[end];
        if (isNew)
            bar = {price, price, price, price, 0};
        bar.High = std::max(bar.High, price);
        bar.Low = std::min(bar.Low, price);
        bar.Close = price;
        bar.Volume += tick.Size;
    }
    return bars;
}

std::vector<sFEED_TICK> RandomTicks(std::uint64_t seed, std::size_t count)
{
    CRandomNumbers random(seed);
    std::vector<sFEED_TICK> ticks(count);
    for (sFEED_TICK& tick : ticks) {
        tick.Time = StartOfDay(16'000) + random.Below(86'400'000);
        tick.Last = MakePrice(1000 + random.Below(500), random.Below(2) + 1);
        tick.Size = random.Below(1000);
    }
    std::stable_sort(ticks.begin(), ticks.end(),
                     [](const auto& a, const auto& b) { return a.Time < b.Time; });
    return ticks;
}

void ExpectSameBar(const sFEED_BAR& bar, const sFEED_BAR& whole)
{
    EXPECT_EQ(PriceValue(bar.Open), PriceValue(whole.Open));
    EXPECT_EQ(PriceValue(bar.High), PriceValue(whole.High));
    EXPECT_EQ(PriceValue(bar.Low), PriceValue(whole.Low));
    EXPECT_EQ(PriceValue(bar.Close), PriceValue(whole.Close));
    EXPECT_EQ(bar.Volume, whole.Volume);
    EXPECT_EQ(bar.Stamp, whole.Stamp);
}

} // namespace

TEST(BarBuilder, IntervalsOfTicksAreThoseOfThePlainModel)
{
    for (const int seconds : {1, 7, 60, 300, 420, 3600, 7200, 50'000, 86'400}) {
        const auto ticks = RandomTicks(static_cast<std::uint64_t>(seconds), 500);
        std::vector<sFEED_BAR> bars;
        CTickBarBuilder(seconds).Add(ticks, bars);
        const auto plain = PlainBars(ticks, seconds);
        ASSERT_EQ(bars.size(), plain.size()) << seconds;
        auto expected = plain.begin();
        for (const sFEED_BAR& bar : bars) {
            EXPECT_EQ(bar.Stamp, expected->first);
            EXPECT_EQ(PriceValue(bar.Open), expected->second.Open);
            EXPECT_EQ(PriceValue(bar.High), expected->second.High);
            EXPECT_EQ(PriceValue(bar.Low), expected->second.Low);
            EXPECT_EQ(PriceValue(bar.Close), expected->second.Close);
            EXPECT_EQ(bar.Volume, expected->second.Volume);
            ++expected;
        }
    }
}

TEST(BarBuilder, MinutesBuildTheSameBarsAsTheirTicks)
{
    const auto ticks = RandomTicks(99, 2000);
    std::vector<sFEED_BAR> minutes;
    CTickBarBuilder(60).Add(ticks, minutes);
    for (const int seconds : {60, 120, 420, 3600, 86'400}) {
        std::vector<sFEED_BAR> fromTicks, fromMinutes;
        CTickBarBuilder(seconds).Add(ticks, fromTicks);
        BuildIntervalsFromMinutes(minutes, seconds, fromMinutes);
        ASSERT_EQ(fromTicks.size(), fromMinutes.size());
        for (std::size_t i = 0; i < fromTicks.size(); ++i)
            ExpectSameBar(fromMinutes[i], fromTicks[i]);
    }
}

TEST(BarBuilder, QuotesAreNoTrades)
{
    std::vector<sFEED_TICK> ticks(2);
    ticks[0].Last = MakePrice(5, 0);
    ticks[1].Last = MakePrice(900, 0);
    ticks[1].Basis = 'b';
    std::vector<sFEED_BAR> bars;
    CTickBarBuilder(60).Add(ticks, bars);
    ASSERT_EQ(bars.size(), 1u);
    EXPECT_EQ(PriceValue(bars[0].High), 5);
}

class SimulatedMarkets : public testing::TestWithParam<std::string>
{
};

TEST_P(SimulatedMarkets, IsTheSameWhenItIsMadeInSlices)
{
    const CSimulatedMarket whole(GetParam(), 3), pieces(GetParam(), 3);
    std::size_t slices = 1;
    for (CWorkSlice slice = CWorkSlice::OfSteps(97); !pieces.Prepare(slice); ++slices)
        slice = CWorkSlice::OfSteps(97);
    EXPECT_GT(slices, 50u);
    const auto a = whole.Daily(), b = pieces.Daily();
    ASSERT_EQ(a.size(), b.size());
    for (std::size_t i = 0; i < a.size(); ++i) {
        ASSERT_EQ(a[i].Stamp, b[i].Stamp);
        ASSERT_EQ(PriceValue(a[i].Close), PriceValue(b[i].Close));
        ASSERT_EQ(a[i].Volume, b[i].Volume);
    }
}

TEST_P(SimulatedMarkets, MinutesAddUpToTheirDay)
{
    const CSimulatedMarket market(GetParam(), 1);
    std::vector<sFEED_BAR> scratch, day;
    const auto daily = market.Daily();
    for (std::size_t i = market.MinuteDays().size() - 5; i < market.MinuteDays().size(); ++i) {
        day.clear();
        const auto minutes = market.Minutes(i, scratch);
        ASSERT_TRUE(std::is_sorted(minutes.begin(), minutes.end(),
                                   [](auto& a, auto& b) { return a.Stamp < b.Stamp; }));
        for (const sFEED_BAR& minute : minutes)
            EXPECT_GT(minute.Volume, 0);
        BuildIntervalsFromMinutes(minutes, 86'400, day);
        ASSERT_EQ(day.size(), 1u);
        day[0].Stamp = StartOfDay(market.MinuteDays()[i]);
        ExpectSameBar(day[0], daily[daily.size() - market.MinuteDays().size() + i]);
    }
}

TEST_P(SimulatedMarkets, TicksAddUpToTheirMinutes)
{
    const CSimulatedMarket market(GetParam(), 1);
    std::vector<sFEED_BAR> scratch, built;
    std::vector<sFEED_TICK> tickScratch;
    const std::size_t last = market.TickDays().size() - 1;
    auto ticks = market.Ticks(last, tickScratch);
    EXPECT_EQ(ticks.size(), market.TickCount(last));
    EXPECT_TRUE(std::is_sorted(ticks.begin(), ticks.end(), [](auto& a, auto& b) { return a.Time < b.Time; }));
    for (const sFEED_TICK& tick : ticks)
        ASSERT_GT(tick.Size, 0u);
    CTickBarBuilder(60).Add(ticks, built);
    const auto minutes = market.Minutes(market.MinuteDays().size() - 1, scratch);
    ASSERT_EQ(built.size(), minutes.size());
    for (std::size_t i = 0; i < built.size(); ++i) {
        ExpectSameBar(built[i], minutes[i]);
        EXPECT_EQ(built[i].TotalVolume, minutes[i].TotalVolume);
    }
}

TEST_P(SimulatedMarkets, TheSameSeedGivesTheSameMarketAndAnotherSeedAnother)
{
    const CSimulatedMarket one(GetParam(), 7), same(GetParam(), 7), other(GetParam(), 8);
    std::vector<sFEED_TICK> a, b, c;
    one.Ticks(3, a);
    same.Ticks(3, b);
    other.Ticks(3, c);
    ASSERT_EQ(a.size(), b.size());
    bool differs = a.size() != c.size();
    for (std::size_t i = 0; i < a.size(); ++i) {
        ASSERT_EQ(a[i].Time, b[i].Time);
        ASSERT_EQ(a[i].Last.Mantissa, b[i].Last.Mantissa);
        ASSERT_EQ(a[i].Size, b[i].Size);
        differs = differs || i >= c.size() || a[i].Time != c[i].Time;
    }
    EXPECT_TRUE(differs);
}

INSTANTIATE_TEST_SUITE_P(All, SimulatedMarkets,
                         testing::Values("SIM.CALM", "SIM.WILD", "SIM.GAPS", "SIM.FLAT", "SIM.BOND",
                                         "SIM.ANY"),
                         [](const auto& simulated) { return simulated.param.substr(4); });

TEST(SimulatedMarket, TheBigOneHasEnoughForLoad)
{
    const CSimulatedMarket market("SIM.BIG", 1);
    EXPECT_GE(market.Daily().size(), 245'760u);
    EXPECT_GE(DateOfDay(DayOf(market.Daily().front().Stamp)).Year, 100);
    std::size_t ticks = 0;
    for (std::size_t i = 0; i < market.TickDays().size(); ++i)
        ticks += market.TickCount(i);
    EXPECT_GE(ticks, 2'000'000u);
    EXPECT_GE((market.MinuteDays().size() - 1) * 390, 245'760u);
}

TEST(SimulatedMarket, TheFlatOneNeverMoves)
{
    const CSimulatedMarket market("SIM.FLAT", 1);
    for (const sFEED_BAR& bar : market.Daily())
        ASSERT_EQ(PriceValue(bar.High), PriceValue(bar.Low));
}

TEST(SimulatedMarket, TheBondIsPricedIn32nds)
{
    const CSimulatedMarket market("SIM.BOND", 1);
    EXPECT_EQ(market.DisplayCode(), 5);
    for (const sFEED_BAR& bar : market.Daily())
        ASSERT_EQ(bar.Close.Mantissa % 3125, 0);
}

} // namespace zantroq::feed
