#include "studies/HistVOLChart.h"

#include "drawing/NumberTexts.h"
#include "drawing/XAxis.h"
#include "market/HistoryRecords.h"
#include "studies/Hole.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zantroq {

namespace {

// The value as a 64-bit integer, limited to the range where that is defined; 0 for not-a-number.
std::int64_t WholeVolume(double value)
{
    constexpr double limit = 9.2e18;
    return std::isnan(value) ? 0 : static_cast<std::int64_t>(std::clamp(value, -limit, limit));
}

int MinutesOf(std::int32_t intervalIndex)
{
    const int last = static_cast<int>(IntervalMinutes.size()) - 1;
    return IntervalMinutes[static_cast<std::size_t>(std::clamp(intervalIndex, 0, last))];
}

} // namespace

std::int32_t CHistVOLChart::CalcVolumeAverage() const
{
    const std::int64_t points = AveragesAllData() ? std::numeric_limits<std::int64_t>::max() : Period();
    return AverageVolume(*prices, points, VolumeDivisor);
}

std::vector<sStudyLine> CHistVOLChart::Lines() const
{
    std::vector<sStudyLine> lines{{1, 1, DataColor()}};
    if (ShowsAverage())
        lines.push_back({2, 1, StudySettings().VolumeAverageColor});
    return lines;
}

// The pane and the price pane have different numbers of points only while the window is being set up.
sVolumeScale CHistVOLChart::LoadVolumes(int first, int count, VolumeMaximum rule) const
{
    CPaneData& volumes = chart->PaneGroups(1).PaneData();
    if (volumes.PointCount(1) == count)
        return ScaleVolumes(*prices, first, count, rule, volumes.YForOverwrite(1).data());
    std::vector<double> scaled(static_cast<std::size_t>(count));
    const sVolumeScale scale = ScaleVolumes(*prices, first, count, rule, scaled.data());
    volumes.SetYVector(1, scaled);
    return scale;
}

void CHistVOLChart::WriteAverageLine(int minuteShift) const
{
    CPaneData& average = chart->PaneGroups(2).PaneData();
    if (AveragesAllData()) {
        average.SetConstantY(1, VolumeAverage);
        return;
    }
    const std::span<double> line = average.YForOverwrite(1);
    const auto points = static_cast<std::int64_t>(line.size());
    const std::int64_t low = std::int64_t{GetPointCount()} + 2 - Period() - dlg->Range().first - minuteShift;
    const std::int64_t high = low + Period() - 1;
    std::fill(line.begin(), line.end(), StudyHole);
    for (std::int64_t point = std::max<std::int64_t>(low, 1); point <= std::min<std::int64_t>(high, points);
         ++point)
        line[static_cast<std::size_t>(point - 1)] = VolumeAverage;
}

void CHistVOLChart::DrawStudy()
{
    const int first = dlg->Range().first, shown = dlg->Range().shown;
    const int points = dlg->Pane(0).PaneGroups(1).PaneData().PointCount(1);
    if (shown > 0 && GetPointCount() == 0) {
        VolumeAverage = 0;
        RemovePoints();
        return;
    }
    if (shown <= 0 || points == 0)
        return;
    PrepareGroups(shown);
    SetXAxis(*chart, shown, dlg->Settings().Grid != 0);
    CPaneAxes& axes = chart->PaneArea().PaneAxes();
    axes.X().DataHigh().SetKind(1);
    axes.Y().SetSetting21(0);
    AdjustStudyBars();

    VolumeMaximum rule = VolumeMaximum::OfThePoints;
    if (dlg->Settings().FixedScale && GetPointCount() > 30)
        rule = dlg->ResetScale() ? VolumeMaximum::OfTheWholeSeries : VolumeMaximum::None;
    CPaneData& volumes = chart->PaneGroups(1).PaneData();
    volumes.NumberPoints();
    const sVolumeScale scale = LoadVolumes(first, points, rule);
    VolumeDivisor = scale.Divisor;
    chart->PaneGroups(1).CommitPaneData();
    SetVolumeYAxis(*chart, AxisLook(), scale.Maximum);

    VolumeAverage = CalcVolumeAverage();
    CPaneData& average = chart->PaneGroups(2).PaneData();
    if (ShowsAverage()) {
        average.NumberPoints();
        WriteAverageLine(dlg->Settings().Request.DataType == MinuteData ? 1 : 0);
        chart->PaneGroups(2).CommitPaneData();
    } else {
        average.SetPointCount(1, 0);
    }
    RefreshStudyHeader();
}

