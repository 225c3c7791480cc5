// Merges one level 1 line into one series: a new tick, a grown or a new bar, or the price format. Each
// function reads, merges and writes through the request's own operations; the worker is the only writer of a
// live series. Fails with std::invalid_argument when the line is too short for what is read of it. Lives on
// the worker thread.
#pragma once

#include "market/ChartHistRequest.h"
#include "market/LineFields.h"

namespace zantroq {

// The last field that is read is number 40.
using Level1Fields = CLineFields<41>;

// An "F" line: the format code from field 39, or 10 plus the decimals of field 40.
void ApplyFundamental(CChartHistRequest& request, const Level1Fields& fields);

// Any other line: what the request's kind and bounds accept of it.
void MergeUpdate(CChartHistRequest& request, char messageType, const Level1Fields& fields);

} // namespace zantroq
