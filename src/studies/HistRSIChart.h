// Relative Strength Index of the close with two level lines, on a fixed axis of 0 to 100. Chart window's
// thread.
//
// Origin: J. Welles Wilder, "New Concepts in Technical Trading Systems" (1978).
//
// Formula: RSI = 100 - 100 / (avgGain / avgLoss + 1) with the period P. The averages start as the plain
// averages of the gains and losses of points 1 to P of the series and are then updated by avg += (change -
// avg) / P.
//
// Differences from the textbook, all intended:
// - Point k of the pane has the value of the bar before it.
// - The averages are updated like this only if the computation continues from the last computed index. A
//   computation that starts in the middle of the series (the leftmost point of a redraw) runs avg = (change /
//   P + avg) - avg from the start values, in which the old average cancels. It thus depends on the last
//   change alone, so the curve starts there at 0, at 100 or at not-a-number and approaches the textbook's
//   within about P points. The curve therefore depends on where the display begins.
// - Indices P and P + 1 have the same value, computed from the start averages.
// - There is one state for the process. Another chart, pane or symbol continues from it if its index happens
//   to follow the last computed one.
// - Without any change, 0 / 0 gives not-a-number, which is not drawn.
// A period below 1 gives no values.
#pragma once

#include "studies/HistStudyChart.h"
#include "studies/RelativeStrength.h"

namespace zantroq {

class CHistRSIChart : public CHistStudyChart
{
public:
    // The RSI of index position - 1; -1 if there is none.
    double CalcRSI(int position);

    // The state of the process. Only for tests, which set it before they draw.
    static sRSIRunningState& StudyRunningState();

protected:
    std::vector<sStudyLine> Lines() const override;
    void Compute(std::int64_t index, int count, std::span<double* const> out) override;
    void FitDrawnAxis(const sValueRange& range) override;
    std::string HeadText() const override;
    std::string MarkedText(int point) const override;
    std::string ReadoutValues(int point) const override;
};

} // namespace zantroq
