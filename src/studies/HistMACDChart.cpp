#include "studies/HistMACDChart.h"

#include "drawing/NumberTexts.h"
#include "drawing/XAxis.h"
#include "studies/Hole.h"

#include <algorithm>

namespace zantroq {

sMACDRunningState& CHistMACDChart::StudyRunningState()
{
    static sMACDRunningState state;
    return state;
}

sMACDPeriods CHistMACDChart::Periods() const
{
    return {StudySettings().MacdShort, StudySettings().MacdLong, Period()};
}

void CHistMACDChart::CalcMACD(int index, double& macd, double& signal)
{
    double newMacd = StudyHole, newSignal = StudyHole;
    ComputeMACD(*prices, index, 1, Periods(), StudyRunningState(), &newMacd, &newSignal);
    AssignValue(macd, newMacd);
    AssignValue(signal, newSignal);
}

std::vector<sStudyLine> CHistMACDChart::Lines() const
{
    return {{1, 1, DataColor()},
            {1, 2, StudySettings().MacdSignalColor},
            {2, 1, StudySettings().MacdHistogramColor}};
}

void CHistMACDChart::Compute(std::int64_t index, int count, std::span<double* const> out)
{
    double* __restrict macd = out[0], * __restrict signal = out[1], * __restrict histogram = out[2];
    ComputeMACD(*prices, index, count, Periods(), StudyRunningState(), macd, signal);
    for (int i = 0; i < count; ++i) {
        const double difference = macd[i] - signal[i];
        histogram[i] = IsHole(signal[i]) ? StudyHole : difference;
    }
}

void CHistMACDChart::FitDrawnAxis(const sValueRange& range)
{
    chart->PaneArea().PaneAxes().Y().SetSetting21(0);
    SetStudyYAxis(*chart, AxisLook(), range.Max, range.Min);
    AdjustStudyBars();
}

void CHistMACDChart::AdjustStudyBars()
{
    const double pixels = PixelsPerPoint(dlg->ChartPixelWidth(), dlg->Range().shown);
    chart->PaneArea().BarLook().SetBarWidth(std::max(1, static_cast<int>(pixels)));
}

std::string CHistMACDChart::HeadText() const
{
    const sMACDPeriods p = Periods();
    const char* name = "custom";
    if (p.Short == 8 && p.Long == 17 && p.Signal == 9)
        name = "buy";
    else if (p.Short == 12 && p.Long == 25 && p.Signal == 9)
        name = "sell";
    return std::string("MACD (") + name + "), periods: short - " + std::to_string(p.Short) + ", long - " +
           std::to_string(p.Long) + ", signal smoothing - " + std::to_string(p.Signal);
}

std::string CHistMACDChart::MarkedText(int point) const
{
    return ValueText(" MACD: ", 1, point, 4) + ValueText(" Signal: ", 2, point, 4);
}

std::string CHistMACDChart::ReadoutValues(int point) const
{
    const double signal = ValueAt(2, point);
    return "MACD:" + FixedText(ValueAt(1, point), 3) +
           (IsHole(signal) ? std::string() : "Signal:" + FixedText(signal, 3));
}

} // namespace zantroq
