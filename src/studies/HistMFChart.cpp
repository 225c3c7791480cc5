#include "studies/HistMFChart.h"

#include "drawing/NumberTexts.h"
#include "studies/Hole.h"
#include "studies/MoneyFlowArithmetic.h"

#include <algorithm>

namespace zantroq {

void CHistMFChart::CalcMoneyFlow(int index, double& positive, double& negative) const
{
    double newPositive = StudyHole, newNegative = StudyHole;
    if (ComputeMoneyFlow(*prices, index, 1, Period(), &newPositive, &newNegative) == 0) {
        positive = newPositive;
        negative = newNegative;
    }
}

std::vector<sStudyLine> CHistMFChart::Lines() const
{
    return {{1, 1, DataColor()},
            {1, 2, StudySettings().MfPositiveColor},
            {1, 3, StudySettings().MfNegativeColor}};
}

void CHistMFChart::Compute(std::int64_t index, int count, std::span<double* const> out)
{
    double* __restrict total = out[0], * __restrict positive = out[1], * __restrict negative = out[2];
    const int left = ComputeMoneyFlow(*prices, index, count, Period(), positive, negative);
    std::fill_n(total, left, StudyHole);
    for (int i = left; i < count; ++i) {
        const double sum = positive[i] + negative[i];
        total[i] = ((positive[i] == StudyHole) | (negative[i] == StudyHole)) ? StudyHole : sum;
    }
}

void CHistMFChart::FitDrawnAxis(const sValueRange& range)
{
    ValueAxis().AxisOrigin().SetValue(0);
    SetStudyYAxis(*chart, AxisLook(), range.Max, range.Min);
}

std::string CHistMFChart::HeadText() const
{
    return "Money Flow, lookback period - " + std::to_string(Period());
}

std::string CHistMFChart::MarkedText(int point) const
{
    return ValueText(" MF: ", 1, point, 0) + ValueText(" pos: ", 2, point, 0) +
           ValueText(" neg: ", 3, point, 0);
}

std::string CHistMFChart::ReadoutValues(int point) const
{
    return "Money Flow:" + ShortLargeNumberText(ValueAt(1, point)) +
           ", pos:" + ShortLargeNumberText(ValueAt(2, point)) +
           ", neg:" + ShortLargeNumberText(ValueAt(3, point));
}

} // namespace zantroq
