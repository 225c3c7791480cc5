// Merges a level 1 line into a series: a new tick, a new or updated bar, or the price format. Uses the
// request's own operations to read and write; the worker is the only writer of a live series. Throws
// std::invalid_argument if the line has too few fields. Worker thread only.
#pragma once

#include "market/ChartHistRequest.h"
#include "market/LineFields.h"

namespace zantroq {

// Field 40 is the last one used.
using Level1Fields = CLineFields<41>;

// Handles an "F" line: the format code is field 39, or 10 + the number of decimals in field 40.
void ApplyFundamental(CChartHistRequest& request, const Level1Fields& fields);

// Handles any other line, as far as the request's kind and bounds accept it.
void MergeUpdate(CChartHistRequest& request, char messageType, const Level1Fields& fields);

} // namespace zantroq
