// The whole draw of the price pane: which stretch of the series is on show, its points, the value axis, and
// the curves over it.
#include "drawing/BollingerBands.h"
#include "drawing/HistChartDrawManager.h"
#include "drawing/HistPriceChart.h"
#include "drawing/MovingAverages.h"
#include "drawing/XAxis.h"

#include <algorithm>
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
    explicit CNumbers(std::size_t size = 0) { Resize(size); }
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

constexpr int ScanBlock = 65536; // points read at a time where the whole series is looked at

// x values are the points' places, which most draws leave as they are.
void NumberPoints(CPaneData& data, int count)
{
    const std::span<const double> x = data.X();
    int same = 0;
    while (same < count && x[static_cast<std::size_t>(same)] == same + 1)
        ++same;
    if (same == count)
        return;
    std::vector<double> places(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        places[static_cast<std::size_t>(i)] = i + 1;
    data.SetXVector(1, places);
}

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

struct CHistPriceChart::sLoadedPoints
{
    int First = 0;
    std::size_t Count = 0;
    CNumbers High, Low, Open;
    CNumbers Closes; // from index ClosesFrom on: the curves look back further than the window
    int ClosesFrom = 0;
    std::vector<std::int64_t> Volume;
    std::vector<std::uint8_t> Deleted;

    std::span<double> Close()
    {
        return Closes.Values().subspan(static_cast<std::size_t>(First - ClosesFrom));
    }
    std::span<const double> Close() const
    {
        return Closes.Values().subspan(static_cast<std::size_t>(First - ClosesFrom));
    }
    sCloseRun Run() const { return {Closes.Values(), ClosesFrom}; }
};

void CHistPriceChart::Draw(int position)
{
    if (chart->PaneLabels().Count() >= ReadoutLabel)
        chart->PaneLabels().Item(ReadoutLabel).SetShown(false);
    const int count = Count();
    const int wanted = DisplayMaxPoints[static_cast<std::size_t>(std::clamp(dlg->Range().ptsIndex, 0, 14))];
    PlaceRange(position, count, wanted);
    ApplyStyles();

    sLoadedPoints points;
    LoadPoints(points, count);
    ShowPoints(points);
    const sPriceRange prices = FitToPrices(points, count);
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

void CHistPriceChart::LoadPoints(sLoadedPoints& points, int count)
{
    points.First = dlg->Range().first;
    points.Count = static_cast<std::size_t>(count == 0 ? 0 : dlg->Range().shown);
    const int shown = static_cast<int>(points.Count);
    points.ClosesFrom = FirstCloseNeeded(points.First, LongestPeriod(Settings().Overlays));
    const int closes = points.First - points.ClosesFrom + shown;
    points.Closes.Resize(static_cast<std::size_t>(closes));
    manager->ReadClose(points.ClosesFrom, closes, points.Closes.Data());
    if (!TickSeries()) {
        points.High.Resize(points.Count);
        points.Low.Resize(points.Count);
        points.Open.Resize(points.Count);
        manager->ReadHigh(points.First, shown, points.High.Data());
        manager->ReadLow(points.First, shown, points.Low.Data());
        manager->ReadOpen(points.First, shown, points.Open.Data());
    }
    points.Volume.resize(points.Count);
    manager->ReadVolume(points.First, shown, points.Volume.data());
    ReadDeletedMarks(points.First, shown, points.Deleted);
}

void CHistPriceChart::ShowPoints(const sLoadedPoints& points)
{
    const int shown = static_cast<int>(points.Count);
    CPaneData& bars = Bars();
    CPaneData& overlays = Overlays();
    bars.SetPointCount(1, shown);
    overlays.SetPointCount(1, shown);
    for (int series = 1; series <= bars.SeriesCount(); ++series)
        bars.SetFirstPoint(series, 1);
    overlays.SetFirstPoint(1, 1);
    // A trendline drawn since the set-up has brought its series along.
    if (overlays.LastShownSeries() != 0 && overlays.LastShownSeries() < overlays.SeriesCount())
        overlays.SetLastShownSeries(overlays.SeriesCount());
    SetXAxis(*chart, dlg->Range().shown, Settings().Grid != 0);
    BuildXLabels();

    NumberPoints(bars, shown);
    NumberPoints(overlays, shown);
    const auto load = [&](int series, std::span<const double> values) {
        bars.SetYVector(series, values);
        for (std::size_t i = 0; i < points.Deleted.size(); ++i)
            if (points.Deleted[i])
                bars.SetPointY(series, static_cast<int>(i) + 1, CPaneData::HoleValue());
    };
    if (TickSeries()) {
        load(1, points.Close());
    } else {
        load(1, points.High.Values());
        load(2, points.Low.Values());
        load(3, points.Open.Values());
        load(4, points.Close());
    }
    chart->PaneGroups(1).CommitPaneData();
    for (int series = 1; series <= bars.SeriesCount(); ++series) {
        bars.SetDrawnTo(series, 0);
        bars.AdvanceDrawn(series, shown);
    }
}

sPriceRange CHistPriceChart::FitToPrices(const sLoadedPoints& points, int count)
{
    sPriceRange range;
    if (!FitsScale())
        return range;
    if (Settings().FixedScale)
        ScanWholeSeries(range, count);
    else if (TickSeries())
        IncludePrices(range, points.Close(), points.Close(), points.Volume, points.Deleted);
    else
        IncludePrices(range, points.High.Values(), points.Low.Values(), points.Volume, points.Deleted);
    maxVolume = range.GreatestVolume;
    priceDigits = DigitsBeforePoint(range.High);
    if (count == 0)
        SetYScale(0, 0);
    else
        SetYScale(range.Top(), range.Low);
    return range;
}

void CHistPriceChart::ScanWholeSeries(sPriceRange& range, int count) const
{
    std::vector<double> highs, lows;
    std::vector<std::int64_t> volumes;
    std::vector<std::uint8_t> deleted;
    for (int first = 0; first < count; first += ScanBlock) {
        const int length = std::min(ScanBlock, count - first);
        highs.resize(static_cast<std::size_t>(length));
        lows.resize(highs.size());
        volumes.resize(highs.size());
        manager->ReadHigh(first, length, highs.data());
        manager->ReadLow(first, length, lows.data());
        manager->ReadVolume(first, length, volumes.data());
        ReadDeletedMarks(first, length, deleted);
        IncludePrices(range, highs, lows, volumes, deleted);
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

void CHistPriceChart::DrawAverages(const sLoadedPoints& points, const sPriceRange& prices)
{
    const sOverlaySettings& settings = Settings().Overlays;
    sPriceRange curves = NothingSeen();
    CNumbers values;
    for (int m = 0; m < PriceOverlays; ++m) {
        if (settings.ShowAverages == 0 || settings.AverageSelected[static_cast<std::size_t>(m)] == 0 ||
            points.Count == 0) {
            ClearOverlay(m + 1);
            continue;
        }
        if (values.Values().size() != points.Count)
            values.Resize(points.Count);
        const int period = settings.AveragePoints[static_cast<std::size_t>(m)];
        if (settings.Exponential != 0)
            ExponentialAverages(points.Run(), points.First, period, values.Values());
        else
            SimpleAverages(points.Run(), points.First, period, values.Values());
        IncludeCurve(curves, values.Values());
        ShowOverlay(m + 1, values.Values(), 0);
    }
    FitToCurves(prices, curves);
    chart->PaneGroups(2).CommitPaneData();
}

void CHistPriceChart::DrawBands(const sLoadedPoints& points, const sPriceRange& prices, int count)
{
    const sOverlaySettings& settings = Settings().Overlays;
    const auto shown = static_cast<long long>(points.Count);
    const long long warmUp =
        points.First < settings.BandPeriod
            ? std::min(static_cast<long long>(settings.BandPeriod) - points.First + 1, shown + 1)
            : 0;
    const bool drawn = warmUp < shown;
    CNumbers lower(drawn ? points.Count : 0), upper(drawn ? points.Count : 0),
        middle(drawn ? points.Count : 0);
    if (drawn)
        BollingerBands(points.Run(), points.First, settings.BandPeriod, settings.BandDeviations,
                       lower.Values(), upper.Values(), middle.Values());
    sPriceRange curves = NothingSeen();
    if (Settings().FixedScale) {
        if (FitsScale())
            IncludeAllBands(curves, count);
    } else if (drawn) {
        IncludeCurve(curves, lower.Values().subspan(static_cast<std::size_t>(warmUp)));
        IncludeCurve(curves, upper.Values().subspan(static_cast<std::size_t>(warmUp)));
    }
    FitToCurves(prices, curves);
    if (!drawn) {
        for (int series = 1; series <= PriceOverlays; ++series)
            ClearOverlay(series);
        return;
    }
    ShowOverlay(1, lower.Values(), static_cast<int>(warmUp));
    ShowOverlay(2, upper.Values(), static_cast<int>(warmUp));
    ShowOverlay(3, middle.Values(), static_cast<int>(warmUp));
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

void CHistPriceChart::ShowOverlay(int series, std::span<const double> values, int warmUp)
{
    CPaneData& overlays = Overlays();
    overlays.SetFirstPoint(series, 1);
    overlays.SetDrawnTo(series, warmUp);
    overlays.SetYVector(series, values);
    overlays.AdvanceDrawn(series, static_cast<int>(values.size()) - warmUp);
    m_overlayDrawn[static_cast<std::size_t>(series - 1)] = true;
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
