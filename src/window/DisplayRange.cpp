#include "window/DisplayRange.h"

#include <algorithm>

namespace zantroq {

CDisplayRange::CDisplayRange(sChartSettings& settings, IScrollBar& bar, CStatusText& status,
                             IPaneDrawing& drawing)
    : m_settings(settings), m_bar(bar), m_status(status), m_drawing(drawing)
{
}

void CDisplayRange::SetUp()
{
    m_range.ptsIndex = std::clamp(m_settings.PtsIndex, 0, LastPointsPlace);
    m_range.shown = PointsAtPlace(m_range.ptsIndex);
    m_bar.SetRange(0, m_range.shown);
    m_bar.SetPage(m_range.shown);
    m_bar.SetPosition(0);
    m_bar.SetVisible(false);
    RecomputeScrollStep();
}

void CDisplayRange::ResetShown()
{
    m_range.ptsIndex = std::clamp(m_settings.PtsIndex, 0, LastPointsPlace);
    m_range.shown = PointsAtPlace(m_range.ptsIndex);
    m_bar.SetPage(m_range.shown);
}

void CDisplayRange::RecomputeScrollStep()
{
    if (m_settings.ScrollByItems) {
        m_scrollStep = m_settings.ScrollItems;
        return;
    }
    const double step =
        static_cast<double>(PointsAtPlace(m_range.ptsIndex)) * m_settings.ScrollPercent / 100.0;
    m_scrollStep = step < 1 ? 1 : static_cast<int>(std::min(step, 1e9));
}

void CDisplayRange::OnHScroll(ScrollCode code, int position)
{
    const int limit = m_bar.Limit();
    const int page = m_bar.Page();
    int x = m_bar.Position();
    switch (code) {
    case ScrollCode::LineLeft:
        x = x > 0 ? x - 1 : x;
        break;
    case ScrollCode::LineRight:
        x = x < limit ? x + 1 : x;
        break;
    case ScrollCode::PageLeft:
        x = std::max(0, x - page);
        break;
    case ScrollCode::PageRight:
        x = std::min(limit, x + page);
        break;
    case ScrollCode::ThumbPosition:
    case ScrollCode::ThumbTrack:
        x = position;
        break;
    case ScrollCode::LeftEnd:
        x = 0;
        break;
    case ScrollCode::RightEnd:
        x = limit;
        break;
    case ScrollCode::EndScroll:
        x = m_range.scrollPos;
        break;
    }
    m_range.scrollPos = x;
    // A dragged thumb draws when it is released: the scroll ends with EndScroll.
    if (code == ScrollCode::ThumbPosition || code == ScrollCode::ThumbTrack)
        return;
    m_bar.SetPosition(x);
    m_status.Message("Loading...");
    m_drawing.Draw(x);
    m_status.Message("Ready");
}

void CDisplayRange::ZoomIn()
{
    const int count = m_drawing.Count();
    // The search below needs an entry below the count; otherwise the button is disabled.
    if (m_range.ptsIndex <= 0 || count <= DisplayMaxPoints.front())
        return;
    do {
        --m_range.ptsIndex;
    } while (PointsAtPlace(m_range.ptsIndex) >= count);
    ApplyPoints();
}

void CDisplayRange::ZoomOut()
{
    if (m_range.ptsIndex >= LastPointsPlace)
        return;
    ++m_range.ptsIndex;
    ApplyPoints();
}

void CDisplayRange::ApplyPoints()
{
    m_settings.PtsIndex = m_range.ptsIndex;
    m_range.shown = PointsAtPlace(m_range.ptsIndex);
    m_bar.SetPage(m_range.shown);
    m_range.scrollPos = m_bar.Position();
    m_drawing.Draw(m_bar.Position());
    if (!m_settings.ScrollByItems)
        RecomputeScrollStep();
}

bool CDisplayRange::AtLimit() const
{
    return m_bar.Position() >= std::max(0, m_bar.Limit());
}

void CDisplayRange::MoveBarTo(int count)
{
    m_bar.SetRange(0, count);
    m_bar.SetPosition(count - m_range.shown + 1);
    m_range.scrollPos = m_bar.Position();
}

void CDisplayRange::ShowFirst(int count)
{
    m_firstFill = false;
    MoveBarTo(count);
    m_drawing.FullRedraw();
    m_range.knownCount = count;
}

void CDisplayRange::FollowLiveEdge(int count)
{
    // A chart that was empty at first does not follow by itself. If a deletion lowered the count, new points
    // wait until it is reached again.
    if (m_range.knownCount > count || m_range.knownCount == 0 || !AtLimit())
        return;
    MoveBarTo(count);
    m_drawing.Update(count - m_range.knownCount);
    m_range.knownCount = count;
    ReportPoints(count);
}

void CDisplayRange::ReportPoints(int count)
{
    m_status.Message(std::to_string(count) + " datapoints available.  Displaying " +
                     std::to_string(m_range.shown) + ".");
}

void CDisplayRange::ChangePoints()
{
    ResetShown();
    m_range.scrollPos = m_bar.Position(); // the new page may have moved the bar
    Redraw();
}

void CDisplayRange::Redraw()
{
    m_drawing.Draw(m_bar.Position());
}

} // namespace zantroq
