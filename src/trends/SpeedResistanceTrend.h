// Three rays from the left anchor with 1, two thirds and one third of the slope between the anchors: speed
// resistance lines (Edson Gould). They always run to the last displayed point; the extendable flag is
// ignored. Chart window's thread.
#pragma once

#include "trends/SlopingTrend.h"

namespace zantroq {

class CSpeedResistanceTrend : public CSlopingTrend
{
public:
    CSpeedResistanceTrend(int series, int series2, int series3, int startIndex, double value,
                          const sTrendStyle& style);
    TrendKind Kind() const override { return TrendSpeedResistance; }
    std::vector<int> AllSeries() const override { return {m_series, m_series2, m_series3}; }
    void Draw() override;
    int HitDistance(int x, int y) const override;

    int m_series2, m_series3; // two thirds and one third of the slope
};

} // namespace zantroq
