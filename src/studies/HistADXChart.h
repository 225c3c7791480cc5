// Average directional index with +DI and -DI.
//
// Origin: J. Welles Wilder, "New Concepts in Technical Trading Systems" (1978).
// Formula: true range TR(j) is the largest of |high - low|, |close before - high|, |close before - low|. Of
// the moves a = |high - high before| and b = |low - low before| the smaller counts as 0, and both do when
// they are equal. Each is averaged by avg = (x - avg) / P + avg after a plain average over points 1 to P. +DI
// = avgPlus * 100 / avgTR, -DI likewise; DX = |(+DI - -DI) * 100 / (-DI + +DI)|; ADX starts at index 2P with
// the average of the P DX values before it and moves by adx = (DX - adx) / P + adx.
//
// Differences from the textbook, all intended:
// - The moves are absolute differences, so falling highs count as upward movement.
// - +DI and -DI start at index P, and below 2P they are those of the index before: P and P + 1 have the same.
// - Nothing is guarded: a true range of 0 gives infinities, and a DX of 0 / 0 stays in the ADX until the next
// whole draw.
// - The averages last reached are kept in one state for the process. An index that follows it continues on
// it, which gives the
//   same numbers unless the series is another one.
// - Live points never change the value axis.
// A period below 1 has no values.
#pragma once

#include "studies/DirectionalIndex.h"
#include "studies/HistStudyChart.h"

namespace zantroq {

class CHistADXChart : public CHistStudyChart
{
public:
    // Leaves untouched what has no value at the index.
    void CalcADX(int index, double& plusDI, double& minusDI, double& adx);

    // The state of the process, for tests: they set it before they draw.
    static sADXRunningState& StudyRunningState();

protected:
    std::vector<sStudyLine> Lines() const override;
    void Compute(std::int64_t index, int count, std::span<double* const> out) override;
    std::optional<sValueRange> RangeStart() const override { return sValueRange{0, 100, true}; }
    void FitDrawnAxis(const sValueRange& range) override;
    std::string HeadText() const override;
    std::string MarkedText(int point) const override;
    std::string ReadoutValues(int point) const override;
};

} // namespace zantroq
