#include "trends/PitchforkTrend.h"

namespace zantroq {

CPitchforkTrend::CPitchforkTrend(int series, int series2, int series3, int series4, int startIndex,
                                 double value, const sTrendStyle& style)
    : CBaseTrend(series, startIndex, value, style),
      CSlopingTrend(series, startIndex, value, style),
      m_series2(series2),
      m_series3(series3),
      m_series4(series4)
{
}

void CPitchforkTrend::SetThirdPoint(int index, double value)
{
    m_thirdIndex = index;
    m_thirdValue = value;
}

void CPitchforkTrend::HandlePositions(int& third, int& middle) const
{
    MapThirdPoint(m_thirdIndex, (m_startIndex + m_endIndex) / 2, &third, &middle);
    third = DisplayPosition(*m_owner, third);
    middle = DisplayPosition(*m_owner, middle);
}

void CPitchforkTrend::Draw()
{
    const sSpan span = Span();
    DrawLine(m_series, XVector::Write, span.Right, span.Slope(), span.LeftValue, span.Left);
    if (m_thirdValue < 0.0)
        return;
    int third = 0, middle = 0;
    HandlePositions(third, middle);
    // The middle may lie between two points. Positions may be negative, so the remainder may be -1 or 1.
    const double fraction = ((m_startIndex + m_endIndex) % 2 != 0) ? 0.5 : 0.0;
    const double fork = ((m_value + m_endValue) * 0.5 - m_thirdValue) / (middle + fraction - third);
    DrawLine(m_series2, XVector::Keep, middle, fork, m_thirdValue, third);
    DrawLine(m_series3, XVector::Keep, Shown(), fork, span.LeftValue, span.Left);
    DrawLine(m_series4, XVector::Keep, Shown(), fork, span.RightValue, span.Right);
}

int CPitchforkTrend::HitDistance(int x, int y) const
{
    int best = NotHittable;
    const int shown = Shown();
    const auto consider = [&](int series, int p1, int p2) {
        if (p1 >= shown || p2 < 2)
            return;
        best = std::min(best, SegmentDistance(*m_owner, series, std::max(p1, 1), std::min(p2, shown), x, y));
    };
    const sSpan span = Span();
    consider(m_series, span.Left, span.Right);
    int third = 0, middle = 0;
    HandlePositions(third, middle);
    consider(m_series2, third, middle);
    consider(m_series3, DisplayPosition(*m_owner, m_startIndex), shown);
    consider(m_series4, DisplayPosition(*m_owner, m_endIndex), shown);
    return best;
}

} // namespace zantroq
