#include "feed/markets/BarBuilder.h"

#include <algorithm>

namespace zantroq::feed {
namespace {

void Grow(sFEED_BAR& bar, const sFEED_BAR& next)
{
    if (IsBelow(bar.High, next.High))
        bar.High = next.High;
    if (IsBelow(next.Low, bar.Low))
        bar.Low = next.Low;
    bar.Close = next.Close;
    bar.Volume += next.Volume;
    bar.TotalVolume = next.TotalVolume;
    bar.OpenInterest = next.OpenInterest;
}

template<class TSameBar> void JoinDay(const sFEED_BAR& day, std::vector<sFEED_BAR>& bars, TSameBar sameBar)
{
    if (bars.empty() || !sameBar(DayOf(bars.back().Stamp), DayOf(day.Stamp))) {
        bars.push_back(day);
        return;
    }
    Grow(bars.back(), day);
    bars.back().Stamp = day.Stamp;
}

// Combines the bars of one day into one bar.
void AppendDay(TFeedDay day, std::span<const sFEED_BAR> intervals, std::vector<sFEED_BAR>& bars)
{
    if (intervals.empty())
        return;
    sFEED_BAR bar = intervals.front();
    for (const sFEED_BAR& interval : intervals.subspan(1))
        Grow(bar, interval);
    bar.Stamp = StartOfDay(day);
    bar.Volume = bar.TotalVolume = intervals.back().TotalVolume;
    bars.push_back(bar);
}

} // namespace

TFeedTime IntervalEnd(TFeedTime timeOfDay, int intervalSeconds)
{
    const TFeedTime interval = intervalSeconds * MsPerSecond;
    return std::min((timeOfDay / interval + 1) * interval, MsPerDay);
}

void CTickBarBuilder::Add(std::span<const sFEED_TICK> ticks, std::vector<sFEED_BAR>& bars)
{
    for (const sFEED_TICK& tick : ticks) {
        if (!IsTrade(tick))
            continue;
        m_summed += tick.Size;
        sFEED_BAR trade;
        trade.Stamp = StartOfDay(DayOf(tick.Time)) + IntervalEnd(TimeOfDay(tick.Time), m_seconds);
        trade.Open = trade.High = trade.Low = trade.Close = tick.Last;
        trade.Volume = tick.Size;
        trade.TotalVolume = tick.TotalVolume > 0 ? tick.TotalVolume : m_summed;
        if (!bars.empty() && bars.back().Stamp == trade.Stamp)
            Grow(bars.back(), trade);
        else
            bars.push_back(trade);
    }
}

void BuildIntervalsFromMinutes(std::span<const sFEED_BAR> minutes, int intervalSeconds,
                               std::vector<sFEED_BAR>& bars)
{
    const std::size_t first = bars.size();
    for (sFEED_BAR minute : minutes) {
        const TFeedDay day = DayOfBarEnd(minute.Stamp);
        minute.Stamp = StartOfDay(day) + IntervalEnd(minute.Stamp - 1 - StartOfDay(day), intervalSeconds);
        if (bars.size() > first && bars.back().Stamp == minute.Stamp)
            Grow(bars.back(), minute);
        else
            bars.push_back(minute);
    }
}

std::vector<sFEED_BAR> BuildDaily(const IMarketSource& source)
{
    std::vector<sFEED_BAR> bars, minuteScratch, intervals;
    std::vector<sFEED_TICK> tickScratch;
    const auto minuteDays = source.MinuteDays();
    for (std::size_t i = 0; i < minuteDays.size(); ++i)
        AppendDay(minuteDays[i], source.Minutes(i, minuteScratch), bars);
    if (!minuteDays.empty())
        return bars;
    const auto tickDays = source.TickDays();
    for (std::size_t i = 0; i < tickDays.size(); ++i) {
        intervals.clear();
        CTickBarBuilder(static_cast<int>(MsPerDay / MsPerSecond))
            .Add(source.Ticks(i, tickScratch), intervals);
        AppendDay(tickDays[i], intervals, bars);
    }
    return bars;
}

void AddDayToWeekly(const sFEED_BAR& day, std::vector<sFEED_BAR>& bars)
{
    JoinDay(day, bars, [](TFeedDay a, TFeedDay b) { return a - WeekdayOf(a) == b - WeekdayOf(b); });
}

void AddDayToMonthly(const sFEED_BAR& day, std::vector<sFEED_BAR>& bars)
{
    JoinDay(day, bars, [](TFeedDay a, TFeedDay b) {
        const sDATE first = DateOfDay(a), second = DateOfDay(b);
        return first.Year == second.Year && first.Month == second.Month;
    });
}

} // namespace zantroq::feed
