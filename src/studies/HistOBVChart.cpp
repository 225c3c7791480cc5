#include "studies/HistOBVChart.h"

#include "drawing/NumberTexts.h"
#include "studies/VolumeBalance.h"

namespace zantroq {

double CHistOBVChart::CalcOBV(int index) const
{
    double value = 0;
    ComputeOBV(*prices, index, 1, Period(), &value);
    return value;
}

std::vector<sStudyLine> CHistOBVChart::Lines() const
{
    return {{1, 1, DataColor()}, {1, 2, StudySettings().ObvZeroColor, 0.0}};
}

void CHistOBVChart::Compute(std::int64_t index, int count, std::span<double* const> out)
{
    ComputeOBV(*prices, index, count, Period(), out[0]);
}

void CHistOBVChart::FitDrawnAxis(const sValueRange& range)
{
    SetStudyYAxis(*chart, AxisLook(), range.Max, range.Min);
}

std::string CHistOBVChart::HeadText() const
{
    return "OBV, smoothing period - " + std::to_string(Period());
}

std::string CHistOBVChart::MarkedText(int point) const
{
    return ValueText(" OBV: ", 1, point, 0);
}

std::string CHistOBVChart::ReadoutValues(int point) const
{
    return "OBV:" + RoundedThousandsText(ValueAt(1, point));
}

} // namespace zantroq
