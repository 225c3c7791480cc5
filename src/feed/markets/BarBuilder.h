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

// Both take the records of one day in time order and append its bars. Of the ticks only trades count; where
// the ticks carry no total volume, the sizes are summed. Minutes build intervals of whole minutes only.
void BuildIntervalsFromTicks(std::span<const sFEED_TICK> ticks, int intervalSeconds,
                             std::vector<sFEED_BAR>& bars);
void BuildIntervalsFromMinutes(std::span<const sFEED_BAR> minutes, int intervalSeconds,
                               std::vector<sFEED_BAR>& bars);

// All days of a source, from its minutes or, when it has none, from its ticks.
std::vector<sFEED_BAR> BuildDaily(const IMarketSource& source);

// From daily bars in time order; weeks run from Monday to Sunday.
std::vector<sFEED_BAR> BuildWeekly(std::span<const sFEED_BAR> daily);
std::vector<sFEED_BAR> BuildMonthly(std::span<const sFEED_BAR> daily);

} // namespace zantroq::feed
