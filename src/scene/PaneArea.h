// The area of a pane: its size, plot, axes and marker. Plain values that notify their scene of every change.
// Chart window's thread.
#pragma once

#include "scene/PaneAxes.h"
#include "scene/PaneLooks.h"

#include <string>

namespace zantroq {

inline constexpr int NoPoint = -1000000; // the position of a marker without a point

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
    // The colors around the plot and of the plot, given the pane's own colors.
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

} // namespace zantroq
