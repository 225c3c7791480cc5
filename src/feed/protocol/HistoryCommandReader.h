// The ten history commands of the lookup port, read from their text. Pure function, any thread.
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
    std::string Id;                   // comes back on every line, as it came
    std::int64_t IntervalSeconds = 0; // intervals; what can be served is 1 to 86,400
    std::int64_t Datapoints = 0;      // the newest so many; 0 all
    std::int64_t Days = 0;            // calendar days back from the newest, that day included; 0 all
    std::optional<TFeedTime> Begin;   // first stamp of the range, milliseconds
    std::optional<TFeedTime>
        End;                   // last one, the whole of its second (or, without a time, of its day) included
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

// `fields` are the line's, cut at its commas; empty ones behind the identifier are allowed. An empty count,
// range or filter field is an open one, an empty direction means newest first. NotHistory when the first
// field is none of the ten words.
CommandReading ReadHistoryCommand(const std::vector<std::string_view>& fields, sHISTORY_COMMAND& command);

} // namespace zantroq::feed
