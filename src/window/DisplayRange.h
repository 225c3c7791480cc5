// The displayed range of the series: the scroll bar moves it, the zoom changes its size, and it follows new
// data while it is at the live edge. Chart window's thread.
//
// At scroll position s the rightmost displayed point has index shown - 1 + s.
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

    void SetUp();      // at the window's start: range and bar from "PTS INDEX", bar hidden
    void ResetShown(); // at a new chart: range and page of the bar from "PTS INDEX"
    void OnHScroll(ScrollCode code, int position);
    void ZoomIn();
    void ZoomOut();
    void RecomputeScrollStep();
    // Follows the settings; the scroll bar itself uses steps of 1 and of a page.
    int ScrollStep() const { return m_scrollStep; }

    // The timer has read `count` points from the series.
    void NoteLoading(int count) { m_range.knownCount = count; }
    void ShowFirst(int count); // sets the bar and draws everything
    void FollowLiveEdge(int count);
    void ReportPoints(int count); // "%d datapoints available.  Displaying %d."
    bool AtLimit() const;         // the bar is at its right end, as it always is for a short series

    void ChangePoints(); // applies a new "PTS INDEX" and draws at the new scroll position
    void Redraw();       // draws at the scroll position

private:
    void ApplyPoints(); // call after a change of ptsIndex
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
