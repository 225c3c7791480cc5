// Relative Strength Index of the close with two level lines, on a fixed axis of 0 to 100.
//
// Origin: J. Welles Wilder, "New Concepts in Technical Trading Systems" (1978).
// Formula: RSI = 100 - 100 / (avgGain / avgLoss + 1) over the period P. The averages are seeded with the
// plain averages of the gains and losses of points 1 to P of the series and then move by avg += (change -
// avg) / P.
//
// Differences from the textbook, all intended:
// - The value at point k of the pane is that of the bar before it.
// - Only a computation that continues on the index last finished moves the averages so. One that starts in
// the middle of the
//   series (the leftmost point of a redraw) runs avg = (change / P + avg) - avg from the seed, in which the
//   old average cancels: it starts from the last change alone, so there the curve stands at 0, at 100, or is
//   not a number. It comes back to the textbook's within some P points. The curve therefore depends on where
//   the display begins.
// - Indices P and P + 1 have the same value, that of the seed.
// - The state that is continued on is one for the process. Another chart, pane or symbol whose index happens
// to follow the
//   one last finished goes on from it.
// - No change at all, 0 / 0, is not a number and is drawn as nothing.
// A period below 1 has no values.
#pragma once

#include "studies/HistStudyChart.h"
#include "studies/RelativeStrength.h"

namespace zantroq {

class CHistRSIChart : public CHistStudyChart
{
public:
    // The RSI of index position - 1; -1 where there is none.
    double CalcRSI(int position);

    // The state of the process, for tests: they set it before they draw.
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
