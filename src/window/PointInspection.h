// The effects of the mouse over a pane while no trendline mode is active: the marker follows the mouse, a
// left click shows the values of a point, a right click offers to delete a bad point. Chart window's thread.
#pragma once

#include "drawing/ChartWindow.h"
#include "platform/WindowServices.h"
#include "window/PaneDrawing.h"
#include "window/StatusText.h"

namespace zantroq {

struct sNearPoint
{
    int Point = 0;       // displayed point number, from 1
    int Distance = 1000; // in pixels; 1000: none
};

// The point near a pixel of the price pane: for ticks the nearest drawn point, for bars the nearest line from
// high to low.
sNearPoint FindNearPoint(const CChart2D& pricePane, bool tickData, int shown, int x, int y);

class CPointInspection
{
public:
    CPointInspection(IChartWindow& window, IPaneDrawing& drawing, CStatusText& status, IMessageBox& box,
                     IScrollBar& bar);

    int SelectedPoint() const { return m_selectedPoint; } // NoPoint: none
    void SetSelectedPoint(int point) { m_selectedPoint = point; }

    void FollowMouse(int pane, int displayedPanes, int x, int y);
    void ShowReadout(int x, int y);
    // Returns false if no point is near; the context menu opens then.
    bool OfferDeletion(int x, int y);

private:
    bool IsTickData() const { return m_window.Settings().Request.DataType == TickData; }
    sNearPoint NearPoint(int x, int y) const; // only a point that is in the series
    int PointUnder(int pane, int x, int y);   // 0: none
    std::string DeletionText(int index) const;

    IChartWindow& m_window;
    IPaneDrawing& m_drawing;
    CStatusText& m_status;
    IMessageBox& m_box;
    IScrollBar& m_bar;
    int m_selectedPoint = NoPoint;
};

} // namespace zantroq
