#include "trends/SpeedResistanceTrend.h"

namespace zantroq {

CSpeedResistanceTrend::CSpeedResistanceTrend(int series, int series2, int series3, int startIndex,
                                             double value, const sTrendStyle& style)
    : CBaseTrend(series, startIndex, value, style),
      CSlopingTrend(series, startIndex, value, style),
      m_series2(series2),
      m_series3(series3)
{
}

void CSpeedResistanceTrend::Draw()
{
    const sSpan span = Span();
    const double slope = span.Slope(), third = slope / 3.0;
    DrawLine(m_series, XVector::Write, Shown(), slope, span.LeftValue, span.Left);
    DrawLine(m_series3, XVector::Keep, Shown(), third, span.LeftValue, span.Left);
    DrawLine(m_series2, XVector::Keep, Shown(), third * 2, span.LeftValue, span.Left);
}

int CSpeedResistanceTrend::HitDistance(int x, int y) const
{
    return NearestRay(x, y);
}

} // namespace zantroq
