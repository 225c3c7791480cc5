// What the ink of bars and of lines asks of a group's looks. Chart window's thread.
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

// The look of a series, or that of a series which was never given one.
const CSeriesStyle& StyleOf(const CPaneGroup& group, int series);

// A width of pane pixels on a grid of `scale` device pixels each; at least 1.
inline int DevicePixels(int panePixels, double scale)
{
    return std::max(1, static_cast<int>(std::floor(std::clamp(panePixels, 1, 1000) * scale + 0.5)));
}

} // namespace zantroq
