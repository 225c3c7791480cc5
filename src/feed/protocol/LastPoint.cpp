#include "feed/protocol/LastPoint.h"

#include "feed/markets/BarBuilder.h"

#include <algorithm>

namespace zantroq::feed {
namespace {

constexpr TFeedTime MsPerMinute = 60 * MsPerSecond;

// The newest day of ticks that has a trade; if no day has one, the oldest day.
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

void StandAtDay(const sFEED_BAR& bar, sLAST_POINT& point)
{
    TakeDayOf(bar, point.Quote);
    point.Close = bar.Close;
    point.Quote.Time = StartOfDay(point.Day) + ClosingTime;
    point.Clock = StartOfDay(NextWeekday(point.Day)) + OpeningTime - 1;
}

// `minutes` are the minutes of the point's day.
void StandAtMinutes(std::span<const sFEED_BAR> minutes, bool hasDayBar, sLAST_POINT& point)
{
    if (!hasDayBar) {
        std::vector<sFEED_BAR> whole;
        BuildIntervalsFromMinutes(minutes, static_cast<int>(MsPerDay / MsPerSecond), whole);
        TakeDayOf(whole.front(), point.Quote);
    }
    point.Quote.Last = point.Close = minutes.back().Close;
    point.Quote.Basis = 'C';
    point.Clock = minutes.back().Stamp;
    // A bar stamped midnight closes this day and contains no trade of the next.
    point.Quote.Time = std::min(point.Clock, StartOfDay(point.Day + 1) - 1);
}

// `newest` holds the ticks of the point's day. The minutes of that day may continue after the last tick.
void StandAtTicks(const sNEWEST_TICKS& newest, bool hasMinutes, sLAST_POINT& point)
{
    sLIVE_QUOTE& quote = point.Quote;
    const sFEED_TICK &trade = *newest.Trade, &row = newest.Ticks.back();
    TakeDayOf(newest.Ticks, quote);
    quote.TickId = trade.TickId;
    if (!hasMinutes || trade.Time >= point.Clock - MsPerMinute) {
        if (const sFEED_TICK* const regular = NewestRegularTrade(newest.Ticks))
            point.Close = regular->Last;
        quote.Time = trade.Time;
        quote.Last = trade.Last;
        quote.Basis = trade.Basis;
        quote.Size = trade.Size;
        quote.Bid = row.Bid;
        quote.Ask = row.Ask;
    }
    point.Clock = hasMinutes ? std::max(point.Clock, row.Time) : row.Time;
}

// The ticks hold no trade, only quotes.
void StandWithoutTrades(std::span<const sFEED_TICK> ticks, sLAST_POINT& point)
{
    if (ticks.empty())
        return;
    point.Quote.Time = point.Clock = ticks.back().Time;
    point.Quote.Bid = ticks.back().Bid;
    point.Quote.Ask = ticks.back().Ask;
    point.Day = DayOf(point.Clock);
}

} // namespace

sLAST_POINT LastPointOf(const IMarketSource& market)
{
    sLAST_POINT point;
    point.Quote.DisplayCode = market.DisplayCode();
    point.Quote.Decimals = market.Decimals();

    const auto daily = market.Daily();
    const auto minuteDays = market.MinuteDays();
    sNEWEST_TICKS ticks;
    FindNewestTicks(market, ticks);
    std::vector<TFeedDay> lastDays;
    if (!daily.empty())
        lastDays.push_back(DayOf(daily.back().Stamp));
    if (!minuteDays.empty())
        lastDays.push_back(minuteDays.back());
    if (ticks.Trade)
        lastDays.push_back(ticks.Day);
    if (lastDays.empty()) {
        StandWithoutTrades(ticks.Ticks, point);
        return point;
    }
    const TFeedDay day = point.Day = *std::max_element(lastDays.begin(), lastDays.end());
    const auto isBefore = [](const sFEED_BAR& bar, TFeedDay other) { return DayOf(bar.Stamp) < other; };
    const auto dayBar = std::lower_bound(daily.begin(), daily.end(), day, isBefore);
    if (dayBar != daily.begin())
        point.Close = point.Quote.PreviousClose = std::prev(dayBar)->Close;
    const bool hasDayBar = dayBar != daily.end();
    const bool hasMinutes = !minuteDays.empty() && minuteDays.back() == day;
    if (hasDayBar)
        StandAtDay(*dayBar, point);
    if (hasMinutes) {
        std::vector<sFEED_BAR> scratch;
        StandAtMinutes(market.Minutes(minuteDays.size() - 1, scratch), hasDayBar, point);
    }
    if (ticks.Trade && ticks.Day == day)
        StandAtTicks(ticks, hasMinutes, point);
    return point;
}

} // namespace zantroq::feed
