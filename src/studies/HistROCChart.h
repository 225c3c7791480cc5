// Rate of change: the momentum as a percentage of the earlier close, drawn as bars. Chart window's thread.
//
// Origin: common in the technical literature; described by Martin J. Pring, "Technical Analysis Explained"
// (1980).
//
// Formula: ROC(i) = (close(i) - close(i - P)) / close(i - P) * 100.
//
// Differences from the textbook, all intended:
// - The first value is at index P + 1; index P has none, although it has a momentum.
// - If the earlier close is 0, the bar is a gap instead of an infinity.
// - The color of a 100 % line is stored, but no such line is drawn.
#pragma once

#include "studies/HistStudyChart.h"

namespace zantroq {

class CHistROCChart : public CHistStudyChart
{
public:
    double CalcROC(int index) const; // the hole value if there is none

protected:
    std::vector<sStudyLine> Lines() const override { return {{1, 1, DataColor()}}; }
    int GroupChartType(int /*group*/) const override { return ChartBars; }
    void Compute(std::int64_t index, int count, std::span<double* const> out) override;
    std::optional<sValueRange> RangeStart() const override { return sValueRange{-100000000.0, 100000000.0}; }
    void FitDrawnAxis(const sValueRange& range) override;
    void FitUpdatedAxis(CLineValues values) override { WidenAxis(values); }
    std::string HeadText() const override;
    std::string MarkedText(int point) const override;
    std::string ReadoutValues(int point) const override;
};

} // namespace zantroq
