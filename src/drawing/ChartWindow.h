// What panes, studies and trendlines need of their chart window, as interfaces, so that drawing/ does not
// include window/. Chart window's thread.
#pragma once

#include "scene/Chart2D.h"
#include "settings/ChartSettings.h"

namespace zantroq {

// The displayed part of the series. Indices count from 0; `last` is `first + shown - 1`.
struct sDisplayRange
{
    int first = 0;
    int last = 0;
    int shown = 120;    // points shown: an entry of DisplayMaxPoints, or fewer for a shorter series
    int ptsIndex = 3;   // place in DisplayMaxPoints
    int scrollPos = 0;  // the scroll position last asked for
    int knownCount = 0; // points that the panes have taken in
};

// What a study or a trendline needs of its window.
class IPaneWindow
{
public:
    virtual ~IPaneWindow() = default;

    virtual const sChartSettings& Settings() const = 0;
    virtual const sDisplayRange& Range() const = 0;
    virtual int ChartPixelWidth() const = 0; // client width of the panes, in pixels
    virtual CChart2D& Pane(int number) = 0;  // 0 the price pane, k study k
    virtual bool ResetScale() const = 0;     // a fixed value axis fits itself in this draw
    virtual void BeginPriceBatch() = 0;      // suspends repainting of the price pane; nested
    virtual void EndPriceBatch() = 0;
};

// What the price pane and the draw manager need besides.
class IChartWindow : public IPaneWindow
{
public:
    using IPaneWindow::Range;
    virtual sDisplayRange& Range() = 0;
    // True for a pane that shows only its title: minimised with none maximised, or another pane is maximised.
    virtual bool IsCollapsed(int pane) const = 0;

    // The marker: the displayed point number, or NoPoint.
    virtual int SelectedPoint() const = 0;
    virtual void SetSelectedPoint(int point) = 0;

    virtual void ClearResetScale() = 0;

    // Repaint suspension of all panes, nested.
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

// The trendlines as the price pane sees them.
class ITrendLayer
{
public:
    virtual ~ITrendLayer() = default;
    // The last series number in use in group 2 of the price pane, at least PriceOverlays.
    virtual int SeriesCount() const = 0;
    virtual int LabelCount() const = 0; // labels in use on the price pane, at least PriceLabels
    virtual void DrawAll() = 0;         // every line, list by list
};

} // namespace zantroq
