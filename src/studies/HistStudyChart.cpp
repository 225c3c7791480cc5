#include "studies/HistStudyChart.h"

#include "drawing/NumberTexts.h"
#include "drawing/SeriesStyleTable.h"
#include "drawing/XAxis.h"
#include "studies/Hole.h"
#include "studies/StudyArrays.h"

#include <algorithm>

namespace zantroq {

namespace {

// The look of every study curve, in its own color.
void SetLook(CSeriesStyle& style, ColorValue color)
{
    sSeriesLook look = DefaultSeriesStyles()[StudyMainStyle];
    look.Color = color;
    ApplyLook(style, look);
}

int SeriesOfGroup(const std::vector<sStudyLine>& lines, int group)
{
    return static_cast<int>(
        std::count_if(lines.begin(), lines.end(), [&](const auto& line) { return line.Group == group; }));
}

int WholePart(double value)
{
    constexpr double limit = 2147483647.0;
    return std::isnan(value) ? 0 : static_cast<int>(std::clamp(value, -limit, limit));
}

std::size_t ComputedLines(const std::vector<sStudyLine>& lines)
{
    return static_cast<std::size_t>(
        std::count_if(lines.begin(), lines.end(), [](const auto& line) { return !line.Level; }));
}

} // namespace

void sValueRange::Widen(const sBlockedValues& values, std::size_t first, std::size_t end)
{
    sMinMax found;
    // Of 0 and -0 the earlier one counts, which the fast search does not distinguish.
    const bool isFound = FindMinMax(values, first, end, found) && found.Least != 0 && found.Greatest != 0;
    const bool isTaken = !FiniteAlone || (std::isfinite(found.Least) && std::isfinite(found.Greatest));
    if (isFound && isTaken) {
        Widen(found.Least);
        Widen(found.Greatest);
        return;
    }
    for (const double value : values.Values.subspan(first, end - first))
        Widen(value);
}

sStudyAxisLook CHistStudyChart::AxisLook() const
{
    return {dlg->Settings().ValueAxisSide(), dlg->Settings().Grid != 0};
}

void CHistStudyChart::PrepareGroups(int shown)
{
    chart->PaneInterior().SetForeground(LabelColor());
    chart->PaneArea().Interior().SetForeground(LabelColor());
    const std::vector<sStudyLine> lines = Lines();
    for (const sStudyLine& line : lines)
        SetLook(chart->PaneGroups(line.Group).SeriesStyles(line.Series), line.LineColor);
    for (const int group : {1, 2}) {
        const int series = SeriesOfGroup(lines, group);
        if (series == 0)
            continue;
        CPaneGroup& paneGroup = chart->PaneGroups(group);
        paneGroup.SetChartType(GroupChartType(group));
        CPaneData& data = paneGroup.PaneData();
        data.SetSeriesCount(series);
        data.SetFirstShownSeries(1);
        data.SetLastShownSeries(series);
        data.SetPointCount(1, shown);
        for (int i = 1; i <= series; ++i)
            data.SetFirstPoint(i, 1);
    }
}

void CHistStudyChart::RemovePoints()
{
    if (chart->PaneGroups(1).PaneData().PointCount(1) == 0)
        return;
    for (const int group : {1, 2})
        chart->PaneGroups(group).PaneData().SetPointCount(1, 0);
    RefreshStudyHeader();
}

void CHistStudyChart::DrawStudy()
{
    const int first = dlg->Range().first, shown = dlg->Range().shown;
    if (shown <= 0)
        return;
    if (GetPointCount() == 0) {
        RemovePoints(); // the display range keeps its number of points, although none can be computed
        return;
    }
    PrepareGroups(shown);
    SetXAxis(*chart, shown, dlg->Settings().Grid != 0);

    const std::vector<sStudyLine> lines = Lines();
    const sValueRange range = ComputeLines(lines, first, shown);
    for (const int group : {1, 2})
        if (SeriesOfGroup(lines, group) > 0)
            chart->PaneGroups(group).CommitPaneData();

    FitDrawnAxis(range);
    RefreshStudyHeader();
}

// Works in pieces that are still in the processor's cache when the axis is fitted to them.
sValueRange CHistStudyChart::ComputeLines(const std::vector<sStudyLine>& lines, int first, int shown)
{
    struct sWritten
    {
        CPaneData& Data;
        int Series;
        double* Values;
    };
    std::vector<sWritten> whole;
    for (const sStudyLine& line : lines) {
        CPaneData& data = chart->PaneGroups(line.Group).PaneData();
        data.NumberPoints();
        if (line.Level)
            data.SetConstantY(line.Series, *line.Level);
        else
            whole.push_back({data, line.Series, data.YForOverwrite(line.Series).data()});
    }
    const std::optional<sValueRange> start = RangeStart();
    sValueRange range = start.value_or(sValueRange{0, 0});
    std::vector<double*> out(whole.size());
    InPieces(shown, LookBack(), [&](int offset, int length) {
        std::transform(whole.begin(), whole.end(), out.begin(),
                       [&](const sWritten& line) { return line.Values + offset; });
        Compute(std::int64_t{first} - DrawLag() + offset, length, out);
        const auto from = static_cast<std::size_t>(offset), to = from + static_cast<std::size_t>(length);
        for (const sWritten& line : whole) {
            line.Data.UpdateBlockMinMax(line.Series, to);
            if (start)
                range.Widen(line.Data.BlockedY(line.Series), from, to);
        }
    });
    return range;
}

sUpdatePlan CHistStudyChart::MakeRoom(int newPoints)
{
    sPaneBefore before;
    before.Points = chart->PaneGroups(1).PaneData().PointCount(1);
    before.XLow = WholePart(chart->PaneArea().PaneAxes().X().ViewLow().Value());
    before.WindowPoints = PointsAtPlace(dlg->Range().ptsIndex);
    before.LastIndex = dlg->Range().last;
    const sUpdatePlan plan = PlanUpdate(before, newPoints);
    MovePoints(plan);
    MoveMarker(plan);
    MoveXAxis(plan);
    return plan;
}

void CHistStudyChart::MovePoints(const sUpdatePlan& plan)
{
    const std::vector<sStudyLine> lines = Lines();
    for (const sStudyLine& line : lines)
        if (plan.Dropped > 0 && plan.Kept > 0)
            chart->PaneGroups(line.Group).PaneData().ShiftPoints(line.Series, plan.Kept, plan.Dropped + 1);
    for (const int group : {1, 2})
        if (SeriesOfGroup(lines, group) > 0)
            chart->PaneGroups(group).PaneData().SetPointCount(1, plan.Points);
}

void CHistStudyChart::MoveMarker(const sUpdatePlan& plan)
{
    CPaneMarker& marker = chart->PaneArea().PaneMarkers("x");
    if (marker.Point() != NoPoint)
        marker.SetPoint(marker.Point() - plan.MarkerShift);
}

void CHistStudyChart::MoveXAxis(const sUpdatePlan& plan)
{
    CPaneAxis& x = chart->PaneArea().PaneAxes().X();
    x.ViewLow().SetValue(plan.XLow());
    x.DataLow().SetValue(plan.XLow());
    x.ViewHigh().SetValue(plan.XHigh() + 0.5);
    x.DataHigh().SetValue(plan.XHigh() + 0.5);
}

void CHistStudyChart::WriteVolumeIntoLastPoint()
{
    CPaneData& data = chart->PaneGroups(1).PaneData();
    data.SetPointY(1, data.PointCount(1), static_cast<double>(GetVolume(GetPointCount())));
}

void CHistStudyChart::UpdateStudy(int newPoints)
{
    if (newPoints == 0)
        WriteVolumeIntoLastPoint(); // cannot be reached by live data
    if (newPoints <= 0)
        return;
    const sUpdatePlan plan = MakeRoom(newPoints);
    const int fresh = plan.NewPoints();
    const std::vector<sStudyLine> lines = Lines();
    const auto size = static_cast<std::size_t>(fresh);
    std::vector<std::vector<double>> arrays(ComputedLines(lines), std::vector<double>(size, StudyHole));
    std::vector<double*> out;
    for (std::vector<double>& array : arrays)
        out.push_back(array.data());
    Compute(plan.FirstIndex, fresh, out);

    std::size_t next = 0;
    for (const sStudyLine& line : lines) {
        CPaneData& data = chart->PaneGroups(line.Group).PaneData();
        const double* computed = line.Level ? nullptr : arrays[next++].data();
        for (int i = 0; i < fresh; ++i) {
            const int point = plan.FirstNew + i;
            if (line.Series == 1)
                data.SetPointX(1, point, point + plan.XOffset);
            data.SetPointY(line.Series, point, computed ? computed[i] : *line.Level);
        }
    }
    FitUpdatedAxis(std::vector<std::span<const double>>(arrays.begin(), arrays.end()));
    RefreshStudyHeader();
}

void CHistStudyChart::WidenAxis(CLineValues values)
{
    const sValueRange present{ValueAxis().DataHigh().Value(), ValueAxis().DataLow().Value()};
    sValueRange range = present;
    for (const std::span<const double> line : values)
        range.Widen({line, {}, 0}, 0, line.size());
    if (range.Max > present.Max || range.Min < present.Min)
        SetStudyYAxis(*chart, AxisLook(), range.Max, range.Min);
}

std::string CHistStudyChart::ValueText(const char* prefix, int series, int point, int decimals) const
{
    const double value = chart->PaneGroups(1).PaneData().PointY(series, point);
    return IsHole(value) ? std::string() : prefix + FixedText(value, decimals);
}

std::string CHistStudyChart::GetStudyInfoText() const
{
    std::string text = HeadText();
    const int point = chart->PaneArea().Marker().Point();
    if (point != NoPoint && point > 0 && point <= dlg->Range().shown)
        text += MarkedText(point);
    if (collapsed)
        text += " (Minimized)";
    return text;
}

std::string CHistStudyChart::ReadoutText(int point) const
{
    if (IsHole(ValueAt(1, point)))
        return {};
    const std::string values = ReadoutValues(point);
    return values.empty() ? values : "\n" + values;
}

void CHistStudyChart::RefreshStudyHeader()
{
    CPaneLabels& labels = chart->PaneLabels();
    CPaneLabel& header = labels.Count() > 0 ? labels.Item(1) : labels.Add();
    header.Interior().SetForeground(LabelColor());
    header.Interior().SetBackground(chart->PaneInterior().Background());
    header.SetAttachment(AttachToPixel);
    header.SetAnchorSide(AnchorBelowRight);
    header.SetPixelAnchor(chart->PaneArea().PlotFrame().LeftMargin().Value(),
                          0); // above the end of the value axis
    header.SetText(GetStudyInfoText());
    header.SetShown(true);
}

} // namespace zantroq
