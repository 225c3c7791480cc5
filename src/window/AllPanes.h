// Changes that apply to all panes of a window: marker, grid, colors and the side of the value axis. Each
// change causes one repaint. Chart window's thread.
#pragma once

#include "drawing/ChartWindow.h"

namespace zantroq {

class CAllPanes
{
public:
    explicit CAllPanes(IChartWindow& window) : m_window(window) {} // not owned

    void ShowMarkers(); // according to "Show Price Bar"
    void SetGrids();
    void MoveValueAxes(); // to the side in the settings, with their labels
    void SetColors();     // background, axis texts, price bar, and the labels of the price pane

private:
    IChartWindow& m_window;
};

} // namespace zantroq
