// Positive, negative and total money flow of a window. Chart window's thread.
//
// Origin: Gene Quong and Avrum Soudack, "Volume-weighted RSI: money flow" (1989).
//
// Formula: the typical price is tp = (close + (low + high)) / 3. Over the bars i - P to i, volume * tp is
// added to the positive flow if tp is above the bar before and to the negative flow if it is below; both
// flows are divided by P. The total is their sum.
//
// Differences from the textbook, all intended: the window has P + 1 terms but the divisor is P; the total is
// a sum and not a difference; the first value is at index P + 1. A period below 1 gives no values.
#pragma once

#include "studies/HistStudyChart.h"

namespace zantroq {

class CHistMFChart : public CHistStudyChart
{
public:
    // Leaves both variables unchanged if the index has no value.
    void CalcMoneyFlow(int index, double& positive, double& negative) const;

protected:
    std::vector<sStudyLine> Lines() const override;
    void Compute(std::int64_t index, int count, std::span<double* const> out) override;
    std::int64_t LookBack() const override { return Period(); }
    std::optional<sValueRange> RangeStart() const override { return sValueRange{-1000000.0, 1000000.0}; }
    void FitDrawnAxis(const sValueRange& range) override;
    void FitUpdatedAxis(CLineValues values) override { WidenAxis(values); }
    std::string HeadText() const override;
    std::string MarkedText(int point) const override;
    std::string ReadoutValues(int point) const override;
};

} // namespace zantroq
