// Builds the bars that a recording lacks: interval bars from ticks or minutes, daily bars from either, weekly
// and monthly bars from daily ones. An interval bar is stamped with its end and never crosses midnight; a
// longer bar is stamped with its last trading day. A trade in the second in which a bar ends belongs to the
// next bar. Pure functions, any thread.
#pragma once

#include "feed/markets/MarketSource.h"

#include <span>
#include <vector>

namespace zantroq::feed {

// The end of the interval that contains a time of day (milliseconds, 0 up to but not including a day).
// Intervals of 1 to 86,400 seconds start at midnight; the last interval of a day ends at midnight.
TFeedTime IntervalEnd(TFeedTime timeOfDay, int intervalSeconds);

// Builds the interval bars of one day from its ticks, which come in time order and may come in several
// pieces. Only ticks that are trades count. If the ticks carry no total volume, their sizes are summed.
class CTickBarBuilder
{
public:
    explicit CTickBarBuilder(int intervalSeconds) : m_seconds(intervalSeconds) {}
    // Appends new bars to `bars` and updates its last bar. `bars` must be empty at the first call, and every
    // later call must pass the same vector.
    void Add(std::span<const sFEED_TICK> ticks, std::vector<sFEED_BAR>& bars);

private:
    int m_seconds;
    std::int64_t m_summed = 0;
};

// Appends the interval bars of one day, built from its minutes in time order. The interval must be a multiple
// of 60 seconds.
void BuildIntervalsFromMinutes(std::span<const sFEED_BAR> minutes, int intervalSeconds,
                               std::vector<sFEED_BAR>& bars);

// The daily bars of a source, built from its minutes or, if it has none, from its ticks.
std::vector<sFEED_BAR> BuildDaily(const IMarketSource& source);

// Adds the next day, in time order, to weekly or monthly bars. A week is Monday to Sunday.
void AddDayToWeekly(const sFEED_BAR& day, std::vector<sFEED_BAR>& bars);
void AddDayToMonthly(const sFEED_BAR& day, std::vector<sFEED_BAR>& bars);

} // namespace zantroq::feed
