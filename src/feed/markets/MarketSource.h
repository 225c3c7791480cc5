// The market data of one symbol, recorded or simulated. A source returns its records day by day, so that no
// caller needs to hold a long history in memory. Bars that it lacks are built from its finer records (see
// BarBuilder.h).
#pragma once

#include "feed/markets/FeedRecords.h"
#include "feed/markets/WorkSlice.h"

#include <span>
#include <string>
#include <vector>

namespace zantroq::feed {

// Days are ascending and each has at least one record; the records of a day are in time order. Position 0 is
// the oldest day. A returned span is valid while the source and `scratch` live. One thread at a time.
class IMarketSource
{
public:
    virtual ~IMarketSource() = default;

    // Prepares, in slices, what the functions below return. True once everything is prepared. A function
    // called earlier does the remaining work at once.
    virtual bool Prepare(CWorkSlice&) const { return true; }

    virtual bool IsSimulated() const = 0;
    // The decimals of the symbol's prices.
    virtual unsigned Decimals() const = 0;
    // How an exchange shows the prices: code 10 and above means code - 10 decimals, 1 to 8 means fractions of
    // 2^code.
    virtual int DisplayCode() const = 0;

    virtual std::span<const TFeedDay> TickDays() const = 0;
    virtual std::size_t TickCount(std::size_t position) const = 0;
    virtual std::span<const sFEED_TICK> Ticks(std::size_t position,
                                              std::vector<sFEED_TICK>& scratch) const = 0;

    // One-minute bars, stamped with their end.
    virtual std::span<const TFeedDay> MinuteDays() const = 0;
    virtual std::span<const sFEED_BAR> Minutes(std::size_t position,
                                               std::vector<sFEED_BAR>& scratch) const = 0;

    virtual std::span<const sFEED_BAR> Daily() const = 0;
};

} // namespace zantroq::feed
