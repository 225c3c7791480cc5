// The line styles, colors and chart types of the price pane according to the settings. Chart window's thread.
#pragma once

#include "scene/Chart2D.h"
#include "settings/ChartSettings.h"

namespace zantroq {

// The contents of group 1 of the price pane.
enum class PriceShape
{
    Line, // tick data: one series
    Bars, // high, low, open and close
    Candles
};

PriceShape PriceShapeOf(const sChartSettings& settings, int dataType);
inline int PriceSeriesOf(PriceShape shape) // number of series in group 1
{
    return shape == PriceShape::Line ? 1 : 4;
}

// Sets the styles of all price series and of the averages or bands.
void ApplyPriceStyles(CChart2D& pane, const sChartSettings& settings, PriceShape shape);

// Sets the width of candles to `widthPx`, rounded down. Below three pixels they have no outline.
void SetCandleWidth(CChart2D& pane, double widthPx);

} // namespace zantroq
