// The state machine for drawing and deleting trendlines on the price pane with the mouse. A mode stays active
// after a line is finished, so that further lines can be drawn, until a right click ends it. Driven by
// events. Chart window's thread.
#pragma once

#include "drawing/PaneControls.h"
#include "drawing/PriceSource.h"
#include "platform/WindowServices.h"
#include "trends/TrendLists.h"
#include "trends/TrendPrompts.h"

namespace zantroq {

class CTrendInteraction
{
public:
    static constexpr int FlashMilliseconds = 500;
    static constexpr int HitLimit = 11; // a distance below this is a hit, in pixels

    // Nothing is owned. `prices` gives the number of points.
    CTrendInteraction(IPaneWindow& window, const IPriceSource& prices, CTrendLists& lists, IStatusBar& status,
                      IMessageBox& box, IWindowTimer& timer);

    int State() const { return m_trendState; }
    CBaseTrend* Current() const { return m_currentTrend; }

    // Returns true if the command belongs to drawing or deleting trendlines.
    bool OnCommand(int command);
    // Events of a pane control in pane pixels; `button` is a MouseButton. False in state 0, where the window
    // has its own rules, and for a left click outside the price pane.
    bool OnMouseDown(int control, int button, int x, int y);
    bool OnMouseMove(int x, int y);
    void OnFlashTimer();

    // Call at a new chart: returns to state 0 without a prompt. OnRequest removes the lines.
    void OnNewChart() { m_trendState = TrendIdle; }
    // Call at the start of a history request: removes all lines; an active mode stays.
    void OnRequest();

private:
    void OnLeftClick(int x, int y);
    void OnRightClick();
    void OnDeleteClick(int x, int y);
    void DeleteAll();
    void StartLine(int x, int y);
    void FinishLine();
    CBaseTrend* MakeTrend(TrendKind kind, int index, double value);
    void PointFromPixels(int x, int y, int* index, double* value) const;
    bool MoveEndPoint(int index, int xi, double x, double y);
    bool MoveSecondLine(double x, double y);
    bool MoveThirdPoint(int index, int xi, double x, double y);
    void Prompt(const char* text) { m_status.SetPart(0, text); }

    IPaneWindow& m_window;
    const IPriceSource& m_prices;
    CTrendLists& m_trendLists;
    IStatusBar& m_status;
    IMessageBox& m_box;
    IWindowTimer& m_timer;
    int m_trendState = TrendIdle;
    // The line being drawn, or the line to be deleted; owned by its list.
    CBaseTrend* m_currentTrend = nullptr;
};

} // namespace zantroq
