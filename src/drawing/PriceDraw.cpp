// The whole draw of the price pane: which stretch of the series is on show, its points, the value axis, and
// the curves over it.
#include "drawing/BollingerBands.h"
#include "drawing/HistChartDrawManager.h"
#include "drawing/HistPriceChart.h"
#include "drawing/MovingAverages.h"
#include "drawing/XAxis.h"

#include <algorithm>
#include <array>
#include <limits>
#include <memory>
#include <span>

namespace zantroq {

namespace {

// A vector of numbers that are all written before they are read; zeroing a quarter of a million of them first
// would show.
class CNumbers
{
public:
    CNumbers() = default;
    explicit CNumbers(std::size_t size) { Resize(size); }
    void Resize(std::size_t size)
    {
        m_values = std::make_unique_for_overwrite<double[]>(size);
        m_size = size;
    }
    double* Data() { return m_values.get(); }
    std::span<double> Values() { return {m_values.get(), m_size}; }
    std::span<const double> Values() const { return {m_values.get(), m_size}; }

private:
    std::unique_ptr<double[]> m_values;
    std::size_t m_size = 0;
};

constexpr int ScanBlock =
    16384; // points read at a time where they are only looked at: they stay in the nearest cache

// The longest way back that a curve reaches from its first point.
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

} // namespace

struct CHistPriceChart::sDrawnPoints
{
    int First = 0; // data index
    int Count = 0;
    std::vector<std::uint8_t> Deleted;
    CNumbers LookBack; // closes from before the window on, where a curve reaches back
    sCloseRun Closes;
};

void CHistPriceChart::Draw(int position)
{
    // A resize can ask for a draw while a chart still loads, before its set-up.
    if (Bars().SeriesCount() != PriceSeries() || Overlays().SeriesCount() < PriceOverlays)
        SetUp();
    chart->PaneLabels().Item(ReadoutLabel).SetShown(false);
    const int count = Count();
    const int wanted = DisplayMaxPoints[static_cast<std::size_t>(std::clamp(dlg->Range().ptsIndex, 0, 14))];
    PlaceRange(position, count, wanted);
    ApplyStyles();

    sDrawnPoints points;
    points.First = dlg->Range().first;
    points.Count = count == 0 ? 0 : dlg->Range().shown;
    MakeRoom(points);
    SetXAxis(*chart, dlg->Range().shown, Settings().Grid != 0);
    BuildXLabels();
    LoadBars(points);
    const sPriceRange prices = FitToPrices(points, count);
    LoadCloses(points);
    if (Settings().Overlays.ShowBands != 0)
        DrawBands(points, prices, count);
    else
        DrawAverages(points, prices);
    NarrowCandles();
    manager->RedrawTrends();
    ToggleScrollBar(count >= wanted);
    dlg->UpdateZoomButtons();
}

void CHistPriceChart::PlaceRange(int position, int count, int wanted)
{
    sDisplayRange& range = dlg->Range();
    const int oldFirst = range.first;
    if (count < wanted) {
        range.first = 0;
        range.last = count - 1;
        if (count > 0)
            range.shown = count;
    } else {
        const long long last = static_cast<long long>(wanted) - 1 + position;
        range.last = static_cast<int>(std::clamp<long long>(last, wanted - 1, count - 1));
        range.first = std::max(0, range.last - wanted + 1);
        range.shown = wanted;
    }
    if (dlg->SelectedPoint() != NoPoint)
        dlg->SetSelectedPoint(dlg->SelectedPoint() + oldFirst - range.first);
}

void CHistPriceChart::MakeRoom(const sDrawnPoints& points)
{
    CPaneData& bars = Bars();
    CPaneData& overlays = Overlays();
    bars.SetPointCount(1, points.Count);
    overlays.SetPointCount(1, points.Count);
    bars.NumberPoints();
    overlays.NumberPoints();
    // A trendline drawn since the set-up has brought its series along.
    if (overlays.LastShownSeries() != 0 && overlays.LastShownSeries() < overlays.SeriesCount())
        overlays.SetLastShownSeries(overlays.SeriesCount());
}

void CHistPriceChart::LoadBars(sDrawnPoints& points)
{
    CPaneData& bars = Bars();
    ReadDeletedMarks(points.First, points.Count, points.Deleted);
    using Read = void (CHistChartDrawManager::*)(int, int, double*) const;
    static constexpr std::array<Read, 4> barReads{
        &CHistChartDrawManager::ReadHigh, &CHistChartDrawManager::ReadLow, &CHistChartDrawManager::ReadOpen,
        &CHistChartDrawManager::ReadClose};
    for (int series = 1; series <= bars.SeriesCount(); ++series) {
        const std::span<double> values = bars.YForOverwrite(series);
        const Read read =
            TickSeries() ? &CHistChartDrawManager::ReadClose : barReads[static_cast<std::size_t>(series - 1)];
        (manager->*read)(points.First, points.Count, values.data());
        for (std::size_t i = 0; i < points.Deleted.size(); ++i)
            if (points.Deleted[i])
                values[i] = CPaneData::HoleValue();
        bars.SetFirstPoint(series, 1);
        bars.SetDrawnTo(series, 0);
        bars.AdvanceDrawn(series, points.Count);
    }
    chart->PaneGroups(1).CommitPaneData();
}

// The closes that the curves are made of. The pane's own serve where no curve reaches back before the window.
void CHistPriceChart::LoadCloses(sDrawnPoints& points)
{
    const std::span<const double> shown = Bars().Y(Bars().SeriesCount());
    const int from = FirstCloseNeeded(points.First, LongestPeriod(Settings().Overlays));
    if (from == points.First && points.Deleted.empty()) {
        points.Closes = {shown, points.First};
        return;
    }
    const int before = points.First - from;
    points.LookBack.Resize(static_cast<std::size_t>(before + points.Count));
    if (points.Deleted.empty()) {
        manager->ReadClose(from, before, points.LookBack.Data());
        std::copy(shown.begin(), shown.end(), points.LookBack.Data() + before);
    } else {
        manager->ReadClose(from, before + points.Count, points.LookBack.Data());
    }
    points.Closes = {points.LookBack.Values(), from};
}

sPriceRange CHistPriceChart::FitToPrices(const sDrawnPoints& points, int count)
{
    sPriceRange range;
    if (!FitsScale())
        return range;
    if (Settings().FixedScale) {
        ScanPrices(range, count);
        ScanVolumes(range, 0, count);
    } else {
        IncludePrices(range, Bars().Y(1), Bars().Y(TickSeries() ? 1 : 2), points.Deleted);
        ScanVolumes(range, points.First, points.Count);
    }
    maxVolume = range.GreatestVolume;
    priceDigits = DigitsBeforePoint(range.High);
    if (count == 0)
        SetYScale(0, 0);
    else
        SetYScale(range.Top(), range.Low);
    return range;
}

// The whole series' prices.
void CHistPriceChart::ScanPrices(sPriceRange& range, int count) const
{
    std::vector<double> highs, lows;
    std::vector<std::uint8_t> deleted;
    for (int first = 0; first < count; first += ScanBlock) {
        const int length = std::min(ScanBlock, count - first);
        highs.resize(static_cast<std::size_t>(length));
        lows.resize(highs.size());
        manager->ReadHigh(first, length, highs.data());
        manager->ReadLow(first, length, lows.data());
        ReadDeletedMarks(first, length, deleted);
        IncludePrices(range, highs, lows, deleted);
    }
}

void CHistPriceChart::ScanVolumes(sPriceRange& range, int first, int count) const
{
    std::vector<std::int64_t> volumes;
    std::vector<std::uint8_t> deleted;
    for (const int end = first + count; first < end; first += ScanBlock) {
        const int length = std::min(ScanBlock, end - first);
        volumes.resize(static_cast<std::size_t>(length));
        manager->ReadVolume(first, length, volumes.data());
        ReadDeletedMarks(first, length, deleted);
        IncludeVolumes(range, volumes, deleted);
    }
}

void CHistPriceChart::FitToCurves(sPriceRange prices, const sPriceRange& curves)
{
    if (!FitsScale())
        return;
    const CPaneAxis& y = chart->PaneArea().PaneAxes().Y();
    if (!(curves.Low < y.ViewLow().Value()) && !(curves.High > y.ViewHigh().Value()))
        return;
    prices.Low = std::min(prices.Low, curves.Low);
    prices.High = std::max(prices.High, curves.High);
    SetYScale(prices.Top(), prices.Low);
}

void CHistPriceChart::DrawAverages(const sDrawnPoints& points, const sPriceRange& prices)
{
    const sOverlaySettings& settings = Settings().Overlays;
    sPriceRange curves = NothingSeen();
    for (int m = 0; m < PriceOverlays; ++m) {
        const auto average = static_cast<std::size_t>(m);
        if (settings.ShowAverages == 0 || settings.AverageSelected[average] == 0 || points.Count == 0) {
            ClearOverlay(m + 1);
            continue;
        }
        const std::span<double> values = OverlayValues(m + 1);
        if (settings.Exponential != 0)
            ExponentialAverages(points.Closes, points.First, settings.AveragePoints[average], values);
        else
            SimpleAverages(points.Closes, points.First, settings.AveragePoints[average], values);
        IncludeCurve(curves, values);
        MarkOverlayDrawn(m + 1, 0);
    }
    FitToCurves(prices, curves);
    chart->PaneGroups(2).CommitPaneData();
}

void CHistPriceChart::DrawBands(const sDrawnPoints& points, const sPriceRange& prices, int count)
{
    const sOverlaySettings& settings = Settings().Overlays;
    const long long reach = static_cast<long long>(settings.BandPeriod) - points.First;
    const long long warmUp = reach > 0 ? std::min(reach + 1, static_cast<long long>(points.Count) + 1) : 0;
    const bool drawn = warmUp < points.Count;
    sPriceRange curves = NothingSeen();
    for (int series = 1; series <= PriceOverlays && !drawn; ++series)
        ClearOverlay(series);
    if (drawn) {
        const std::span<double> lower = OverlayValues(1), upper = OverlayValues(2), middle = OverlayValues(3);
        BollingerBands(points.Closes, points.First, settings.BandPeriod, settings.BandDeviations, lower,
                       upper, middle);
        for (int series = 1; series <= PriceOverlays; ++series)
            MarkOverlayDrawn(series, static_cast<int>(warmUp));
        IncludeCurve(curves, lower.subspan(static_cast<std::size_t>(warmUp)));
        IncludeCurve(curves, upper.subspan(static_cast<std::size_t>(warmUp)));
    }
    if (Settings().FixedScale) {
        curves = NothingSeen();
        if (FitsScale())
            IncludeAllBands(curves, count);
    }
    FitToCurves(prices, curves);
    chart->PaneGroups(2).CommitPaneData();
}

// Bands of the whole series, for a fixed axis that is fitted to all of it.
void CHistPriceChart::IncludeAllBands(sPriceRange& range, int count) const
{
    const sOverlaySettings& settings = Settings().Overlays;
    CNumbers lower(ScanBlock), upper(ScanBlock), middle(ScanBlock), closes;
    for (long long first = static_cast<long long>(settings.BandPeriod) + 1; first < count;
         first += ScanBlock) {
        if (settings.BandPeriod < 1)
            return;
        const int from = FirstCloseNeeded(static_cast<int>(first), settings.BandPeriod);
        const int length = static_cast<int>(std::min<long long>(ScanBlock, count - first));
        const int needed = static_cast<int>(first) - from + length;
        closes.Resize(static_cast<std::size_t>(needed));
        manager->ReadClose(from, needed, closes.Data());
        const auto size = static_cast<std::size_t>(length);
        BollingerBands({closes.Values(), from}, static_cast<int>(first), settings.BandPeriod,
                       settings.BandDeviations, lower.Values().first(size), upper.Values().first(size),
                       middle.Values().first(size));
        IncludeCurve(range, lower.Values().first(size));
        IncludeCurve(range, upper.Values().first(size));
    }
}

// The room of a curve's values, which the caller fills.
std::span<double> CHistPriceChart::OverlayValues(int series)
{
    m_overlayDrawn[static_cast<std::size_t>(series - 1)] = true;
    return Overlays().YForOverwrite(series);
}

void CHistPriceChart::MarkOverlayDrawn(int series, int warmUp)
{
    CPaneData& overlays = Overlays();
    overlays.SetFirstPoint(series, 1);
    overlays.SetDrawnTo(series, warmUp);
    overlays.AdvanceDrawn(series, overlays.PointCount(series) - warmUp);
}

// A curve that is no longer shown must leave nothing behind in its series.
void CHistPriceChart::ClearOverlay(int series)
{
    bool& drawn = m_overlayDrawn[static_cast<std::size_t>(series - 1)];
    CPaneData& overlays = Overlays();
    overlays.SetDrawnTo(series, 0);
    if (!drawn)
        return;
    const std::vector<double> holes(static_cast<std::size_t>(overlays.PointCount(series)),
                                    CPaneData::HoleValue());
    overlays.SetYVector(series, holes);
    drawn = false;
}

void CHistPriceChart::ToggleScrollBar(bool fillsWindow)
{
    if (dlg->ScrollBarVisible() != fillsWindow)
        dlg->SetScrollBarVisible(fillsWindow);
}

} // namespace zantroq
