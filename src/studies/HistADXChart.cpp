#include "studies/HistADXChart.h"

#include "drawing/NumberTexts.h"
#include "studies/Hole.h"

namespace zantroq {

sADXRunningState& CHistADXChart::StudyRunningState()
{
    static sADXRunningState state;
    return state;
}

void CHistADXChart::CalcADX(int index, double& plusDI, double& minusDI, double& adx)
{
    double newPlus = StudyHole, newMinus = StudyHole, newAdx = StudyHole;
    ComputeADX(*prices, index, 1, Period(), StudyRunningState(), &newPlus, &newMinus, &newAdx);
    AssignValue(plusDI, newPlus);
    AssignValue(minusDI, newMinus);
    AssignValue(adx, newAdx);
}

std::vector<sStudyLine> CHistADXChart::Lines() const
{
    return {{1, 1, DataColor()},
            {1, 2, StudySettings().AdxPositiveColor},
            {1, 3, StudySettings().AdxNegativeColor}};
}

void CHistADXChart::Compute(std::int64_t index, int count, std::span<double* const> out)
{
    ComputeADX(*prices, index, count, Period(), StudyRunningState(), out[1], out[2], out[0]);
}

void CHistADXChart::FitDrawnAxis(const sValueRange& range)
{
    SetStudyYAxis(*chart, AxisLook(), range.Max, range.Min);
    if (dlg->Settings().Grid != 0)
        ValueAxis().AxisGrid().SetSpacing(25); // independent of the axis's own spacing
}

std::string CHistADXChart::HeadText() const
{
    return "ADX, Smoothing period - " + std::to_string(Period());
}

std::string CHistADXChart::MarkedText(int point) const
{
    return ValueText(" ADX: ", 1, point, 4) + ValueText(" +DI: ", 2, point, 4) +
           ValueText(" -DI: ", 3, point, 4);
}

std::string CHistADXChart::ReadoutValues(int point) const
{
    return "ADX:" + FixedText(ValueAt(1, point), 1) + ", +DI:" + FixedText(ValueAt(2, point), 1) +
           ", -DI:" + FixedText(ValueAt(3, point), 1);
}

} // namespace zantroq
