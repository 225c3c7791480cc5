// Momentum: the difference of the close from its value a period back, with a zero line.
//
// Origin: common to the technical literature; described as "momentum" by J. Welles Wilder (1978) and Martin
// J. Pring (1980). Formula: MOM(i) = close(i) - close(i - P), from index P on.
//
// Differences from the textbook, all intended:
// - After a whole draw the value at point k of the pane is that of the bar before it. A live point is not
// late: it has the
//   value of its own bar until the next whole draw.
// - With a fixed scale and at least 31 points in the series a draw leaves the value axis as it is.
#pragma once

#include "studies/HistStudyChart.h"

namespace zantroq {

class CHistMOMChart : public CHistStudyChart
{
public:
    double CalcMomentum(int index) const; // the hole value where there is none

protected:
    std::vector<sStudyLine> Lines() const override;
    int DrawLag() const override { return 1; }
    void Compute(std::int64_t index, int count, std::span<double* const> out) override;
    std::optional<sValueRange> RangeStart() const override { return sValueRange{-100000000.0, 100000000.0}; }
    void FitDrawnAxis(const sValueRange& range) override;
    void FitUpdatedAxis(CLineValues values) override { WidenAxis(values); }
    std::string HeadText() const override;
    std::string MarkedText(int point) const override;
    std::string ReadoutValues(int point) const override;
};

} // namespace zantroq
