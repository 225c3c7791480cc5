#include "studies/HistSTOChart.h"

#include "drawing/NumberTexts.h"
#include "studies/Hole.h"
#include "studies/StochasticArithmetic.h"

namespace zantroq {

namespace {

StochasticSpeed SpeedOf(const sStudySettings& settings)
{
    return settings.StoFast != 0 ? StochasticSpeed::Fast : StochasticSpeed::Slow;
}

} // namespace

void CHistSTOChart::CalcStochastic(int index, double& k, double& d) const
{
    double newK = StudyHole, newD = StudyHole;
    ComputeStochastic(*prices, index, 1, Period(), SpeedOf(StudySettings()), &newK, &newD);
    AssignValue(k, newK);
    AssignValue(d, newD);
}

std::vector<sStudyLine> CHistSTOChart::Lines() const
{
    const sStudySettings& s = StudySettings();
    return {{1, 1, DataColor()},
            {1, 2, s.StoDColor},
            {1, 3, s.StoUpperColor, s.StoUpperLevel},
            {1, 4, s.StoLowerColor, s.StoLowerLevel}};
}

void CHistSTOChart::Compute(std::int64_t index, int count, std::span<double* const> out)
{
    ComputeStochastic(*prices, index, count, Period(), SpeedOf(StudySettings()), out[0], out[1]);
}

void CHistSTOChart::FitDrawnAxis(const sValueRange& /*range*/)
{
    SetPercentYAxis(*chart, AxisLook(), 100, 0);
}

std::string CHistSTOChart::HeadText() const
{
    const sStudySettings& s = StudySettings();
    return std::string(s.StoFast != 0 ? "Fast" : "Slow") + " STO, lookback period - " +
           std::to_string(Period()) + ", levels - " + std::to_string(s.StoUpperLevel) + ", " +
           std::to_string(s.StoLowerLevel);
}

std::string CHistSTOChart::MarkedText(int point) const
{
    return ValueText(" %K: ", 1, point, 4) + ValueText(" %D: ", 2, point, 4);
}

std::string CHistSTOChart::ReadoutValues(int point) const
{
    const double d = ValueAt(2, point);
    return (StudySettings().StoFast != 0 ? "FastSTO%K:" : "SlowSTO%K:") + FixedText(ValueAt(1, point), 1) +
           (IsHole(d) ? std::string() : "STO%D:" + FixedText(d, 1));
}

} // namespace zantroq
