// The styles of a group as its ink uses them. Chart window's thread.
#pragma once

#include "scene/Chart2D.h"

#include <algorithm>
#include <cmath>

namespace zantroq {

inline bool IsBarType(int type)
{
    return type == ChartBars || type == ChartBarsFromOrigin;
}

inline bool IsPriceType(int type)
{
    return type == ChartHiLoOpenClose || type == ChartCandles;
}

// The style of a series; the default style if none was set.
const CSeriesStyle& StyleOf(const CPaneGroup& group, int series);

// A width of pane pixels in device pixels, at least 1. `scale` is device pixels per pane pixel.
inline int DevicePixels(int panePixels, double scale)
{
    return std::max(1, static_cast<int>(std::floor(std::clamp(panePixels, 1, 1000) * scale + 0.5)));
}

} // namespace zantroq
