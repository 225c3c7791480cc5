// The volume of each displayed point as bars, and optionally an average as a horizontal line. Chart window's
// thread.
//
// Formula: the plotted value is the volume divided by VolumeDivisor, a power of ten that is 1 unless a volume
// exceeds 2,147,483,647. The average is the plain mean over the whole series, or over its last P points, in
// the same unit.
//
// Peculiarities, all intended:
// - The average belongs to the end of the series, whatever range is displayed. Over all data, its line covers
//   the whole pane. Over P points, it covers only those P points, so it lies to the right of a pane that is
//   scrolled back. On minute data a live update draws it one point further right than a draw does.
// - When the divisor grows, earlier points are divided by the whole new divisor and not by ten, so a second
//   step in one draw makes them smaller than later points of the same volume.
// - With a fixed scale and more than 30 points, a draw sets the axis to 1,000, unless a new fit was
//   requested.
// - Live points never change the divisor.
#pragma once

#include "studies/HistStudyChart.h"
#include "studies/VolumeScale.h"

namespace zantroq {

class CHistVOLChart : public CHistStudyChart
{
public:
    void DrawStudy() override;
    void UpdateStudy(int newPoints) override;

    // Selects bars if a point has at least one pixel, connected lines otherwise.
    void AdjustStudyBars() override;

    // The average at the end of the series, in units of VolumeDivisor.
    virtual std::int32_t CalcVolumeAverage() const;

    std::int32_t VolumeAverage = 0;
    // The divisor of the plotted values: a power of ten; 1 at the start of each draw.
    std::int64_t VolumeDivisor = 1;

protected:
    std::vector<sStudyLine> Lines() const override;
    void Compute(std::int64_t index, int count, std::span<double* const> out) override;
    void FitDrawnAxis(const sValueRange& /*range*/) override {}
    std::string HeadText() const override;
    std::string MarkedText(int point) const override;

private:
    bool ShowsAverage() const { return StudySettings().ShowVolumeAverage != 0; }
    bool AveragesAllData() const { return StudySettings().VolumeAverageAllData != 0; }
    // Writes the average's y values from point 1 on. The line starts `minuteShift` points further left.
    void WriteAverageLine(int minuteShift) const;
    sVolumeScale LoadVolumes(int first, int count, VolumeMaximum rule) const;
    std::string VolumeText(double value) const;
};

} // namespace zantroq
