// A group of series of a pane: the points, how they are drawn, and where they lie in pane pixels. Chart
// window's thread.
#pragma once

#include "scene/PaneData.h"
#include "scene/PaneLooks.h"

#include <memory>
#include <vector>

namespace zantroq {

enum ChartType : int
{
    ChartLines = 1,
    ChartBars = 2,
    ChartBarsFromOrigin = 5,
    ChartHiLoOpenClose = 7,
    ChartCandles = 8
};

inline constexpr int GeometryFound = -100; // returned by PixelToData and PickPoint when they found something
inline constexpr int FocusAny = 3;         // PickPoint: the nearest point of any series
inline constexpr int FocusX = 1;           // PickPoint: the nearest in x only

class CPaneGroup : public CPaneNode
{
public:
    explicit CPaneGroup(CChart2D* chart) : CPaneNode(chart), m_data(chart) {}
    void SetChartType(int type) { Assign(m_type, type); }
    int Type() const { return m_type; }
    CPaneData& PaneData() { return m_data; }
    const CPaneData& PaneData() const { return m_data; }
    // Ends writing through YForOverwrite outside a batch: the view repaints.
    void CommitPaneData() { TouchData(); }
    CSeriesStyle& SeriesStyles(int series);          // from 1; created on first use
    const CSeriesStyle* FindStyle(int series) const; // null if never created
    void RemoveStyles();
    int StyleCount() const { return static_cast<int>(m_styles.size()); }

    // The low end of an axis's view lies in the first pixel of the plot (y: the bottom one), the high end in
    // the last; a value between them maps to the nearest pixel, halves to the right and down. PixelToData
    // returns the value in the middle of the pixel, so DataToPixel maps it back to the same pixel. An axis
    // whose view has no extent or is not finite maps every value to the middle of the plot, and every pixel
    // to its low end.
    //
    // GeometryFound when the pixel lies in the plot, 0 when not; x and y are set in either case.
    int PixelToData(int pixelX, int pixelY, double& x, double& y) const;
    // Outside the plot pixels continue up to FarPixel. An infinity maps to the pane's edge, a not-a-number or
    // hole to -1.
    void DataToPixel(double x, double y, int& pixelX, int& pixelY) const;
    // GeometryFound when a point was found, 0 when not: then series and point are 0 and distance is -1. Only
    // points inside the plot count. FocusAny finds the nearest point of the shown series; the distance is in
    // pixels, rounded down. On a tie it takes the earliest series, in it the earliest point; holes are not
    // points. FocusX finds the nearest in x of the first shown series, the earliest on a tie, whatever its y.
    // Outside the plot nothing is found.
    int PickPoint(int pixelX, int pixelY, int focus, int& series, int& point, int& distance) const;
    // Pixel y is -1 for a hole and outside the plot; both are -1 if there is no such point.
    void PointToPixel(int series, int point, int& pixelX, int& pixelY) const;

private:
    int m_type = ChartLines;
    CPaneData m_data;
    std::vector<std::unique_ptr<CSeriesStyle>> m_styles;
};

} // namespace zantroq
