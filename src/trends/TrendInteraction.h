// The mouse state machine with which the user draws and deletes trendlines on the price pane. A mode stays
// armed after a line is finished, so that line after line can be drawn until a right click ends it. Driven by
// events; chart window's thread.
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
    static constexpr int HitLimit = 11; // a distance below this many pixels is a hit

    // Nothing is owned. The prices tell how many points there are.
    CTrendInteraction(IPaneWindow& window, const IPriceSource& prices, CTrendLists& lists, IStatusBar& status,
                      IMessageBox& box, IWindowTimer& timer);

    int State() const { return m_trendState; }
    CBaseTrend* Current() const { return m_currentTrend; }

    // True when the command was one of drawing or deleting trendlines.
    bool OnCommand(int command);
    // Events of a pane control in pane pixels; `button` is a MouseButton. False in state 0, where the window
    // has its own rules, and for a left click outside the price pane.
    bool OnMouseDown(int control, int button, int x, int y);
    bool OnMouseMove(int x, int y);
    void OnFlashTimer();

    // A new chart: back to state 0 without a prompt. The lines themselves go with OnRequest.
    void OnNewChart() { m_trendState = TrendIdle; }
    // The start of a history request: all lines go, an armed mode stays.
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
    CBaseTrend* m_currentTrend =
        nullptr; // the line being drawn, or the one found for deletion; owned by its list
};

} // namespace zantroq
