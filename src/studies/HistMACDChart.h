// Moving average convergence/divergence: the difference of two exponential averages of the close, its signal
// line, and the difference of the two as a histogram (bars in group 2, on the same value axis).
//
// Origin: Gerald Appel (1979); the histogram: Thomas Aspray (1986).
// Formula, with periods S, L, G and factors k = 2 / (period + 1): an average moves by ema = (close - ema) * k
// + ema. MACD = emaShort - emaLong; signal = (MACD - signal) * kG + signal; histogram = MACD - signal.
//
// How it begins, which differs from the textbook, and all intended:
// - emaShort is seeded with the plain average of closes 0 to S - 1 and moves on to L - 1; emaLong with that
// of closes 0 to
//   L - 1. The first MACD is at index L - 1, and index L has the same value: the close of point L is not
//   taken in there.
// - The signal starts at index L + 1 with the sum of the MACDs so far over G, and climbs with it. Its full
// seed at L + G - 1
//   holds G + 1 terms over a divisor of G. From L + G on it is exponential.
// - The averages last reached are kept in one state for the process. An index that follows it continues on
// it, which gives the
//   same numbers unless the series is another one.
// With a period below 1 there are no values. Where S is above L there are none before index S - 1.
#pragma once

#include "studies/AverageConvergence.h"
#include "studies/HistStudyChart.h"

namespace zantroq {

class CHistMACDChart : public CHistStudyChart
{
public:
    // Leaves untouched what has no value at the index.
    void CalcMACD(int index, double& macd, double& signal);

    // Fits the histogram's bars to the pixels a point takes.
    void AdjustStudyBars() override;

    // The state of the process, for tests: they set it before they draw.
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
