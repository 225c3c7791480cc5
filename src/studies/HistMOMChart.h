// Momentum: the difference between the close and the close one period before, with a zero line. Chart
// window's thread.
//
// Origin: common in the technical literature; described as "momentum" by J. Welles Wilder (1978) and Martin
// J. Pring (1980).
//
// Formula: MOM(i) = close(i) - close(i - P), from index P on.
//
// Differences from the textbook, all intended:
// - After a whole draw, point k of the pane has the value of the bar before it. A live point has the value of
//   its own bar until the next whole draw.
// - With a fixed scale and at least 31 points in the series, a draw does not change the value axis.
#pragma once

#include "studies/HistStudyChart.h"

namespace zantroq {

class CHistMOMChart : public CHistStudyChart
{
public:
    double CalcMomentum(int index) const; // the hole value if there is none

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
