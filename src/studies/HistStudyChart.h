// The base of the ten study panes: reads the series, fits the x axis, writes curves into the scene, appends
// live points and writes the header. A study names its lines, computes them over a part of the series and
// fits its value axis. Holds no settings and no prices of its own. Chart window's thread.
//
// A pane's x values are 1 to the number of points shown after a whole draw; live points shift them upward.
// Series count from 1, indices into the price series from 0.
#pragma once

#include "drawing/BaseChart.h"
#include "scene/BlockMinMax.h"
#include "studies/StudyAxis.h"
#include "studies/UpdatePlan.h"

#include <cmath>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zantroq {

// One series of a study pane: a computed curve, or a level that is the same at every point.
struct sStudyLine
{
    int Group = 1, Series = 1;
    ColorValue LineColor = 0;
    std::optional<double> Level{};
};

// The largest and the smallest value so far. The hole value and not-a-number do not count.
struct sValueRange
{
    double Max, Min;
    bool FiniteAlone = false; // infinities do not count either
    void Widen(double value)
    {
        if (value == HoleValue || (FiniteAlone && std::isinf(value)))
            return;
        if (value > Max)
            Max = value;
        if (value < Min)
            Min = value;
    }
    void Widen(const sBlockedValues& values, std::size_t first, std::size_t end);
};

class CHistStudyChart : public CStudyChart
{
public:
    double GetHigh(int index) const override { return prices->High(index); }
    double GetLow(int index) const override { return prices->Low(index); }
    double GetOpen(int index) const override { return prices->Open(index); }
    double GetClose(int index) const override { return prices->Close(index); }
    std::int64_t GetVolume(int index) const override { return prices->Volume(index); }
    int GetPointCount() const override { return prices->Count(); }

    // Draws the whole displayed range. Does nothing while no point is displayed; an empty series leaves an
    // empty pane.
    void DrawStudy() override;

    // Appends live points after the existing ones, and drops as many at the left edge as the window cannot
    // hold. Moves the pane's marker left by the number of dropped points, or by `newPoints` while the window
    // is not full.
    void UpdateStudy(int newPoints) override;

    // The text of the study, the values at the marked point, and " (Minimized)" while collapsed.
    std::string GetStudyInfoText() const override;
    std::string ReadoutText(int point) const override;
    void RefreshStudyHeader() override;

protected:
    // The values of the computed lines, in the order of Lines().
    using CLineValues = std::span<const std::span<const double>>;

    // All lines: group 1 first, then group 2, each in the order of its series.
    virtual std::vector<sStudyLine> Lines() const = 0;
    virtual int GroupChartType(int /*group*/) const { return ChartLines; }
    virtual ColorValue LabelColor() const
    {
        return StudySettings().LabelColors[static_cast<std::size_t>(kind)];
    }

    // By how many points a whole draw begins before the price pane's range.
    virtual int DrawLag() const { return 0; }

    // Computes `count` points from `index` on into one array for each computed line. Must write every
    // element; the hole value if there is none.
    virtual void Compute(std::int64_t index, int count, std::span<double* const> out) = 0;

    // How many points before a range must be read to compute it.
    virtual std::int64_t LookBack() const { return 0; }

    // The initial range of the value axis; none if the axis does not depend on the values.
    virtual std::optional<sValueRange> RangeStart() const { return {}; }

    // Sets the value axis after a whole draw, from the range of all computed values, and after live points.
    virtual void FitDrawnAxis(const sValueRange& range) = 0;
    virtual void FitUpdatedAxis(CLineValues /*values*/) {}

    virtual std::string HeadText() const = 0;
    // The texts of the values at a marked point; empty for holes.
    virtual std::string MarkedText(int point) const = 0;
    // The study's part of the readout at a point where its first series has a value; may be empty.
    virtual std::string ReadoutValues(int /*point*/) const { return {}; }
    double ValueAt(int series, int point) const
    {
        return chart->PaneGroups(1).PaneData().PointY(series, point);
    }

    const sStudySettings& StudySettings() const { return dlg->Settings().Studies; }
    std::int32_t Period() const { return StudySettings().Periods[static_cast<std::size_t>(kind)]; }
    ColorValue DataColor() const { return StudySettings().DataColors[static_cast<std::size_t>(kind)]; }
    sStudyAxisLook AxisLook() const;
    CPaneAxis& ValueAxis() const { return chart->PaneArea().PaneAxes().Y(); }

    // The prefix and the value of a series of group 1 at a point; empty for the hole value.
    std::string ValueText(const char* prefix, int series, int point, int decimals) const;

    // Steps of DrawStudy and UpdateStudy, for a pane that has its own versions of these.
    void PrepareGroups(int shown);
    // Removes the pane's points after the series became empty; a pane without points keeps its set-up.
    void RemovePoints();
    sValueRange ComputeLines(const std::vector<sStudyLine>& lines, int first, int shown);
    // Shifts and sizes all series, moves the marker and the x axis; newPoints is at least 1.
    sUpdatePlan MakeRoom(int newPoints);
    // Calls SetStudyYAxis with the current data range of the axis, widened, if a value lies outside it.
    void WidenAxis(CLineValues values);

private:
    void MovePoints(const sUpdatePlan& plan);
    void MoveMarker(const sUpdatePlan& plan);
    void MoveXAxis(const sUpdatePlan& plan);
    void WriteVolumeIntoLastPoint();
};

} // namespace zantroq
