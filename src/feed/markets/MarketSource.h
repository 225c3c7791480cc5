// Where one symbol's market comes from: a recording or a simulation. A source hands out what it has, a day at
// a time, so that nobody needs to hold a long history in memory; what it lacks is built from that by the code
// above it.
#pragma once

#include "feed/markets/FeedRecords.h"
#include "feed/markets/WorkSlice.h"

#include <span>
#include <string>
#include <vector>

namespace zantroq::feed {

// Days are ascending and each has at least one record; records of a day are ordered by time. Positions count
// from 0, the oldest day. The spans live as long as the source and the scratch. Used on one thread at a time.
class IMarketSource
{
public:
    virtual ~IMarketSource() = default;

    // Makes what the functions below read; true once all of it is there. They do the rest of that work
    // themselves when they are called before, in one go.
    virtual bool Prepare(CWorkSlice&) const { return true; }

    virtual bool IsSimulated() const = 0;
    // Decimals of the symbol's prices, and the code with which an exchange would show them: 10 and above
    // stands for code - 10 decimals, 1 to 8 for fractions of 2^code.
    virtual unsigned Decimals() const = 0;
    virtual int DisplayCode() const = 0;

    virtual std::span<const TFeedDay> TickDays() const = 0;
    virtual std::size_t TickCount(std::size_t position) const = 0;
    virtual std::span<const sFEED_TICK> Ticks(std::size_t position,
                                              std::vector<sFEED_TICK>& scratch) const = 0;

    // One-minute bars, stamped with their ends.
    virtual std::span<const TFeedDay> MinuteDays() const = 0;
    virtual std::span<const sFEED_BAR> Minutes(std::size_t position,
                                               std::vector<sFEED_BAR>& scratch) const = 0;

    virtual std::span<const sFEED_BAR> Daily() const = 0;
};

} // namespace zantroq::feed
