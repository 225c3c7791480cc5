// Four rays from the left anchor with 1, 0.618, 0.5 and 0.382 of the slope between the anchors: ratios of the
// Fibonacci numbers (Leonardo of Pisa, 1202). They always run to the last displayed point; the extendable
// flag is ignored. Chart window's thread.
#pragma once

#include "trends/SlopingTrend.h"

namespace zantroq {

class CFibonacciFanTrend : public CSlopingTrend
{
public:
    CFibonacciFanTrend(int series, int series2, int series3, int series4, int startIndex, double value,
                       const sTrendStyle& style);
    TrendKind Kind() const override { return TrendFibonacciFan; }
    std::vector<int> AllSeries() const override { return {m_series, m_series2, m_series3, m_series4}; }
    void Draw() override;
    int HitDistance(int x, int y) const override;

    int m_series2, m_series3, m_series4;
};

} // namespace zantroq
