// The numbers of the labels and series of the price pane, counted from 1. Constants.
#pragma once

namespace zantroq {

inline constexpr int ReadoutLabel = 1;    // values of the point under the mouse
inline constexpr int PriceTitleLabel = 2; // title of the pane
inline constexpr int PriceLabels = 9;     // 3 to 9 are reserved; the texts of trendlines follow

// Series of group 1 for bar data; tick data has one series, the price.
inline constexpr int HighSeries = 1, LowSeries = 2, OpenSeries = 3, CloseSeries = 4;

// Series 1 to 3 of group 2 hold the averages or the bands; the series of trendlines follow.
inline constexpr int PriceOverlays = 3;

} // namespace zantroq
