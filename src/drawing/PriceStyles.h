// The line styles, colors and chart types of the price pane, taken from the settings. Chart window's thread.
#pragma once

#include "scene/Chart2D.h"
#include "settings/ChartSettings.h"

namespace zantroq {

// What group 1 of the price pane shows.
enum class PriceShape
{
    Line, // tick data: one series
    Bars, // high, low, open and close
    Candles
};

PriceShape PriceShapeOf(const sChartSettings& settings, int dataType);
inline int PriceSeriesOf(PriceShape shape) // series of group 1
{
    return shape == PriceShape::Line ? 1 : 4;
}

// The styles of all price series, and of the averages or bands over them.
void ApplyPriceStyles(CChart2D& pane, const sChartSettings& settings, PriceShape shape);

// Fits candles to the room of a point: widthPx is rounded down. Below three pixels they lose their outline.
void SetCandleWidth(CChart2D& pane, double widthPx);

} // namespace zantroq
