#include "studies/HistMFIChart.h"

#include "drawing/NumberTexts.h"
#include "studies/MoneyFlowArithmetic.h"

namespace zantroq {

double CHistMFIChart::CalcMFI(int index) const
{
    double value = 0;
    ComputeMFI(*prices, index, 1, Period(), &value);
    return value;
}

std::vector<sStudyLine> CHistMFIChart::Lines() const
{
    const sStudySettings& s = StudySettings();
    return {{1, 1, DataColor()},
            {1, 2, s.MfiUpperColor, s.MfiUpperLevel},
            {1, 3, s.MfiLowerColor, s.MfiLowerLevel}};
}

void CHistMFIChart::Compute(std::int64_t index, int count, std::span<double* const> out)
{
    ComputeMFI(*prices, index, count, Period(), out[0]);
}

void CHistMFIChart::FitDrawnAxis(const sValueRange& /*range*/)
{
    SetPercentYAxis(*chart, AxisLook(), 100.5, -0.5);
}

std::string CHistMFIChart::HeadText() const
{
    return "Money Flow Index, lookback period - " + std::to_string(Period()) + ", levels - " +
           std::to_string(StudySettings().MfiUpperLevel) + ", " +
           std::to_string(StudySettings().MfiLowerLevel);
}

std::string CHistMFIChart::MarkedText(int point) const
{
    return ValueText(" MFI: ", 1, point, 4);
}

std::string CHistMFIChart::ReadoutValues(int point) const
{
    return "MFI:" + FixedText(ValueAt(1, point), 1);
}

} // namespace zantroq
