// The lowest low, the highest high and the largest volume of a range of the series. Pure functions, any
// thread.
#pragma once

#include <cstdint>
#include <span>

namespace zantroq {

// Initially empty. Because of the initial values, a price above ten million leaves Low at ten million, and
// one below minus ten million leaves High at minus ten million.
struct sPriceRange
{
    double Low = 10000000.0;
    double High = -10000000.0;
    std::uint32_t GreatestVolume = 0;

    // High plus one per cent of the range.
    double Top() const { return (High - Low) * 0.01 + High; }
};

// A 64-bit volume limited to 0x7fffffff.
std::int32_t CutVolume(std::int64_t volume);

// Widens the range by points without a deleted flag; an empty list of flags means none is deleted.
// Not-a-number does not count.
void IncludePrices(sPriceRange& range, std::span<const double> highs, std::span<const double> lows,
                   std::span<const std::uint8_t> deleted);

// The same for the largest volume.
void IncludeVolumes(sPriceRange& range, std::span<const std::int64_t> volumes,
                    std::span<const std::uint8_t> deleted);

// Widens the range by the values of a curve, except holes and not-a-number.
void IncludeCurve(sPriceRange& range, std::span<const double> values);

// The number of digits before the decimal point; 1 for a price of 0 or less.
std::int32_t DigitsBeforePoint(double price);

} // namespace zantroq