void CHistVOLChart::Compute(std::int64_t index, int count, std::span<double* const> out)
{
    for (int i = 0; i < count; ++i)
        out[0][i] = static_cast<double>(GetVolume(static_cast<int>(index + i)) / VolumeDivisor);
}

void CHistVOLChart::UpdateStudy(int newPoints)
{
    if (newPoints <= 0) {
        CHistStudyChart::UpdateStudy(newPoints);
        return;
    }
    const sUpdatePlan plan = MakeRoom(newPoints);
    const int fresh = plan.NewPoints();
    std::vector<double> values(static_cast<std::size_t>(fresh));
    double* out[] = {values.data()};
    Compute(plan.FirstIndex, fresh, out);
    CPaneData& volumes = chart->PaneGroups(1).PaneData();
    double greatest = ValueAxis().DataHigh().Value();
    for (int i = fresh - 1; i >= 0; --i) {
        const double value = values[static_cast<std::size_t>(i)];
        volumes.SetPointX(1, plan.FirstNew + i, plan.FirstNew + i + plan.XOffset);
        volumes.SetPointY(1, plan.FirstNew + i, value);
        greatest = std::max(greatest, value);
    }
    SetVolumeYAxis(*chart, AxisLook(), WholeVolume(greatest));

    VolumeAverage = CalcVolumeAverage();
    if (ShowsAverage()) {
        chart->PaneGroups(2).PaneData().TakeX(volumes);
        WriteAverageLine(0);
    }
    RefreshStudyHeader();
}

void CHistVOLChart::AdjustStudyBars()
{
    const double pixels = PixelsPerPoint(dlg->ChartPixelWidth(), dlg->Range().shown);
    CPaneGroup& group = chart->PaneGroups(1);
    if (pixels < 1) {
        group.SetChartType(ChartLines);
        return;
    }
    group.SetChartType(ChartBars);
    chart->PaneArea().BarLook().SetBarWidth(std::max(1, static_cast<int>(pixels)));
}

std::string CHistVOLChart::VolumeText(double value) const
{
    std::string text = ThousandsText(WholeVolume(value));
    if (VolumeDivisor >= 2)
        text += " in " + std::to_string(VolumeDivisor) + "s";
    return text;
}

std::string CHistVOLChart::HeadText() const
{
    std::string text = "Volume, average: " + VolumeText(VolumeAverage);
    if (AveragesAllData())
        return text;
    const sRequestSettings& request = dlg->Settings().Request;
    text += ", lookback period - ";
    switch (request.DataType) {
    case TickData:
        return text + std::to_string(Period()) + " ticks";
    case MinuteData:
        return text + std::to_string(std::int64_t{Period()} * MinutesOf(request.IntervalIndex)) + " minutes";
    case DailyData:
        return text + std::to_string(Period()) + " days";
    case WeeklyData:
        return text + std::to_string(Period()) + " weeks";
    default:
        return text + std::to_string(Period()) + " months";
    }
}

std::string CHistVOLChart::MarkedText(int point) const
{
    const double value = chart->PaneGroups(1).PaneData().PointY(1, point);
    return IsHole(value) || !std::isfinite(value) ? std::string() : " Vol: " + VolumeText(value);
}

} // namespace zantroq
