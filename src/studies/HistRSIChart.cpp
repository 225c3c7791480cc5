#include "studies/HistRSIChart.h"

#include "drawing/NumberTexts.h"
#include "studies/Hole.h"

namespace zantroq {

sRSIRunningState& CHistRSIChart::StudyRunningState()
{
    static sRSIRunningState state;
    return state;
}

double CHistRSIChart::CalcRSI(int position)
{
    double value = 0;
    ComputeRSI(*prices, position, 1, Period(), StudyRunningState(), &value);
    return value;
}

std::vector<sStudyLine> CHistRSIChart::Lines() const
{
    const sStudySettings& s = StudySettings();
    return {{1, 1, DataColor()},
            {1, 2, s.RsiUpperColor, s.RsiUpperLevel},
            {1, 3, s.RsiLowerColor, s.RsiLowerLevel}};
}

void CHistRSIChart::Compute(std::int64_t index, int count, std::span<double* const> out)
{
    double* rsi = out[0];
    ComputeRSI(*prices, index, count, Period(), StudyRunningState(), rsi);
    for (int i = 0; i < count; ++i)
        rsi[i] = ((rsi[i] < 0) | (rsi[i] > 100)) ? StudyHole : rsi[i]; // without a branch
}

void CHistRSIChart::FitDrawnAxis(const sValueRange& /*range*/)
{
    SetPercentYAxis(*chart, AxisLook(), 100, 0);
}

std::string CHistRSIChart::HeadText() const
{
    return "RSI, lookback period - " + std::to_string(Period()) + ", levels - " +
           std::to_string(StudySettings().RsiUpperLevel) + ", " +
           std::to_string(StudySettings().RsiLowerLevel);
}

std::string CHistRSIChart::MarkedText(int point) const
{
    return ValueText(" RSI: ", 1, point, 4);
}

std::string CHistRSIChart::ReadoutValues(int point) const
{
    return "RSI:" + FixedText(ValueAt(1, point), 1);
}

} // namespace zantroq
