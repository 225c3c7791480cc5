// Finds the lowest low, the highest high and the largest volume in a range of a series. Reads blocks of
// 16,384 points, which fit into the processor's first-level cache. Chart window's thread.
#pragma once

#include "drawing/PriceRange.h"
#include "drawing/PriceSource.h"

#include <functional>
#include <vector>

namespace zantroq {

// Marks which of `count` points from index `first` on are deleted; an empty list means none.
using ReadMarks = std::function<void(int first, int count, std::vector<std::uint8_t>& marks)>;

inline constexpr int ScanBlock = 16384; // points per read

// Widens the prices of `range` by the first `count` points of the series.
void ScanPrices(sPriceRange& range, const IPriceSource& prices, int count, const ReadMarks& readMarks);

// Raises the largest volume of `range` by `count` points from index `first` on.
void ScanVolumes(sPriceRange& range, const IPriceSource& prices, int first, int count,
                 const ReadMarks& readMarks);

} // namespace zantroq
