#include "drawing/PriceRange.h"

#include "drawing/PaneObjects.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zantroq {

namespace {

constexpr double Hole = CPaneData::HoleValue();

// Four runs side by side: a comparison has to wait for the one before it, so a single run would be four times
// slower.
constexpr std::size_t Runs = 4;

void IncludeHighs(double& greatest, std::span<const double> values)
{
    std::array<double, Runs> best;
    best.fill(greatest);
    std::size_t i = 0;
    for (; i + Runs <= values.size(); i += Runs)
        for (std::size_t run = 0; run < Runs; ++run)
            best[run] = values[i + run] > best[run] ? values[i + run] : best[run];
    for (; i < values.size(); ++i)
        best[0] = values[i] > best[0] ? values[i] : best[0];
    greatest = *std::max_element(best.begin(), best.end());
}

void IncludeLows(double& least, std::span<const double> values)
{
    std::array<double, Runs> best;
    best.fill(least);
    std::size_t i = 0;
    for (; i + Runs <= values.size(); i += Runs)
        for (std::size_t run = 0; run < Runs; ++run)
            best[run] = values[i + run] < best[run] ? values[i + run] : best[run];
    for (; i < values.size(); ++i)
        best[0] = values[i] < best[0] ? values[i] : best[0];
    least = *std::min_element(best.begin(), best.end());
}

} // namespace

std::int32_t CutVolume(std::int64_t volume)
{
    return volume > 0x7fffffff ? 0x7fffffff : static_cast<std::int32_t>(volume);
}

void IncludePrices(sPriceRange& range, std::span<const double> highs, std::span<const double> lows,
                   std::span<const std::int64_t> volumes, std::span<const std::uint8_t> deleted)
{
    auto greatest = static_cast<std::int64_t>(range.GreatestVolume);
    if (deleted.empty()) {
        IncludeHighs(range.High, highs);
        IncludeLows(range.Low, lows);
        for (std::int64_t volume : volumes)
            greatest = std::max(greatest, volume);
    } else {
        for (std::size_t i = 0; i < highs.size(); ++i) {
            if (deleted[i])
                continue;
            range.High = highs[i] > range.High ? highs[i] : range.High;
            range.Low = lows[i] < range.Low ? lows[i] : range.Low;
            greatest = std::max(greatest, volumes[i]);
        }
    }
    range.GreatestVolume = static_cast<std::uint32_t>(CutVolume(greatest));
}

void IncludeCurve(sPriceRange& range, std::span<const double> values)
{
    for (double value : values) {
        if (value == Hole)
            continue;
        range.High = value > range.High ? value : range.High;
        range.Low = value < range.Low ? value : range.Low;
    }
}

std::int32_t DigitsBeforePoint(double price)
{
    return !(price > 0) || std::isinf(price) ? 1 : static_cast<std::int32_t>(std::log10(price)) + 1;
}

} // namespace zantroq
