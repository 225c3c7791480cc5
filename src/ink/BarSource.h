// The prices, colors and widths from which the bars of a group are drawn. Chart window's thread.
#pragma once

#include "scene/BlockMinMax.h"
#include "scene/PaneGeometry.h"

#include <algorithm>
#include <cstddef>
#include <span>

namespace zantroq {

struct sBarSource
{
    int Type = 0;
    std::span<const double> High, Low, Open, Close; // bars: High alone
    sBlockedValues Bars;                            // bars: the same as High
    ColorValue Up = 0, Down = 0, Outline = 0, Hollow = 0;
    bool Outlined = false, Filled = true;
    int Width = 1, Wick = 1, Tick = 0; // device pixels
    double Origin = 0;

    // From the styles of the group's shown series. `barWidth` is in pane pixels, `scale` is device pixels per
    // pane pixel.
    static sBarSource Of(const CPaneGroup& group, const sPlotMap& map, double scale, int barWidth);

    // Whether each point is one vertical line, one pixel wide.
    bool IsThin() const { return Width == 1 && Tick == 0 && Wick == 1; }
    bool IsUp(std::size_t i) const { return Close[i] >= Open[i]; }
    // Whether all four prices have a value.
    bool IsComplete(std::size_t i) const
    {
        return IsDrawn(High[i]) && IsDrawn(Low[i]) && IsDrawn(Open[i]) && IsDrawn(Close[i]);
    }
};

// The pixel rows between two values, both included, Bottom exclusive. They may lie outside the plot.
struct sRowSpan
{
    sRowSpan(const CAxisMap& map, double a, double b)
    {
        const int first = map.Pixel(a), second = map.Pixel(b);
        Top = std::min(first, second);
        Bottom = std::max(first, second) + 1;
    }
    // Clips to the plot. False when nothing is left.
    bool CutTo(const sPixelRect& plot)
    {
        Top = std::max(Top, plot.Top);
        Bottom = std::min(Bottom, plot.Bottom);
        return Top < Bottom;
    }
    int Top, Bottom;
};

} // namespace zantroq
