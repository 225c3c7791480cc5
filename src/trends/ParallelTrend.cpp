#include "trends/ParallelTrend.h"

namespace zantroq {

CParallelTrend::CParallelTrend(int series, int series2, int startIndex, double value,
                               const sTrendStyle& style)
    : CBaseTrend(series, startIndex, value, style),
      CSlopingTrend(series, startIndex, value, style),
      m_series2(series2)
{
}

void CParallelTrend::Draw()
{
    CSlopingTrend::Draw();
    const sSpan span = Span();
    WriteTrendSeries(*m_owner, m_series2, Look(), XVector::Keep, span.Left,
                     m_extendable ? Shown() : span.Right,
                     [left = span.Left, start = span.LeftValue, slope = span.Slope(),
                      offset = m_offset](int i) { return start + slope * (i - left) + offset; });
}

int CParallelTrend::HitDistance(int x, int y) const
{
    int p1 = 0, p2 = 0;
    if (!AnchorRange(p1, p2))
        return NotHittable;
    return std::min(SegmentDistance(*m_owner, m_series, p1, p2, x, y),
                    SegmentDistance(*m_owner, m_series2, p1, p2, x, y));
}

} // namespace zantroq
