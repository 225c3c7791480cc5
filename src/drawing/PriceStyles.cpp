#include "drawing/PriceStyles.h"

#include "drawing/PricePaneNumbers.h"
#include "drawing/SeriesStyleTable.h"
#include "market/HistoryRecords.h"

namespace zantroq {

namespace {

// The series whose styles define a candle: the rising body, the falling body and the outline.
constexpr int UpCandle = 2, DownCandle = 3, CandleOutline = 4;

void ApplyCandleStyles(CChart2D& pane, const sChartSettings& settings)
{
    constexpr int widthBeforeNarrowing = 5;
    CPaneGroup& bars = pane.PaneGroups(1);
    pane.PaneArea().CandleLook().SetFilled(true);
    bars.SeriesStyles(UpCandle).FillLook().SetColor(settings.UpCandleColor);
    bars.SeriesStyles(UpCandle).LineLook().SetWidth(widthBeforeNarrowing);
    bars.SeriesStyles(DownCandle).FillLook().SetColor(settings.DownCandleColor);
    bars.SeriesStyles(DownCandle).LineLook().SetWidth(widthBeforeNarrowing);
    bars.SeriesStyles(CandleOutline).FillLook().SetColor(settings.GridColor);
    bars.SeriesStyles(CandleOutline).LineLook().SetPattern(LineSolid);
}

} // namespace

PriceShape PriceShapeOf(const sChartSettings& settings, int dataType)
{
    if (dataType == TickData)
        return PriceShape::Line;
    return settings.CandleStyle == 1 ? PriceShape::Candles : PriceShape::Bars;
}

void ApplyPriceStyles(CChart2D& pane, const sChartSettings& settings, PriceShape shape)
{
    const SeriesStyleTable table = SeriesStyles(settings);
    CPaneGroup& bars = pane.PaneGroups(1);
    for (int series = 1; series <= PriceSeriesOf(shape); ++series)
        ApplyLook(bars.SeriesStyles(series), table[PriceStyle]);
    if (shape != PriceShape::Line)
        bars.SetChartType(shape == PriceShape::Candles ? ChartCandles : ChartHiLoOpenClose);
    if (shape == PriceShape::Candles)
        ApplyCandleStyles(pane, settings);
    const bool bands = settings.Overlays.ShowBands != 0;
    for (int m = 0; m < PriceOverlays; ++m)
        ApplyLook(pane.PaneGroups(2).SeriesStyles(m + 1),
                  table[static_cast<std::size_t>(bands ? BandStyle : AverageStyle + m)]);
}

void SetCandleWidth(CChart2D& pane, double widthPx)
{
    constexpr int leastOutlined = 3; // narrowest candle with an outline, in pixels
    const int pixels = static_cast<int>(widthPx);
    CPaneGroup& bars = pane.PaneGroups(1);
    bars.SeriesStyles(UpCandle).LineLook().SetWidth(pixels);
    bars.SeriesStyles(DownCandle).LineLook().SetWidth(pixels);
    bars.SeriesStyles(CandleOutline).LineLook().SetPattern(pixels < leastOutlined ? LineNone : LineSolid);
}

} // namespace zantroq
