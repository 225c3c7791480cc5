#include "window/PointInspection.h"

#include "drawing/PricePaneNumbers.h"
#include "window/WindowTexts.h"

#include <algorithm>
#include <cmath>

namespace zantroq {

namespace {

constexpr int FollowDistance = 4;   // beyond it, the nearest point in x is used
constexpr int ReadoutDistance = 10; // a click closer than this shows the readout
constexpr int DeleteDistance = 9;   // a right click further away opens the menu

// Pixels from (x, y) to the bar from (x1, y1) to (x2, y2), its ends included; 1000 at most.
int BarDistance(int x, int y, int x1, int y1, int x2, int y2)
{
    const double dx = static_cast<double>(x2) - x1, dy = static_cast<double>(y2) - y1;
    const double mx = static_cast<double>(x) - x1, my = static_cast<double>(y) - y1;
    double t = 0;
    if (dx != 0 || dy != 0)
        t = std::clamp((mx * dx + my * dy) / (dx * dx + dy * dy), 0.0, 1.0);
    const double distance = std::hypot(mx - t * dx, my - t * dy);
    return distance < 1000 ? static_cast<int>(distance) : 1000;
}

sNearPoint NearestBar(const CPaneGroup& group, int shown, int x, int y)
{
    sNearPoint nearest;
    const CPaneData& data = group.PaneData();
    for (int point = 1; point <= shown; ++point) {
        const double high = data.PointY(HighSeries, point), low = data.PointY(LowSeries, point);
        if (high == HoleValue || low == HoleValue)
            continue;
        int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
        group.DataToPixel(data.PointX(HighSeries, point), high, x1, y1);
        group.DataToPixel(data.PointX(HighSeries, point), low, x2, y2);
        const int distance = BarDistance(x, y, x1, y1, x2, y2);
        if (distance < nearest.Distance)
            nearest = {point, distance};
    }
    return nearest;
}

int ReadoutSide(int x, int y, int width, int height)
{
    if (x > width / 2)
        return y < height / 2 ? AnchorBelowLeft : AnchorAboveLeft;
    return y < height / 2 ? AnchorBelowRight : AnchorAboveRight;
}

} // namespace

sNearPoint FindNearPoint(const CChart2D& pricePane, bool tickData, int shown, int x, int y)
{
    const CPaneGroup& group = pricePane.PaneGroups(1);
    if (!tickData)
        return NearestBar(group, std::min(shown, group.PaneData().PointCount(HighSeries)), x, y);
    int series = 0, point = 0, distance = 0;
    if (group.PickPoint(x, y, FocusAny, series, point, distance) != GeometryFound || point < 1)
        return {};
    return {point, distance};
}

CPointInspection::CPointInspection(IChartWindow& window, IPaneDrawing& drawing, CStatusText& status,
                                   IMessageBox& box, IScrollBar& bar)
    : m_window(window), m_drawing(drawing), m_status(status), m_box(box), m_bar(bar)
{
}

sNearPoint CPointInspection::NearPoint(int x, int y) const
{
    const sDisplayRange& range = m_window.Range();
    const sNearPoint near = FindNearPoint(m_window.Pane(0), IsTickData(), range.shown, x, y);
    // The panes may still show the previous chart, whose points are gone.
    return range.first - 1 + near.Point < m_drawing.Count() ? near : sNearPoint();
}

int CPointInspection::PointUnder(int pane, int x, int y)
{
    if (m_drawing.Count() == 0)
        return 0;
    const CPaneGroup& group = m_window.Pane(pane).PaneGroups(1);
    int series = 0, point = 0, distance = 0;
    if (pane == 0 && group.PickPoint(x, y, FocusAny, series, point, distance) == GeometryFound &&
        distance <= FollowDistance && series >= 1 && point >= 1)
        return point;
    if (group.PickPoint(x, y, FocusX, series, point, distance) == GeometryFound && point >= 1)
        return point;
    return 0;
}

void CPointInspection::FollowMouse(int pane, int displayedPanes, int x, int y)
{
    const int point = PointUnder(pane, x, y);
    if (point == 0 || point == m_selectedPoint)
        return;
    m_selectedPoint = point;
    const CPriceBatch batch(m_window);
    for (int k = 0; k < displayedPanes; ++k)
        m_window.Pane(k).PaneArea().PaneMarkers("x").SetPoint(point);
    m_drawing.RefreshTitles();
}

void CPointInspection::ShowReadout(int x, int y)
{
    CChart2D& pane = m_window.Pane(0);
    if (pane.PaneLabels().Count() < ReadoutLabel)
        return;
    CPaneLabel& label = pane.PaneLabels().Item(ReadoutLabel);
    label.SetShown(false);
    const sNearPoint near = NearPoint(x, y);
    if (near.Distance >= ReadoutDistance)
        return;
    m_status.Message("Making Info Text ...");
    const std::string text = m_drawing.MakeInfoText(near.Point);
    const CPaneGroup& group = pane.PaneGroups(1);
    const double dataX = group.PaneData().PointX(HighSeries, near.Point);
    const double dataY = group.PaneData().PointY(HighSeries, near.Point);
    int pixelX = 0, pixelY = 0;
    group.DataToPixel(dataX, dataY, pixelX, pixelY);
    label.SetDataAnchor(dataX, dataY);
    label.SetPixelAnchor(pixelX, pixelY);
    label.SetAnchorSide(ReadoutSide(pixelX, pixelY, pane.PixelWidth(), pane.PixelHeight()));
    label.SetText(text);
    label.SetShown(true);
    m_status.Message("Ready");
}

bool CPointInspection::OfferDeletion(int x, int y)
{
    const sNearPoint near = NearPoint(x, y);
    if (near.Distance > DeleteDistance)
        return false;
    const int index = m_window.Range().first - 1 + near.Point;
    const std::string caption = IsTickData() ? "Tick deletion" : "Interval deletion";
    // The window is active while the message box is open: live points may arrive, and a host may request
    // another chart, to which the answer must not apply.
    const int chart = m_drawing.ChartNumber();
    if (m_box.Ask(DeletionText(index), caption, BoxButtons::YesNo, BoxIcon::Question) == BoxAnswer::Yes &&
        chart == m_drawing.ChartNumber() && index < m_drawing.Count()) {
        m_drawing.DeletePoint(index);
        m_drawing.Draw(m_bar.Position());
    }
    return true;
}

std::string CPointInspection::DeletionText(int index) const
{
    sHIST_DATA point;
    m_drawing.GetPoint(index, point);
    const int dataType = m_window.Settings().Request.DataType;
    if (dataType == TickData)
        return TickDeletionText(point, m_drawing.MinuteTime(index), m_drawing.Date(index));
    const std::string prices =
        "Hi: " + m_drawing.PriceText(point.High) + ", Low: " + m_drawing.PriceText(point.Low) +
        ", Open: " + m_drawing.PriceText(point.Open) + ", Close: " + m_drawing.PriceText(point.Close);
    return IntervalDeletionText(dataType, prices, m_drawing.Time(index), m_drawing.Date(index));
}

} // namespace zantroq
