// A straight line through two anchors. An extendable line continues with its slope to the last displayed
// point, never to the left. Also the base of the kinds with two anchors and a slope. Chart window's thread.
#pragma once

#include "trends/BaseTrend.h"

namespace zantroq {

class CSlopingTrend : public virtual CBaseTrend
{
public:
    CSlopingTrend(int series, int startIndex, double value, const sTrendStyle& style);
    TrendKind Kind() const override { return TrendSloping; }
    void Draw() override;
    int HitDistance(int x, int y) const override;
    double GetEndValue() const override { return m_endValue; }
    void SetEndValue(double value) override { m_endValue = value; }

    double m_endValue; // price at m_endIndex; the first click's price until the mouse moves

protected:
    // The smallest distance to the rays of a kind whose series all run from the left anchor to the last
    // point.
    int NearestRay(int x, int y) const;
    // Writes leftValue + slope * (i - left) at positions `left` to `right` of a series.
    void DrawLine(int series, XVector x, int right, double slope, double leftValue, int left);
};

} // namespace zantroq
