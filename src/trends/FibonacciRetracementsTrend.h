// The diagonal between two anchors and nine level lines at Fibonacci ratios of their price range, each with a
// percentage label. Levels go down from the higher price, whichever was clicked first, and may be negative.
// They always run from the left anchor to the last displayed point; the extendable flag is ignored. Chart
// window's thread.
#pragma once

#include "trends/SlopingTrend.h"

#include <array>

namespace zantroq {

class CFibonacciRetracementsTrend : public CSlopingTrend
{
public:
    static constexpr int Levels = 9;

    CFibonacciRetracementsTrend(int series, const std::array<int, Levels>& levelSeries, int startIndex,
                                double value, const sTrendStyle& style);
    TrendKind Kind() const override { return TrendFibonacciRetracements; }
    std::vector<int> AllSeries() const override;
    void Draw() override;
    void Erase() override; // also removes its nine labels
    int HitDistance(int x, int y) const override;
    int GetFirstLabel() const override { return m_firstLabel; }
    void SetFirstLabel(int label) override { m_firstLabel = label; }
    void DescribeKind(sTrendRecord& record) const override { record.FirstLabel = m_firstLabel; }

    // Adds nine hidden labels to the price pane. Returns the number of the first.
    static int AddLabels(IPaneWindow& window);

    std::array<int, Levels> m_levelSeries;
    int m_firstLabel = 0;

private:
    double LevelPrice(int level) const;
    void DrawLevel(int level, const sSpan& span);
    // Places the label of a level beside its line. `shownPixelY` is the pixel y of the last label shown so
    // far; it is updated.
    void PlaceLabel(int level, const sSpan& span, int& shownPixelY);
};

} // namespace zantroq
