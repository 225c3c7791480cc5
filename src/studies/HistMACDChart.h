// Moving average convergence/divergence: the difference between two exponential averages of the close, its
// signal line, and the difference of the two as a histogram (bars in group 2, on the same value axis). Chart
// window's thread.
//
// Origin: Gerald Appel (1979); the histogram: Thomas Aspray (1986).
//
// Formula, with periods S, L, G and factors k = 2 / (period + 1): an average is updated by ema = (close -
// ema) * k + ema. MACD = emaShort - emaLong; signal = (MACD - signal) * kG + signal; histogram = MACD -
// signal.
//
// Differences from the textbook at the start, all intended:
// - emaShort starts as the plain average of closes 0 to S - 1 and is updated up to L - 1; emaLong starts as
//   the plain average of closes 0 to L - 1. The first MACD is at index L - 1. Index L has the same value,
//   because the close of point L is not used there.
// - The signal starts at index L + 1 as the sum of the MACDs so far divided by G, and grows with that sum.
//   Its last sum, at L + G - 1, has G + 1 terms divided by G. From L + G on the signal is exponential.
// - The last averages are kept in one state for the process. A computation at the following index continues
//   from them, which gives the same numbers unless it belongs to another series.
// A period below 1 gives no values. If S is above L, there are no values before index S - 1.
#pragma once

#include "studies/AverageConvergence.h"
#include "studies/HistStudyChart.h"

namespace zantroq {

class CHistMACDChart : public CHistStudyChart
{
public:
    // Leaves a variable unchanged if it has no value at the index.
    void CalcMACD(int index, double& macd, double& signal);

    // Fits the width of the histogram's bars to the pixels of a point.
    void AdjustStudyBars() override;

    // The state of the process. Only for tests, which set it before they draw.
    static sMACDRunningState& StudyRunningState();

protected:
    std::vector<sStudyLine> Lines() const override;
    int GroupChartType(int group) const override { return group == 1 ? ChartLines : ChartBarsFromOrigin; }
    void Compute(std::int64_t index, int count, std::span<double* const> out) override;
    std::optional<sValueRange> RangeStart() const override { return sValueRange{0, 0}; }
    void FitDrawnAxis(const sValueRange& range) override;
    void FitUpdatedAxis(CLineValues values) override { WidenAxis(values); }
    std::string HeadText() const override;
    std::string MarkedText(int point) const override;
    std::string ReadoutValues(int point) const override;

private:
    sMACDPeriods Periods() const;
};

} // namespace zantroq
