// The points that a history command selects from: the ticks, interval bars or longer bars of a market, loaded
// one day at a time. Feed thread only.
#pragma once

#include "feed/markets/MarketSource.h"
#include "feed/protocol/HistoryCommandReader.h"

#include <memory>
#include <string>

namespace zantroq::feed {

// The longest line of a point without its identifier, in characters, line end included.
inline constexpr std::size_t MaxPointLine = 220;

// Position 0 is the oldest day. Daily, weekly and monthly bars are all loaded as one day. A function that
// takes a slice returns false if the slice ended first; it must then be called again with the same arguments.
class IHistoryPoints
{
public:
    virtual ~IHistoryPoints() = default;
    // Must be called until it returns true, before any other function.
    virtual bool Prepare(CWorkSlice&) { return true; }
    virtual std::size_t DayCount() const = 0;
    virtual TFeedDay Day(std::size_t position) const = 0;
    virtual bool CountDay(std::size_t position, CWorkSlice& slice, std::size_t& count) = 0;

    // Makes a day the current day. The functions below refer to its points, numbered from 0 in time order.
    virtual bool Load(std::size_t position, CWorkSlice& slice) = 0;
    virtual std::size_t Count() const = 0;
    virtual TFeedTime Stamp(std::size_t point) const = 0;
    // Writes all fields after the identifier and its comma, line end included. Returns the end.
    virtual char* Write(char* at, std::size_t point) const = 0;
};

// The points for a command. Returns null and sets `reason`, a text without commas, if the market has no data
// of the requested kind.
std::unique_ptr<IHistoryPoints> MakeHistoryPoints(const IMarketSource& market,
                                                  const sHISTORY_COMMAND& command, std::string& reason);

} // namespace zantroq::feed
