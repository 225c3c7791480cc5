// Reads the ten history commands of the lookup port from their text. Pure function, any thread.
#pragma once

#include "feed/markets/FeedTime.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zantroq::feed {

enum class HistoryData
{
    Ticks,
    Intervals,
    Daily,
    Weekly,
    Monthly
};

struct sHISTORY_COMMAND
{
    HistoryData Data = HistoryData::Ticks;
    std::string Symbol;
    std::string Id;                   // repeated unchanged on every line of the reply
    std::int64_t IntervalSeconds = 0; // interval commands only; the feed serves 1 to 86,400
    std::int64_t Datapoints = 0;      // number of newest points; 0: all
    std::int64_t Days = 0;            // calendar days up to and with the newest; 0: all
    std::optional<TFeedTime> Begin;   // first stamp of the range, milliseconds
    // Last stamp of the range, at the last millisecond of its second or, without a time, of its day.
    std::optional<TFeedTime> End;
    TFeedTime FilterBegin = 0; // time-of-day filter, both ends included
    TFeedTime FilterEnd = MsPerDay - 1;
    bool OldestFirst = false;
};

enum class CommandReading
{
    Command,
    NotHistory,
    Malformed
};

// `fields` are the fields of the line between its commas, at least one. Empty fields after the identifier are
// allowed. An empty count, range or filter field sets no limit; an empty direction means newest first. Returns
// NotHistory if the first field is none of the ten words; Malformed leaves `command` partly filled.
CommandReading ReadHistoryCommand(const std::vector<std::string_view>& fields, sHISTORY_COMMAND& command);

} // namespace zantroq::feed
