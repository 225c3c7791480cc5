// Building the bars that a recording lacks: intervals from ticks or minutes, days from either, weeks and
// months from days. Interval bars are stamped with their ends and never cross midnight; longer ones with
// their last trading day. A trade in the very second in which a bar ends belongs to the next bar. Pure
// functions, any thread.
#pragma once

#include "feed/markets/MarketSource.h"

#include <span>
#include <vector>

namespace zantroq::feed {

// The end of the interval that a time of day (milliseconds, 0 to just below a day) falls into: multiples of
// the interval from midnight on, the day's last one ending at midnight. Seconds 1 to 86,400.
TFeedTime IntervalEnd(TFeedTime timeOfDay, int intervalSeconds);

// Builds the bars of one day from its ticks, which may come in several pieces, in time order. Only trades
// count; where the ticks carry no total volume, the sizes are summed.
class CTickBarBuilder
{
public:
    explicit CTickBarBuilder(int intervalSeconds) : m_seconds(intervalSeconds) {}
    // Appends new bars to `bars` and widens its last one, which must be this builder's. `bars` must be empty
    // at the first call and the same vector at all.
    void Add(std::span<const sFEED_TICK> ticks, std::vector<sFEED_BAR>& bars);

private:
    int m_seconds;
    std::int64_t m_summed = 0;
};

// Takes the minutes of one day in time order and appends its bars. The interval must be of whole minutes.
void BuildIntervalsFromMinutes(std::span<const sFEED_BAR> minutes, int intervalSeconds,
                               std::vector<sFEED_BAR>& bars);

// All days of a source, from its minutes or, when it has none, from its ticks.
std::vector<sFEED_BAR> BuildDaily(const IMarketSource& source);

// Adds the next day, in time order, to weekly or monthly bars. Weeks run from Monday to Sunday.
void AddDayToWeekly(const sFEED_BAR& day, std::vector<sFEED_BAR>& bars);
void AddDayToMonthly(const sFEED_BAR& day, std::vector<sFEED_BAR>& bars);

} // namespace zantroq::feed
