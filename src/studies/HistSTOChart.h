// Stochastics %K and %D, fast or slow, with two level lines, on a fixed axis of 0 to 100. Chart window's
// thread.
//
// Origin: George C. Lane (1957).
//
// Formula: raw(i) = (close(i) - lowest) / (highest - lowest) * 100 over the bars i - P to i. Fast %D(i) is
// the plain average of the raw values of i - P to i - 1, and fast %K(i) the last of them. Slow %D(i) is the
// plain average of the fast %D of i - P to i - 1, and slow %K(i) the last of them.
//
// Differences from the textbook, all intended:
// - The window has P + 1 bars. The search starts with a lowest of 1,000,000 and a highest of -1,000,000, so
//   lows above and highs below these are never found. A window with a range of 0 has the value 50.
// - All stages average over the same period, and no stage includes the point itself. Until an average has its
//   P values (index 2P fast, 4P slow), %K is the value of the point itself, so %K moves back by one point
//   there.
// - Before that index, only %K has values: from index P (fast) or 2P (slow) on. A negative result counts as
//   no value.
// A period below 1 gives no values.
#pragma once

#include "studies/HistStudyChart.h"

namespace zantroq {

class CHistSTOChart : public CHistStudyChart
{
public:
    // Leaves a variable unchanged if it has no value at the index.
    void CalcStochastic(int index, double& k, double& d) const;

protected:
    std::vector<sStudyLine> Lines() const override;
    void Compute(std::int64_t index, int count, std::span<double* const> out) override;
    std::int64_t LookBack() const override { return 4 * std::int64_t{Period()}; }
    void FitDrawnAxis(const sValueRange& range) override;
    std::string HeadText() const override;
    std::string MarkedText(int point) const override;
    std::string ReadoutValues(int point) const override;
};

} // namespace zantroq
