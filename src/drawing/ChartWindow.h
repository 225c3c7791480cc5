// The interfaces of the chart window for panes, studies and trendlines, so that drawing/ does not include
// window/. Chart window's thread.
#pragma once

#include "scene/Chart2D.h"
#include "settings/ChartSettings.h"

namespace zantroq {

// The displayed part of the series. Indices count from 0; `last` is `first + shown - 1`.
struct sDisplayRange
{
    int first = 0;
    int last = 0;
    int shown = 120;    // displayed points: an entry of DisplayMaxPoints, or fewer in a shorter series
    int ptsIndex = 3;   // index in DisplayMaxPoints
    int scrollPos = 0;  // last requested scroll position
    int knownCount = 0; // number of points that the panes have
};

// The interface for studies and trendlines.
class IPaneWindow
{
public:
    virtual ~IPaneWindow() = default;

    virtual const sChartSettings& Settings() const = 0;
    virtual const sDisplayRange& Range() const = 0;
    virtual int ChartPixelWidth() const = 0; // client width of the panes, in pixels
    virtual CChart2D& Pane(int number) = 0;  // 0 the price pane, k study k
    virtual bool ResetScale() const = 0;     // a fixed value axis must be fitted in this draw
    virtual void BeginPriceBatch() = 0;      // suspends repainting of the price pane; nested
    virtual void EndPriceBatch() = 0;
};

// The additional interface for the price pane and the draw manager.
class IChartWindow : public IPaneWindow
{
public:
    using IPaneWindow::Range;
    virtual sDisplayRange& Range() = 0;
    // True for a pane that shows only its title: it is minimised and none is maximised, or another pane is
    // maximised.
    virtual bool IsCollapsed(int pane) const = 0;

    // The marked point: a displayed point number, or NoPoint.
    virtual int SelectedPoint() const = 0;
    virtual void SetSelectedPoint(int point) = 0;

    virtual void ClearResetScale() = 0;

    // Suspend repainting of all panes; calls may be nested.
    virtual void BeginBatch() = 0;
    virtual void EndBatch() = 0;

    // The scroll bar's limit: range maximum - page + 1.
    virtual int ScrollLimit() const = 0;
};

// Suspends repainting of all panes for a scope.
class CBatch
{
public:
    explicit CBatch(IChartWindow& window) : m_window(window) { m_window.BeginBatch(); }
    ~CBatch() { m_window.EndBatch(); }
    CBatch(const CBatch&) = delete;
    CBatch& operator=(const CBatch&) = delete;

private:
    IChartWindow& m_window;
};

// Suspends repainting of the price pane for a scope.
class CPriceBatch
{
public:
    explicit CPriceBatch(IPaneWindow& window) : m_window(window) { m_window.BeginPriceBatch(); }
    ~CPriceBatch() { m_window.EndPriceBatch(); }
    CPriceBatch(const CPriceBatch&) = delete;
    CPriceBatch& operator=(const CPriceBatch&) = delete;

private:
    IPaneWindow& m_window;
};

// The trendlines as an interface for the price pane.
class ITrendLayer
{
public:
    virtual ~ITrendLayer() = default;
    // The last series number in use in group 2 of the price pane, at least PriceOverlays.
    virtual int SeriesCount() const = 0;
    virtual int LabelCount() const = 0; // number of labels in use on the price pane, at least PriceLabels
    virtual void DrawAll() = 0;         // draws all lines, list by list
};

} // namespace zantroq
