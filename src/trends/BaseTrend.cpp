#include "trends/BaseTrend.h"

#include <utility>

namespace zantroq {

CBaseTrend::CBaseTrend(int series, int startIndex, double value, const sTrendStyle& style)
    : m_series(series),
      m_startIndex(startIndex),
      m_endIndex(startIndex),
      m_value(value),
      m_color(style.Color),
      m_width(1),
      m_extendable(style.Extendable)
{
}

void CBaseTrend::Draw()
{
    const sSpan span = Span();
    const int right = m_extendable ? Shown() : span.Right;
    WriteTrendSeries(*m_owner, m_series, Look(), XVector::Write, span.Left, right,
                     [value = m_value](int) { return value; });
}

void CBaseTrend::Erase()
{
    CPriceBatch batch(*m_owner);
    for (int series : AllSeries())
        EraseTrendSeries(*m_owner, series);
}

int CBaseTrend::HitDistance(int x, int y) const
{
    int p1 = 0, p2 = 0;
    GetIndexes(&p1, &p2);
    p1 = DisplayPosition(*m_owner, p1);
    p2 = DisplayPosition(*m_owner, p2);
    if (p1 > p2)
        std::swap(p1, p2);
    const int shown = Shown();
    if (p1 >= shown)
        return NotHittable;
    p1 = std::max(p1, 1);
    if (m_extendable)
        p2 = shown;
    if (p2 <= 1)
        return NotHittable;
    return LevelDistance(*m_owner, m_series, p1, std::min(p2, shown), x, y);
}

void CBaseTrend::MapThirdPoint(int a, int b, int* outA, int* outB) const
{
    *outA = a;
    *outB = b;
}

void CBaseTrend::GetIndexes(int* start, int* end) const
{
    *start = m_startIndex;
    *end = m_endIndex;
}

int CBaseTrend::GetSeries(int number) const
{
    const std::vector<int> all = AllSeries();
    return number >= 1 && number <= static_cast<int>(all.size()) ? all[static_cast<std::size_t>(number - 1)]
                                                                 : 0;
}

void CBaseTrend::SetMarkers(bool on)
{
    for (int series : AllSeries())
        m_owner->Pane(0).PaneGroups(2).SeriesStyles(series).SymbolLook().SetShape(on ? SymbolMark
                                                                                     : SymbolNone);
}

void CBaseTrend::ToggleMarkers()
{
    SetMarkers(m_owner->Pane(0).PaneGroups(2).SeriesStyles(m_series).SymbolLook().Shape() == SymbolNone);
}

CBaseTrend::sSpan CBaseTrend::Span() const
{
    int start = 0, end = 0;
    GetIndexes(&start, &end);
    const int startPosition = DisplayPosition(*m_owner, start);
    const int endPosition = DisplayPosition(*m_owner, end);
    if (startPosition == endPosition)
        return {startPosition, startPosition, m_value, m_value};
    if (startPosition < endPosition)
        return {startPosition, endPosition, m_value, GetEndValue()};
    return {endPosition, startPosition, GetEndValue(), m_value};
}

bool CBaseTrend::AnchorRange(int& p1, int& p2) const
{
    const sSpan span = Span();
    p1 = span.Left;
    p2 = span.Right;
    const int shown = Shown();
    if (p1 >= shown)
        return false;
    p1 = std::max(p1, 1);
    if (m_extendable)
        p2 = shown;
    else if (p2 <= 1)
        return false;
    p2 = std::min(p2, shown);
    return true;
}

bool CBaseTrend::RayRange(int& p1, int& p2) const
{
    p1 = Span().Left;
    return ClipRayRange(*m_owner, p1, p2);
}

} // namespace zantroq
