// Turns the fields of one history line into a point, by the line's kind. No request and no lock. One thread.
#pragma once

#include "market/FeedTimestamp.h"
#include "market/HistoryFields.h"
#include "market/HistoryRecords.h"
#include "market/TickBatch.h"

namespace zantroq {

// Whether a trade with this basis letter belongs in a series: "C" always, "E" and "O" when extended trades
// are wanted.
bool ShowsBasis(char basis, bool extendedTrades);

// The price format code that a price's text shows: 10 plus its decimals, at least 11. A price without a point
// counts as if the point stood before its first character.
int PriceFormatOf(std::string_view price);

class CHistoryLineParser
{
public:
    // Both fail with std::invalid_argument on too few fields.

    // Adds the tick of a line to the batch, unless its trade is not wanted or its date does not exist.
    // REQUIRES: the batch is not full.
    void ParseTick(const HistoryFields& fields, bool extendedTrades, sTickBatch& ticks);

    // The bar of a line whose first character is `kind` as a digit; null when its kind is not 3 to 9 or its
    // date does not exist. The record holds until the next call.
    const sHIST_POINT* ParseBar(int kind, const HistoryFields& fields);

private:
    const sHIST_POINT* ParseInterval(const HistoryFields& fields);
    const sHIST_POINT* ParseDay(const HistoryFields& fields);

    CFeedTimestamp m_timestamp;
    // One record for each shape: what a shape does not fill stays as it was made.
    sHIST_POINT m_interval, m_day;
};

} // namespace zantroq
