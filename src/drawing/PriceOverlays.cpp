#include "drawing/PriceOverlays.h"

#include "drawing/BollingerBands.h"
#include "drawing/SeriesScan.h"

#include <algorithm>
#include <limits>

namespace zantroq {

namespace {

// The longest period of a displayed curve.
int LongestPeriod(const sOverlaySettings& settings)
{
    if (settings.ShowBands != 0)
        return settings.BandPeriod;
    int longest = 0;
    if (settings.ShowAverages != 0)
        for (std::size_t m = 0; m < settings.AveragePoints.size(); ++m)
            if (settings.AverageSelected[m] != 0)
                longest = std::max(longest, settings.AveragePoints[m]);
    return longest;
}

sPriceRange NothingSeen()
{
    sPriceRange range;
    range.Low = std::numeric_limits<double>::infinity();
    range.High = -range.Low;
    return range;
}

// The number of displayed points at the left edge without a band.
int WarmUp(const sOverlaySettings& settings, const sDrawnPoints& points)
{
    const long long reach = static_cast<long long>(settings.BandPeriod) - points.First;
    return static_cast<int>(reach > 0 ? std::min(reach + 1, static_cast<long long>(points.Count) + 1) : 0);
}

} // namespace

sPriceRange CPriceOverlays::Draw(const sOverlaySettings& settings, const sDrawnPoints& points, BandRange rule)
{
    CNumbers lookBack; // closes from before the drawn points on, if a curve needs them
    const sCloseRun closes = LoadCloses(settings, points, lookBack);
    if (settings.ShowBands == 0)
        return DrawAverages(settings, points, closes);
    const sPriceRange drawn = DrawBands(settings, points, closes);
    return rule == BandRange::OfTheDrawnPoints ? drawn : RangeOfAllBands(settings, points.SeriesCount);
}

// Provides the closes for the curves: those in the pane, unless a curve needs earlier closes.
sCloseRun CPriceOverlays::LoadCloses(const sOverlaySettings& settings, const sDrawnPoints& points,
                                     CNumbers& lookBack) const
{
    const CPaneData& bars = m_pane.PaneGroups(1).PaneData();
    const std::span<const double> shown = bars.Y(bars.SeriesCount());
    const int from = FirstCloseNeeded(points.First, LongestPeriod(settings));
    if (from == points.First && points.Deleted.empty())
        return {shown, points.First};
    const int before = points.First - from;
    lookBack.Resize(static_cast<std::size_t>(before + points.Count));
    if (points.Deleted.empty()) {
        m_prices.ReadClose(from, before, lookBack.Data());
        std::copy(shown.begin(), shown.end(), lookBack.Data() + before);
    } else {
        m_prices.ReadClose(from, before + points.Count, lookBack.Data());
    }
    return {lookBack.Values(), from};
}

sPriceRange CPriceOverlays::DrawAverages(const sOverlaySettings& settings, const sDrawnPoints& points,
                                         const sCloseRun& closes)
{
    sPriceRange range = NothingSeen();
    for (int m = 0; m < PriceOverlays; ++m) {
        const auto average = static_cast<std::size_t>(m);
        if (settings.ShowAverages == 0 || settings.AverageSelected[average] == 0 || points.Count == 0) {
            Clear(m + 1);
            continue;
        }
        const std::span<double> values = ValuesOf(m + 1);
        if (settings.Exponential != 0)
            ExponentialAverages(closes, points.First, settings.AveragePoints[average], values);
        else
            SimpleAverages(closes, points.First, settings.AveragePoints[average], values);
        IncludeCurve(range, values);
        MarkDrawn(m + 1, 0);
    }
    return range;
}

sPriceRange CPriceOverlays::DrawBands(const sOverlaySettings& settings, const sDrawnPoints& points,
                                      const sCloseRun& closes)
{
    sPriceRange range = NothingSeen();
    const int warmUp = WarmUp(settings, points);
    if (warmUp >= points.Count) {
        for (int series = 1; series <= PriceOverlays; ++series)
            Clear(series);
        return range;
    }
    const std::span<double> lower = ValuesOf(1), upper = ValuesOf(2), middle = ValuesOf(3);
    BollingerBands(closes, points.First, settings.BandPeriod, settings.BandDeviations, lower, upper, middle);
    for (int series = 1; series <= PriceOverlays; ++series)
        MarkDrawn(series, warmUp);
    IncludeCurve(range, lower.subspan(static_cast<std::size_t>(warmUp)));
    IncludeCurve(range, upper.subspan(static_cast<std::size_t>(warmUp)));
    return range;
}

sPriceRange CPriceOverlays::RangeOfAllBands(const sOverlaySettings& settings, int count) const
{
    sPriceRange range = NothingSeen();
    CNumbers lower(ScanBlock), upper(ScanBlock), middle(ScanBlock), closes;
    for (long long first = static_cast<long long>(settings.BandPeriod) + 1; first < count;
         first += ScanBlock) {
        if (settings.BandPeriod < 1)
            break;
        const int from = FirstCloseNeeded(static_cast<int>(first), settings.BandPeriod);
        const int length = static_cast<int>(std::min<long long>(ScanBlock, count - first));
        const int needed = static_cast<int>(first) - from + length;
        closes.Resize(static_cast<std::size_t>(needed));
        m_prices.ReadClose(from, needed, closes.Data());
        const auto size = static_cast<std::size_t>(length);
        BollingerBands({closes.Values(), from}, static_cast<int>(first), settings.BandPeriod,
                       settings.BandDeviations, lower.Values().first(size), upper.Values().first(size),
                       middle.Values().first(size));
        IncludeCurve(range, lower.Values().first(size));
        IncludeCurve(range, upper.Values().first(size));
    }
    return range;
}

// The values of a curve, for the caller to write.
std::span<double> CPriceOverlays::ValuesOf(int series)
{
    m_hasValues[static_cast<std::size_t>(series - 1)] = true;
    return Curves().YForOverwrite(series);
}

void CPriceOverlays::MarkDrawn(int series, int warmUp)
{
    CPaneData& curves = Curves();
    curves.SetFirstPoint(series, 1);
    curves.SetDrawnTo(series, warmUp);
    curves.AdvanceDrawn(series, curves.PointCount(series) - warmUp);
}

// Clears the series of a curve that is no longer displayed.
void CPriceOverlays::Clear(int series)
{
    bool& hasValues = m_hasValues[static_cast<std::size_t>(series - 1)];
    CPaneData& curves = Curves();
    curves.SetDrawnTo(series, 0);
    if (!hasValues)
        return;
    const std::vector<double> holes(static_cast<std::size_t>(curves.PointCount(series)), HoleValue);
    curves.SetYVector(series, holes);
    hasValues = false;
}

} // namespace zantroq
