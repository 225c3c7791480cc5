// What every pane looks like at the start of a chart, and the changes that apply to all panes alike: the side
// of the value axis, the grid and the colors. Chart window's thread.
#pragma once

#include "scene/Chart2D.h"
#include "settings/ChartSettings.h"

namespace zantroq {

inline constexpr int PlotTopPx = 17, PlotBottomPx = 4, PricePlotBottomPx = 31;
inline constexpr int LabelledMarginPx = 58, BareMarginPx = 23;
inline constexpr ColorValue TitleForeground = 0xFFFFFF, TitleBackground = 0x232323;

// A study pane: its only label is the title, one empty series in each group, value axes from 1 to 2, an x
// axis for the points list's entry, margins by the side of the value axis, the colors of the study of that
// kind (no kind: those of the price pane).
void SetUpStudyPane(CChart2D& chart, const sChartSettings& settings, int kind);

// The axes, margins, marker and colors alone, as the price pane needs them too; labelColor is the color of
// axis texts.
void SetUpPaneFrame(CChart2D& chart, const sChartSettings& settings, int bottomPx, ColorValue labelColor);

// Background, axis texts (labelColor) and price bar of a pane that keeps what it shows.
void SetPaneColors(CChart2D& chart, const sChartSettings& settings, ColorValue labelColor);

// Both value axes from 1 to 2 with a spacing of 15.
void SetUpValueAxes(CChart2D& chart);

// Appends a title label: white on dark grey, at the pane's top left, hidden while it has no text.
CPaneLabel& AddTitleLabel(CChart2D& chart);

// Appends a hidden label with the style that trendline texts start from.
CPaneLabel& AddPlainLabel(CChart2D& chart, const sChartSettings& settings);

// Which value axis is drawn, and the margins that go with it.
void SetAxisSide(CChart2D& chart, AxisSide side);

// The same after a change of the setting: the labels move to the new side with their values and texts.
void MoveValueAxis(CChart2D& chart, AxisSide side);

// Grid lines in the style of the settings at each label of the x axis and of the left value axis, or none.
void SetGrid(CChart2D& chart, const sChartSettings& settings);

// The color of axis texts of a study pane.
ColorValue StudyLabelColor(const sChartSettings& settings, int kind);

} // namespace zantroq
