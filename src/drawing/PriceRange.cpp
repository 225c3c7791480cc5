#include "drawing/PriceRange.h"

#include "platform/DoublePair.h"
#include "scene/HoleValue.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zantroq {

namespace {

constexpr double Hole = HoleValue;
constexpr double Infinity = std::numeric_limits<double>::infinity();

// Several parallel minima and maxima, because each comparison must wait for the one before. Not-a-number
// compares as neither smaller nor larger and is thus ignored.
class CExtremes
{
public:
    CExtremes(double low, double high)
    {
        for (std::size_t part = 0; part < Parts; ++part) {
            m_low[part] = DoublePair{low, low};
            m_high[part] = DoublePair{high, high};
        }
    }

    void IncludeHighs(std::span<const double> values)
    {
        Each(values, [this](std::size_t part, const DoublePair& v) {
            m_high[part] = v > m_high[part] ? v : m_high[part];
        });
    }

    void IncludeLows(std::span<const double> values)
    {
        Each(values, [this](std::size_t part, const DoublePair& v) {
            m_low[part] = v < m_low[part] ? v : m_low[part];
        });
    }

    // Widens both ends, except by holes.
    void IncludeCurve(std::span<const double> values)
    {
        const DoublePair hole{Hole, Hole}, least{-Infinity, -Infinity};
        Each(values, [&](std::size_t part, const DoublePair& v) {
            const DoublePair high = v == hole ? least : v;
            const DoublePair low = v == hole ? -least : v;
            m_high[part] = high > m_high[part] ? high : m_high[part];
            m_low[part] = low < m_low[part] ? low : m_low[part];
        });
    }

    double Low() const
    {
        double low = Infinity;
        for (const DoublePair& lanes : m_low)
            low = std::min({low, lanes[0], lanes[1]});
        return low;
    }

    double High() const
    {
        double high = -Infinity;
        for (const DoublePair& lanes : m_high)
            high = std::max({high, lanes[0], lanes[1]});
        return high;
    }

private:
    static constexpr std::size_t Parts = 4;

    template<class Take> static void Each(std::span<const double> values, Take take)
    {
        std::size_t i = 0;
        for (; i + Parts * PairWidth <= values.size(); i += Parts * PairWidth)
            for (std::size_t part = 0; part < Parts; ++part)
                take(part, LoadPair(values.data() + i + part * PairWidth));
        for (; i < values.size(); ++i)
            take(0, DoublePair{values[i], values[i]});
    }

    DoublePair m_low[Parts], m_high[Parts];
};

} // namespace

std::int32_t CutVolume(std::int64_t volume)
{
    return volume > 0x7fffffff ? 0x7fffffff : static_cast<std::int32_t>(volume);
}

void IncludePrices(sPriceRange& range, std::span<const double> highs, std::span<const double> lows,
                   std::span<const std::uint8_t> deleted)
{
    if (deleted.empty()) {
        CExtremes extremes(range.Low, range.High);
        extremes.IncludeHighs(highs);
        extremes.IncludeLows(lows);
        range.Low = extremes.Low();
        range.High = extremes.High();
    } else {
        for (std::size_t i = 0; i < highs.size(); ++i) {
            if (deleted[i])
                continue;
            range.High = highs[i] > range.High ? highs[i] : range.High;
            range.Low = lows[i] < range.Low ? lows[i] : range.Low;
        }
    }
}

void IncludeVolumes(sPriceRange& range, std::span<const std::int64_t> volumes,
                    std::span<const std::uint8_t> deleted)
{
    auto greatest = static_cast<std::int64_t>(range.GreatestVolume);
    for (std::size_t i = 0; i < volumes.size(); ++i)
        if (deleted.empty() || !deleted[i])
            greatest = std::max(greatest, volumes[i]);
    range.GreatestVolume = static_cast<std::uint32_t>(CutVolume(greatest));
}

void IncludeCurve(sPriceRange& range, std::span<const double> values)
{
    CExtremes extremes(range.Low, range.High);
    extremes.IncludeCurve(values);
    range.Low = extremes.Low();
    range.High = extremes.High();
}

std::int32_t DigitsBeforePoint(double price)
{
    return !(price > 0) || std::isinf(price) ? 1 : static_cast<std::int32_t>(std::log10(price)) + 1;
}

} // namespace zantroq
