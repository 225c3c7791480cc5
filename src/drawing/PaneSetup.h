// The appearance of every pane at the start of a chart, and the settings that affect all panes: the side of
// the value axis, the grid and the colors. Chart window's thread.
#pragma once

#include "scene/Chart2D.h"
#include "settings/ChartSettings.h"

namespace zantroq {

inline constexpr int PlotTopPx = 17, PlotBottomPx = 4, PricePlotBottomPx = 31;
inline constexpr int LabelledMarginPx = 58, BareMarginPx = 23;
inline constexpr ColorValue TitleForeground = 0xFFFFFF, TitleBackground = 0x232323;

// Sets up a study pane: its title as the only label, an empty series in each group, value axes from 1 to 2,
// an x axis for the chosen number of points, margins for the side of the value axis, and the colors of the
// study `kind` (if negative, the colors of the price pane).
void SetUpStudyPane(CChart2D& chart, const sChartSettings& settings, int kind);

// Sets up only axes, margins, marker and colors, which the price pane needs too; `labelColor` is the color of
// axis texts.
void SetUpPaneFrame(CChart2D& chart, const sChartSettings& settings, int bottomPx, ColorValue labelColor);

// Sets background, axis texts (`labelColor`) and price bar of a pane without changing its contents.
void SetPaneColors(CChart2D& chart, const sChartSettings& settings, ColorValue labelColor);

// Both value axes from 1 to 2 with a spacing of 15.
void SetUpValueAxes(CChart2D& chart);

// Appends a title label: white on dark grey, at the pane's top left, hidden while it has no text.
CPaneLabel& AddTitleLabel(CChart2D& chart);

// Appends a hidden label with the initial style of trendline texts.
CPaneLabel& AddPlainLabel(CChart2D& chart, const sChartSettings& settings);

// Sets which value axis is drawn, and the margins for it.
void SetAxisSide(CChart2D& chart, AxisSide side);

// The same after a change of the setting: the labels move to the new side with their values and texts.
void MoveValueAxis(CChart2D& chart, AxisSide side);

// Shows grid lines in the style of the settings at each label of the x axis and of the left value axis, or
// none.
void SetGrid(CChart2D& chart, const sChartSettings& settings);

// The color of a study pane's axis texts.
ColorValue StudyLabelColor(const sChartSettings& settings, int kind);

} // namespace zantroq
