// Andrew's pitchfork (Alan H. Andrews): a base line through two anchors, a handle from a third point to the
// middle of the base line, and two prongs with the handle's slope through the ends of the base line. Prongs
// always run to the last displayed point; the extendable flag is ignored. Chart window's thread.
#pragma once

#include "trends/SlopingTrend.h"

namespace zantroq {

class CPitchforkTrend : public CSlopingTrend
{
public:
    // series2 is for the handle, series3 and series4 are for the prongs through the left and the right
    // anchor.
    CPitchforkTrend(int series, int series2, int series3, int series4, int startIndex, double value,
                    const sTrendStyle& style);
    TrendKind Kind() const override { return TrendPitchfork; }
    std::vector<int> AllSeries() const override { return {m_series, m_series2, m_series3, m_series4}; }
    void Draw() override;
    int HitDistance(int x, int y) const override;
    void SetThirdPoint(int index, double value) override;
    void DescribeKind(sTrendRecord& record) const override
    {
        record.ThirdIndex = m_thirdIndex;
        record.ThirdValue = m_thirdValue;
    }

    int m_series2;
    int m_thirdIndex = 0;
    double m_thirdValue = -1.0; // below 0: no third point yet, so no handle and no prongs
    int m_series3, m_series4;

private:
    void HandlePositions(int& third, int& middle) const;
};

} // namespace zantroq
