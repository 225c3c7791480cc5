// The points that one history command chooses from: ticks, interval bars or longer bars of a market, a day at
// a time. Used on the feed's thread.
#pragma once

#include "feed/markets/MarketSource.h"
#include "feed/protocol/HistoryCommandReader.h"

#include <memory>
#include <string>

namespace zantroq::feed {

// A line behind its identifier is at most this long, line end included.
inline constexpr std::size_t MaxPointLine = 220;

// Positions count from 0, the oldest day. Daily, weekly and monthly bars form one single day's load. The
// functions that take a slice return false when it was over first; call them again with the same arguments.
class IHistoryPoints
{
public:
    virtual ~IHistoryPoints() = default;
    // Call until true before anything else.
    virtual bool Prepare(CWorkSlice&) { return true; }
    virtual std::size_t DayCount() const = 0;
    virtual TFeedDay Day(std::size_t position) const = 0;
    virtual bool CountDay(std::size_t position, CWorkSlice& slice, std::size_t& count) = 0;

    // Makes a day the current one; the functions below are about that day's points, in time order from 0.
    virtual bool Load(std::size_t position, CWorkSlice& slice) = 0;
    virtual std::size_t Count() const = 0;
    virtual TFeedTime Stamp(std::size_t point) const = 0;
    // Writes all fields behind the identifier's comma, line end included, and returns the end.
    virtual char* Write(char* at, std::size_t point) const = 0;
};

// The points for a command, or null and a reason without commas when the market has nothing to make them
// from.
std::unique_ptr<IHistoryPoints> MakeHistoryPoints(const IMarketSource& market,
                                                  const sHISTORY_COMMAND& command, std::string& reason);

} // namespace zantroq::feed
