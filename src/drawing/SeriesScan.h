// Searches a stretch of a series for its least low, greatest high and greatest volume. Reads in blocks of
// 16,384 points, which stay in the processor's nearest cache. Chart window's thread.
#pragma once

#include "drawing/PriceRange.h"
#include "drawing/PriceSource.h"

#include <functional>
#include <vector>

namespace zantroq {

// Fills in which of `count` points from index `first` on are marked deleted; an empty list marks none.
using ReadMarks = std::function<void(int first, int count, std::vector<std::uint8_t>& marks)>;

inline constexpr int ScanBlock = 16384; // points read at a time

// Widens the price ends of `range` by the first `count` points of the series.
void ScanPrices(sPriceRange& range, const IPriceSource& prices, int count, const ReadMarks& readMarks);

// Widens the greatest volume of `range` by `count` points from index `first` on.
void ScanVolumes(sPriceRange& range, const IPriceSource& prices, int first, int count,
                 const ReadMarks& readMarks);

} // namespace zantroq
