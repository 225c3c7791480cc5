// Four rays from the left anchor with 1, 0.618, 0.5 and 0.382 of the slope between the anchors (Leonardo of
// Pisa's ratios). They run to the last displayed point whatever the extendable flag says.
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
