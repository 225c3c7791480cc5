// Money flow index with two level lines, on a fixed axis of -0.5 to 100.5. Chart window's thread.
//
// Origin: Gene Quong and Avrum Soudack, "Volume-weighted RSI: money flow" (1989).
//
// Formula, with the flows of the money flow pane: MFI = ((pos - neg) * 50) / (neg + pos) + 50. This is the
// textbook's 100 * pos / (pos + neg) with different rounding.
//
// Differences from the textbook, all intended: the window has P + 1 terms; the first value is at index P + 1;
// without any flow, 0 / 0 gives not-a-number, which is not drawn. A period below 1 gives no values.
#pragma once

#include "studies/HistStudyChart.h"

namespace zantroq {

class CHistMFIChart : public CHistStudyChart
{
public:
    double CalcMFI(int index) const; // the hole value if there is none

protected:
    std::vector<sStudyLine> Lines() const override;
    void Compute(std::int64_t index, int count, std::span<double* const> out) override;
    std::int64_t LookBack() const override { return Period(); }
    void FitDrawnAxis(const sValueRange& range) override;
    std::string HeadText() const override;
    std::string MarkedText(int point) const override;
    std::string ReadoutValues(int point) const override;
};

} // namespace zantroq
