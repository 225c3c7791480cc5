#include "studies/HistROCChart.h"

#include "drawing/NumberTexts.h"
#include "studies/MomentumArithmetic.h"

namespace zantroq {

double CHistROCChart::CalcROC(int index) const
{
    double value = 0;
    ComputeROC(*prices, index, 1, Period(), &value);
    return value;
}

void CHistROCChart::Compute(std::int64_t index, int count, std::span<double* const> out)
{
    ComputeROC(*prices, index, count, Period(), out[0]);
}

void CHistROCChart::FitDrawnAxis(const sValueRange& range)
{
    SetStudyYAxis(*chart, AxisLook(), range.Max, range.Min);
}

std::string CHistROCChart::HeadText() const
{
    return "ROC, lookback period - " + std::to_string(Period());
}

std::string CHistROCChart::MarkedText(int point) const
{
    return ValueText(" ROC: ", 1, point, 4);
}

std::string CHistROCChart::ReadoutValues(int point) const
{
    return "ROC:" + FixedText(ValueAt(1, point), 2);
}

} // namespace zantroq
