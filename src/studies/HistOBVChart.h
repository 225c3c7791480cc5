// On-balance volume of a window, with a zero line. Chart window's thread.
//
// Origin: Joseph E. Granville, "New Key to Stock Market Profits" (1963).
//
// Formula: OBV(i) is a sum over the last P bars up to i. It adds the volume of a bar whose close is above the
// close before and subtracts the volume of a bar whose close is below it; an unchanged close adds nothing.
//
// Difference from the textbook, intended: the sum covers the last P bars instead of all bars from the start
// of the data. The first value is at index P. With a period of 0 or less the sum is 0 at every point.
#pragma once

#include "studies/HistStudyChart.h"

namespace zantroq {

class CHistOBVChart : public CHistStudyChart
{
public:
    double CalcOBV(int index) const; // the hole value if there is none

protected:
    std::vector<sStudyLine> Lines() const override;
    void Compute(std::int64_t index, int count, std::span<double* const> out) override;
    std::int64_t LookBack() const override { return Period(); }
    std::optional<sValueRange> RangeStart() const override { return sValueRange{-100000000.0, 100000000.0}; }
    void FitDrawnAxis(const sValueRange& range) override;
    void FitUpdatedAxis(CLineValues values) override { WidenAxis(values); }
    std::string HeadText() const override;
    std::string MarkedText(int point) const override;
    std::string ReadoutValues(int point) const override;
};

} // namespace zantroq
