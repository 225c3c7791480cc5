// Average directional index with +DI and -DI. Chart window's thread.
//
// Origin: J. Welles Wilder, "New Concepts in Technical Trading Systems" (1978).
//
// Formula: the true range TR(j) is the largest of |high - low|, |close before - high| and |close before -
// low|. Of the moves a = |high - high before| and b = |low - low before|, the smaller counts as 0, and both
// count as 0 if they are equal. Each of the three is averaged: a plain average over points 1 to P, then avg =
// (x - avg) / P + avg. +DI = avgPlus * 100 / avgTR, and -DI likewise; DX = |(+DI - -DI) * 100 / (-DI + +DI)|;
// ADX starts at index 2P as the average of the P values of DX before it, then adx = (DX - adx) / P + adx.
//
// Differences from the textbook, all intended:
// - The moves are absolute differences, so falling highs count as upward movement.
// - +DI and -DI start at index P. Below index 2P they equal the values of the index before, so P and P + 1
//   have the same values.
// - Denominators are not checked: a true range of 0 gives infinities, and a DX of 0 / 0 stays in the ADX
//   until the next whole draw.
// - The last averages are kept in one state for the process. A computation at the following index continues
//   from them, which gives the same numbers unless it belongs to another series.
// - Live points never change the value axis.
// A period below 1 gives no values.
#pragma once

#include "studies/DirectionalIndex.h"
#include "studies/HistStudyChart.h"

namespace zantroq {

class CHistADXChart : public CHistStudyChart
{
public:
    // Leaves a variable unchanged if it has no value at the index.
    void CalcADX(int index, double& plusDI, double& minusDI, double& adx);

    // The state of the process. Only for tests, which set it before they draw.
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
