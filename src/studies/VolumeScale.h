// The arithmetic of the volume pane, told in HistVOLChart.h: volumes cut down to what a pane of 32-bit
// numbers can show.
#pragma once

#include "drawing/PriceSource.h"

#include <cstdint>

namespace zantroq {

inline constexpr std::int64_t GreatestPlottedVolume = 2147483647;

// How the largest plotted volume is found.
enum class VolumeMaximum
{
    OfThePoints,
    OfTheWholeSeries,
    None
};

struct sVolumeScale
{
    std::int64_t Divisor = 1; // a power of ten
    std::int64_t Maximum = 0; // what the value axis must reach
};

// Writes the volumes of `count` indices from `first` to `scaled`, in units of the divisor. A volume too large
// for the pane is divided by ten, as often as it takes, and the divisor with it; the points before it, and
// the maximum, are then divided by the whole new divisor.
sVolumeScale ScaleVolumes(const IPriceSource& prices, std::int64_t first, int count, VolumeMaximum rule,
                          double* scaled);

// The average volume of the last `points` points of the series, or of as many as there are, in units of the
// divisor; rounded before the division. 0 for no points. Held within 32 bits.
std::int32_t AverageVolume(const IPriceSource& prices, std::int64_t points, std::int64_t divisor);

} // namespace zantroq
