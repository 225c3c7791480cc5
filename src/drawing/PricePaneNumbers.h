// How the labels and series of the price pane are numbered. Labels and series count from 1.
#pragma once

namespace zantroq {

inline constexpr int ReadoutLabel = 1;    // the values of the point under the mouse
inline constexpr int PriceTitleLabel = 2; // the pane's title
inline constexpr int PriceLabels = 9;     // 3 to 9 are in reserve; the texts of trendlines follow

// Series of group 1 on bar data; tick data has one series, the price.
inline constexpr int HighSeries = 1, LowSeries = 2, OpenSeries = 3, CloseSeries = 4;

// Series 1 to 3 of group 2 hold the averages or the bands; the series of trendlines follow.
inline constexpr int PriceOverlays = 3;

} // namespace zantroq
