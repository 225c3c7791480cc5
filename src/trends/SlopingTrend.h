// A straight line through two anchors; an extendable one goes on with its slope to the last displayed point,
// never to the left.
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

    double m_endValue; // the price at m_endIndex; the first click's until the mouse moves

protected:
    // The least distance to the rays of a kind whose every series runs from the left anchor to the last
    // point.
    int NearestRay(int x, int y) const;
    // vL + slope * (i - pL) from the left anchor to position `right`, plus an offset.
    void DrawLine(int series, XVector x, int right, double slope, double leftValue, int left);
};

} // namespace zantroq
