#include "trends/SlopingTrend.h"

namespace zantroq {

CSlopingTrend::CSlopingTrend(int series, int startIndex, double value, const sTrendStyle& style)
    : CBaseTrend(series, startIndex, value, style), m_endValue(value)
{
}

void CSlopingTrend::DrawLine(int series, XVector x, int right, double slope, double leftValue, int left)
{
    WriteTrendSeries(*m_owner, series, Look(), x, left, right,
                     [slope, leftValue, left](int i) { return leftValue + slope * (i - left); });
}

void CSlopingTrend::Draw()
{
    const sSpan span = Span();
    DrawLine(m_series, XVector::Write, m_extendable ? Shown() : span.Right, span.Slope(), span.LeftValue,
             span.Left);
}

int CSlopingTrend::HitDistance(int x, int y) const
{
    int p1 = 0, p2 = 0;
    return AnchorRange(p1, p2) ? SegmentDistance(*m_owner, m_series, p1, p2, x, y) : NotHittable;
}

int CSlopingTrend::NearestRay(int x, int y) const
{
    int p1 = 0, p2 = 0;
    if (!RayRange(p1, p2))
        return NotHittable;
    int best = NotHittable;
    for (int series : AllSeries())
        best = std::min(best, SegmentDistance(*m_owner, series, p1, p2, x, y));
    return best;
}

} // namespace zantroq
