#include "feed/LastPoint.h"

#include "feed/BarBuilder.h"

#include <algorithm>

namespace zantroq::feed {
namespace {

constexpr TFeedTime MsPerMinute = 60 * MsPerSecond;

// The newest day of ticks on which there was a trade, or the oldest day when there never was one.
struct sNEWEST_TICKS
{
    std::vector<sFEED_TICK> Scratch;
    std::span<const sFEED_TICK> Ticks;
    const sFEED_TICK* Trade = nullptr; // the last one
    TFeedDay Day = 0;
};

void FindNewestTicks(const IMarketSource& market, sNEWEST_TICKS& newest)
{
    const auto days = market.TickDays();
    for (std::size_t i = days.size(); i-- > 0 && !newest.Trade;) {
        newest.Ticks = market.Ticks(i, newest.Scratch);
        newest.Day = days[i];
        const auto trade = std::find_if(newest.Ticks.rbegin(), newest.Ticks.rend(), IsTrade);
        if (trade != newest.Ticks.rend())
            newest.Trade = &*trade;
    }
}

const sFEED_TICK* NewestRegularTrade(std::span<const sFEED_TICK> ticks)
{
    const auto trade =
        std::find_if(ticks.rbegin(), ticks.rend(), [](const sFEED_TICK& tick) { return tick.Basis == 'C'; });
    return trade == ticks.rend() ? nullptr : &*trade;
}

void TakeDayOf(const sFEED_BAR& bar, sLIVE_QUOTE& quote)
{
    quote.Last = bar.Close;
    quote.Basis = 'C';
    quote.Open = bar.Open;
    quote.High = bar.High;
    quote.Low = bar.Low;
    quote.TotalVolume = bar.Volume;
    quote.OpenInterest = bar.OpenInterest;
}

void TakeDayOf(std::span<const sFEED_TICK> ticks, sLIVE_QUOTE& quote)
{
    std::int64_t volume = 0;
    for (const sFEED_TICK& tick : ticks) {
        if (!IsTrade(tick))
            continue;
        volume = tick.TotalVolume > 0 ? tick.TotalVolume : volume + tick.Size;
        if (tick.Basis == 'C')
            quote.TakeRegularPrice(tick.Last);
    }
    quote.TotalVolume = std::max(quote.TotalVolume, volume);
}

} // namespace

sLAST_POINT LastPointOf(const IMarketSource& market)
{
    sLAST_POINT point;
    sLIVE_QUOTE& quote = point.Quote;
    quote.DisplayCode = market.DisplayCode();
    quote.Decimals = market.Decimals();

    const auto daily = market.Daily();
    const auto minuteDays = market.MinuteDays();
    sNEWEST_TICKS ticks;
    FindNewestTicks(market, ticks);
    if (daily.empty() && minuteDays.empty() && !ticks.Trade) {
        if (!ticks.Ticks.empty()) {
            quote.Time = point.Clock = ticks.Ticks.back().Time;
            quote.Bid = ticks.Ticks.back().Bid;
            quote.Ask = ticks.Ticks.back().Ask;
        }
        point.Day = DayOf(point.Clock);
        return point;
    }
    std::vector<TFeedDay> lastDays;
    if (!daily.empty())
        lastDays.push_back(DayOf(daily.back().Stamp));
    if (!minuteDays.empty())
        lastDays.push_back(minuteDays.back());
    if (ticks.Trade)
        lastDays.push_back(ticks.Day);
    const TFeedDay day = point.Day = *std::max_element(lastDays.begin(), lastDays.end());
    const bool hasMinutes = !minuteDays.empty() && minuteDays.back() == day;
    const bool hasTicks = ticks.Trade && ticks.Day == day;

    const auto isDay = [](const sFEED_BAR& bar, TFeedDay wanted) { return DayOf(bar.Stamp) < wanted; };
    const auto dayBar = std::lower_bound(daily.begin(), daily.end(), day, isDay);
    if (dayBar != daily.begin())
        point.Close = quote.PreviousClose = std::prev(dayBar)->Close;
    if (dayBar != daily.end()) {
        point.Close = dayBar->Close;
        TakeDayOf(*dayBar, quote);
        quote.Time = StartOfDay(day) + ClosingTime;
        point.Clock = StartOfDay(NextWeekday(day)) + OpeningTime - 1;
    }
    if (hasMinutes) {
        std::vector<sFEED_BAR> scratch, whole;
        const auto minutes = market.Minutes(minuteDays.size() - 1, scratch);
        if (dayBar == daily.end()) {
            BuildIntervalsFromMinutes(minutes, static_cast<int>(MsPerDay / MsPerSecond), whole);
            TakeDayOf(whole.front(), quote);
        }
        quote.Last = point.Close = minutes.back().Close;
        quote.Basis = 'C';
        point.Clock = minutes.back().Stamp;
        // A bar stamped midnight closes this day and has no trade of the next.
        quote.Time = std::min(point.Clock, StartOfDay(day + 1) - 1);
    }
    if (hasTicks) {
        TakeDayOf(ticks.Ticks, quote);
        quote.TickId = ticks.Trade->TickId;
        const bool newest = !hasMinutes || ticks.Trade->Time >= point.Clock - MsPerMinute;
        if (newest) {
            if (const sFEED_TICK* const regular = NewestRegularTrade(ticks.Ticks))
                point.Close = regular->Last;
            quote.Time = ticks.Trade->Time;
            quote.Last = ticks.Trade->Last;
            quote.Basis = ticks.Trade->Basis;
            quote.Size = ticks.Trade->Size;
            quote.Bid = ticks.Ticks.back().Bid;
            quote.Ask = ticks.Ticks.back().Ask;
        }
        const TFeedTime lastRow = ticks.Ticks.back().Time;
        point.Clock = hasMinutes ? std::max(point.Clock, lastRow) : lastRow;
    }
    return point;
}

} // namespace zantroq::feed
