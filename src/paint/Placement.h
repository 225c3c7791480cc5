// What every placer of decorations needs: the scene, its map and the picture's size. Lives for one placement.
#pragma once

#include "paint/PaneDecorations.h"
#include "paint/PixelRects.h"

#include <algorithm>
#include <cmath>

namespace zantroq {

struct sPlacement
{
    const CChart2D& Chart;
    const sPlotMap& Map;
    double Scale;      // device pixels per pane pixel
    int Width, Height; // of the picture, device pixels
    ITextMeasure& Text;
    PaneManner Manner = PaneManner::Plain;

    // A length of pane pixels in device pixels; at least 1 for a positive one.
    int Device(int panePixels) const
    {
        const int device =
            static_cast<int>(std::floor(std::clamp(panePixels, -FarPixel, FarPixel) * Scale + 0.5));
        return panePixels > 0 ? std::max(1, device) : device;
    }
    // Width of the plot's frame and of borders.
    int Hair() const { return Device(1); }
    PixelColor Foreground() const { return PixelOf(Chart.PaneInterior().Foreground()); }
};

// The side of the plot on which an axis is.
enum class PlotSide
{
    Left,
    Right,
};

} // namespace zantroq
