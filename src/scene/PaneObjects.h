// The objects of a pane's tree. Each holds plain values under the name that the rest of the system uses for
// it and tells its scene of every change. All on the chart window's thread.
#pragma once

#include "scene/PaneAxes.h"
#include "scene/PaneData.h"
#include "scene/PaneLabels.h"
#include "scene/PaneLooks.h"

#include <memory>
#include <string>
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

inline constexpr int GeometryFound =
    -100;                                // the answer of PixelToData and PickPoint when they found something
inline constexpr int FarPixel = 1 << 20; // no pixel of a pane lies further out than this
inline constexpr int FocusAny = 3;       // PickPoint: the nearest point of any series
inline constexpr int FocusX = 1;         // PickPoint: the nearest in x only

struct sPixelRect
{
    int Left = 0, Top = 0, Right = 0, Bottom = 0; // Right and Bottom are exclusive
    int Width() const { return Right - Left; }
    int Height() const { return Bottom - Top; }
};

inline constexpr int NoPoint = -1000000; // a marker that stands nowhere

class CPaneMarker : public CPaneNode
{
public:
    explicit CPaneMarker(CChart2D* chart) : CPaneNode(chart), m_line(chart) {}
    void SetShown(bool shown) { Assign(m_shown, shown); }
    bool Shown() const { return m_shown; }
    void SetLock(int lock) { m_lock = lock; } // always 1: locked to a point
    int Lock() const { return m_lock; }
    CLineLook& LineLook() { return m_line; }
    const CLineLook& LineLook() const { return m_line; }
    void SetPoint(int point) { Assign(m_point, point); }
    int Point() const { return m_point; } // NoPoint: none

private:
    bool m_shown = false;
    int m_lock = 1, m_point = NoPoint;
    CLineLook m_line;
};

class CPaneArea : public CPaneNode
{
public:
    explicit CPaneArea(CChart2D* chart)
        : CPaneNode(chart),
          m_box(chart),
          m_interior(chart),
          m_frame(chart),
          m_bar(chart),
          m_candle(chart),
          m_marker(chart),
          m_axes(chart)
    {
    }
    CAreaBox& AreaBox() { return m_box; }
    CPaneInterior& Interior() { return m_interior; }
    CPlotFrame& PlotFrame() { return m_frame; }
    CBarLook& BarLook() { return m_bar; }
    CCandleLook& CandleLook() { return m_candle; }
    CPaneMarker& PaneMarkers(const std::string& name); // "x"; std::invalid_argument otherwise
    CPaneAxes& PaneAxes() { return m_axes; }
    const CAreaBox& AreaBox() const { return m_box; }
    const CPaneInterior& Interior() const { return m_interior; }
    const CPlotFrame& PlotFrame() const { return m_frame; }
    const CBarLook& BarLook() const { return m_bar; }
    const CCandleLook& CandleLook() const { return m_candle; }
    const CPaneMarker& Marker() const { return m_marker; }
    const CPaneAxes& PaneAxes() const { return m_axes; }
    // What lies around and behind the plot, given the pane's own colors.
    ColorValue Background(const CPaneInterior& pane) const
    {
        return (m_interior.HasBackground() ? m_interior : pane).Background();
    }
    ColorValue PlotBackground(const CPaneInterior& pane) const
    {
        return m_frame.Interior().HasBackground() ? m_frame.Interior().Background() : Background(pane);
    }

private:
    CAreaBox m_box;
    CPaneInterior m_interior;
    CPlotFrame m_frame;
    CBarLook m_bar;
    CCandleLook m_candle;
    CPaneMarker m_marker;
    CPaneAxes m_axes;
};

class CPaneGroup : public CPaneNode
{
public:
    explicit CPaneGroup(CChart2D* chart) : CPaneNode(chart), m_data(chart) {}
    void SetChartType(int type) { Assign(m_type, type); }
    int Type() const { return m_type; }
    CPaneData& PaneData() { return m_data; }
    const CPaneData& PaneData() const { return m_data; }
    void CommitPaneData()
    {
        TouchData();
    } // the data object put back: commits bulk loads of several vectors at once
    CSeriesStyle& SeriesStyles(int series);          // from 1; a style exists as soon as it is asked for
    const CSeriesStyle* FindStyle(int series) const; // null where none was ever asked for
    void RemoveStyles();
    int StyleCount() const { return static_cast<int>(m_styles.size()); }

    // The low end of an axis's view lies in the first pixel of the plot (y: the bottom one), the high end in
    // the last; between them a value goes to the nearest pixel, halves to the right and down. PixelToData
    // gives the value in the middle of the pixel, so DataToPixel leads back to the pixel it came from. An
    // axis whose view has no extent or is not finite maps every value to the middle of the plot, and every
    // pixel to its low end.
    //
    // GeometryFound when the pixel lies in the plot region, 0 when not; x and y are set in either case.
    int PixelToData(int pixelX, int pixelY, double& x, double& y) const;
    // Off the plot the pixels go on as far as FarPixel. An infinity gives the pane's edge, a not-a-number or
    // hole -1.
    void DataToPixel(double x, double y, int& pixelX, int& pixelY) const;
    // GeometryFound when a point was found, 0 when not: then series and point are 0 and distance is -1. Only
    // points inside the plot count. FocusAny takes the nearest point of the shown series in whole pixels, cut
    // to an integer; on a tie the earliest series, in it the earliest point; holes are not points. FocusX
    // takes the nearest in x of the first shown series, the earliest on a tie, whatever its y. Outside the
    // plot region nothing is found.
    int PickPoint(int pixelX, int pixelY, int focus, int& series, int& point, int& distance) const;
    // Pixel y is -1 where the point is a hole or off the plot; both are -1 where there is no such point.
    void PointToPixel(int series, int point, int& pixelX, int& pixelY) const;

private:
    friend class CChart2D;
    friend struct sSceneAccess;
    int m_type = ChartLines;
    CPaneData m_data;
    std::vector<std::unique_ptr<CSeriesStyle>> m_styles;
};

} // namespace zantroq
