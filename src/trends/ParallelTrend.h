// A sloping line and a parallel copy at a price offset. Chart window's thread.
#pragma once

#include "trends/SlopingTrend.h"

namespace zantroq {

class CParallelTrend : public CSlopingTrend
{
public:
    CParallelTrend(int series, int series2, int startIndex, double value, const sTrendStyle& style);
    TrendKind Kind() const override { return TrendParallel; }
    std::vector<int> AllSeries() const override { return {m_series, m_series2}; }
    void Draw() override;
    int HitDistance(int x, int y) const override;
    double GetOffset() const override { return m_offset; }
    void SetOffset(double offset) override { m_offset = offset; }
    void DescribeKind(sTrendRecord& record) const override { record.Offset = m_offset; }

    int m_series2;
    // Price of the copy minus price of the first line; not finite if both anchors have the same index.
    double m_offset = 0.0;
};

} // namespace zantroq
