// Parses the fields of a history line into a point, depending on the kind of the line. Independent of
// requests and locks. One thread.
#pragma once

#include "market/FeedTimestamp.h"
#include "market/HistoryFields.h"
#include "market/HistoryRecords.h"
#include "market/TickBatch.h"

namespace zantroq {

// True if a trade with this basis letter belongs to a series: "C" always, "E" and "O" if extended trades are
// wanted.
bool ShowsBasis(char basis, bool extendedTrades);

// The price format code of a price's text: 10 + its decimals, at least 11. All characters of a price without
// a point count as decimals.
int PriceFormatOf(std::string_view price);

class CHistoryLineParser
{
public:
    // Both functions throw std::invalid_argument if the line has too few fields.

    // Adds the line's tick to the batch, unless its trade is not wanted or its date does not exist. REQUIRES:
    // the batch is not full.
    void ParseTick(const HistoryFields& fields, bool extendedTrades, sTickBatch& ticks);

    // The bar of a line of this kind. Returns null if the kind is not 3 to 9 or the date does not exist. The
    // record is valid until the next call.
    const sHIST_POINT* ParseBar(int kind, const HistoryFields& fields);

private:
    const sHIST_POINT* ParseInterval(const HistoryFields& fields);
    const sHIST_POINT* ParseDay(const HistoryFields& fields);

    CFeedTimestamp m_timestamp;
    // One record for each layout; fields that a layout does not set keep their defaults.
    sHIST_POINT m_interval, m_day;
};

} // namespace zantroq
