// The arithmetic of the volume pane, described in HistVOLChart.h: reduces volumes to what a pane of 32-bit
// numbers can show. No state; any thread that may read the prices.
#pragma once

#include "drawing/PriceSource.h"

#include <cstdint>

namespace zantroq {

inline constexpr std::int64_t GreatestPlottedVolume = 2147483647;

// Where the maximum of the value axis is searched.
enum class VolumeMaximum
{
    OfThePoints,
    OfTheWholeSeries,
    None
};

struct sVolumeScale
{
    std::int64_t Divisor = 1; // a power of ten
    std::int64_t Maximum = 0; // upper end of the value axis
};

// Writes the volumes of `count` indices from `first` on to `scaled`, in units of the divisor. A volume too
// large for the pane is divided by ten as often as necessary, and the divisor grows likewise; the points
// before it and the maximum are then divided by the whole new divisor.
sVolumeScale ScaleVolumes(const IPriceSource& prices, std::int64_t first, int count, VolumeMaximum rule,
                          double* scaled);

// The average volume of the last `points` points of the series, or of all if there are fewer, in units of the
// divisor; rounded before the division and limited to 32 bits. 0 without points.
std::int32_t AverageVolume(const IPriceSource& prices, std::int64_t points, std::int64_t divisor);

} // namespace zantroq
