#include "studies/HistMOMChart.h"

#include "drawing/NumberTexts.h"
#include "studies/MomentumArithmetic.h"

namespace zantroq {

double CHistMOMChart::CalcMomentum(int index) const
{
    double value = 0;
    ComputeMomentum(*prices, index, 1, Period(), &value);
    return value;
}

std::vector<sStudyLine> CHistMOMChart::Lines() const
{
    return {{1, 1, DataColor()}, {1, 2, StudySettings().MomZeroColor, 0.0}};
}

void CHistMOMChart::Compute(std::int64_t index, int count, std::span<double* const> out)
{
    ComputeMomentum(*prices, index, count, Period(), out[0]);
}

void CHistMOMChart::FitDrawnAxis(const sValueRange& range)
{
    if (dlg->Settings().FixedScale && !dlg->ResetScale() && GetPointCount() >= 31)
        return;
    SetStudyYAxis(*chart, AxisLook(), range.Max, range.Min);
}

std::string CHistMOMChart::HeadText() const
{
    return "MOM, lookback period - " + std::to_string(Period());
}

std::string CHistMOMChart::MarkedText(int point) const
{
    return ValueText(" MOM - ", 1, point, 4);
}

std::string CHistMOMChart::ReadoutValues(int point) const
{
    return "Momentum:" + FixedText(ValueAt(1, point), 2);
}

} // namespace zantroq
