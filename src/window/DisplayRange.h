// The displayed part of the series: the scroll bar moves it, the zoom narrows and widens it, and it follows
// new data while it stands at the live edge. Chart window's thread.
//
// A scroll position s means that the rightmost point shown is index shown - 1 + s.
#pragma once

#include "drawing/ChartWindow.h"
#include "platform/WindowServices.h"
#include "window/PaneDrawing.h"
#include "window/StatusText.h"
#include "window/WindowCommands.h"

namespace zantroq {

class CDisplayRange
{
public:
    CDisplayRange(sChartSettings& settings, IScrollBar& bar, CStatusText& status, IPaneDrawing& drawing);

    sDisplayRange& Range() { return m_range; }
    const sDisplayRange& Range() const { return m_range; }
    bool FirstFill() const { return m_firstFill; }
    void ExpectFirstFill() { m_firstFill = true; }

    void SetUp();      // at the window's start: shown and bar from "PTS INDEX", bar hidden
    void ResetShown(); // at a new chart: shown and the bar's page from "PTS INDEX"
    void OnHScroll(ScrollCode code, int position);
    void ZoomIn();
    void ZoomOut();
    void RecomputeScrollStep();
    // Kept with the settings; the bar's own steps are 1 and the page.
    int ScrollStep() const { return m_scrollStep; }

    // The timer's readings of a series of `count` points.
    void NoteLoading(int count) { m_range.knownCount = count; }
    void ShowFirst(int count); // sets the bar and has everything drawn
    void FollowLiveEdge(int count);
    void ReportPoints(int count); // "%d datapoints available.  Displaying %d."
    bool AtLimit() const;         // the bar stands at its right end, as a short series always does

    void ChangePoints(); // takes a new "PTS INDEX" and draws where the bar stands then
    void Redraw();       // draws where the bar stands

private:
    void ApplyPoints(); // after a change of ptsIndex
    void MoveBarTo(int count);

    sChartSettings& m_settings;
    IScrollBar& m_bar;
    CStatusText& m_status;
    IPaneDrawing& m_drawing;
    sDisplayRange m_range;
    int m_scrollStep = 1;
    bool m_firstFill = false;
};

} // namespace zantroq
