#include "trends/FibonacciFanTrend.h"

#include <array>
#include <utility>

namespace zantroq {

CFibonacciFanTrend::CFibonacciFanTrend(int series, int series2, int series3, int series4, int startIndex,
                                       double value, const sTrendStyle& style)
    : CBaseTrend(series, startIndex, value, style),
      CSlopingTrend(series, startIndex, value, style),
      m_series2(series2),
      m_series3(series3),
      m_series4(series4)
{
}

void CFibonacciFanTrend::Draw()
{
    const sSpan span = Span();
    const double slope = span.Slope();
    const std::array<std::pair<int, double>, 4> rays{
        {{m_series, 1.0}, {m_series2, 0.618}, {m_series3, 0.5}, {m_series4, 0.382}}};
    for (const auto& [series, factor] : rays)
        DrawLine(series, series == m_series ? XVector::Write : XVector::Keep, Shown(), factor * slope,
                 span.LeftValue, span.Left);
}

int CFibonacciFanTrend::HitDistance(int x, int y) const
{
    return NearestRay(x, y);
}

} // namespace zantroq
