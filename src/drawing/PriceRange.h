// The least low, the greatest high and the greatest volume of a stretch of the series. Pure arithmetic.
#pragma once

#include <cstdint>
#include <span>

namespace zantroq {

// Starts where no price has been seen: a price above ten million leaves the low end at ten million, one below
// minus ten million the high end at that.
struct sPriceRange
{
    double Low = 10000000.0;
    double High = -10000000.0;
    std::uint32_t GreatestVolume = 0;

    // One per cent of headroom above the highest price.
    double Top() const { return (High - Low) * 0.01 + High; }
};

// A 64-bit volume as 32 bits hold it: what is greater than 0x7fffffff gives 0x7fffffff.
std::int32_t CutVolume(std::int64_t volume);

// Widens the price ends by points whose deleted flag is not set; an empty flag list deletes none.
// Not-a-number does not count.
void IncludePrices(sPriceRange& range, std::span<const double> highs, std::span<const double> lows,
                   std::span<const std::uint8_t> deleted);

// The same for the greatest volume.
void IncludeVolumes(sPriceRange& range, std::span<const std::int64_t> volumes,
                    std::span<const std::uint8_t> deleted);

// Widens the price ends by the values of a curve, holes and not-a-number left out.
void IncludeCurve(sPriceRange& range, std::span<const double> values);

// Digits before the point of a price: 1 for a price of 0 or less.
std::int32_t DigitsBeforePoint(double price);

} // namespace zantroq
