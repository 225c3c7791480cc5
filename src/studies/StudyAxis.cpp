#include "studies/StudyAxis.h"

#include "drawing/NumberTexts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace zantroq {

namespace {

struct sUnit
{
    double From;    // smallest step with this unit
    double Divisor; // divisor of a label's value
    int Exponent;
    const char* Suffix;
};

// Above this, the powers of ten below would exceed 64 bits.
constexpr std::int64_t GreatestVolumeAxis = 2000000000000000000;

constexpr std::array<sUnit, 5> Units{
    {{1e12, 1e12, 12, "T"}, {1e9, 1e9, 9, "B"}, {1e6, 1e6, 6, "M"}, {1e3, 1e3, 3, "K"}, {-1, 1, 0, ""}}};

const sUnit& UnitOf(double step)
{
    for (const sUnit& unit : Units)
        if (step >= unit.From)
            return unit;
    return Units.back();
}

CPaneAxis& LabelledAxis(CChart2D& chart, AxisSide side)
{
    CPaneAxes& axes = chart.PaneArea().PaneAxes();
    return side == AxisSide::Left ? axes.Y() : axes.Y2();
}

void ClearLabels(CChart2D& chart)
{
    chart.PaneArea().PaneAxes().Y().TickLabels().RemoveAll();
    chart.PaneArea().PaneAxes().Y2().TickLabels().RemoveAll();
}

struct sAxisEnds
{
    double ViewHigh, DataHigh, ViewLow, DataLow, Spacing;
};

void SetEnds(CChart2D& chart, const sStudyAxisLook& look, const sAxisEnds& ends)
{
    CPaneAxes& axes = chart.PaneArea().PaneAxes();
    for (CPaneAxis* axis : {&axes.Y(), &axes.Y2()}) {
        axis->ViewHigh().SetValue(ends.ViewHigh);
        axis->DataHigh().SetValue(ends.DataHigh);
        axis->TickSpacing().SetValue(ends.Spacing);
        axis->TickMarkSpacing().SetValue(ends.Spacing);
        axis->ViewLow().SetValue(ends.ViewLow);
        axis->DataLow().SetValue(ends.DataLow);
    }
    if (look.Grid)
        axes.Y().AxisGrid().SetSpacing(ends.Spacing);
}

void WriteLabels(CTickLabels& labels, const sAxisStep& axis, double limit)
{
    const sUnit& unit = UnitOf(axis.Step);
    const int exponent = axis.Exponent - unit.Exponent;
    const int decimals = exponent < 0 ? -exponent : 0;
    for (double v = axis.Start; v < limit;) {
        if (std::fabs(v) < axis.Step * 0.5)
            v = 0;
        labels.Add(v, FixedText(v / unit.Divisor, decimals) + unit.Suffix);
        const double next = v + axis.Step;
        if (!(next > v))
            break; // a step below the resolution of the values
        v = next;
    }
}

std::string VolumeLabel(std::int64_t value, int exponent)
{
    if (exponent < 3)
        return std::to_string(value);
    if (exponent < 6)
        return std::to_string(value / 1000) + "K";
    if (exponent < 9)
        return std::to_string(value / 1000000) + "M";
    return std::to_string(value / 1000000000) + "B";
}

} // namespace

sAxisStep ChooseAxisStep(double top, double bottom, int n)
{
    const double raw = (top - bottom) / n;
    if (!(raw > 0) || !std::isfinite(raw))
        return {0, bottom, 0};
    double d = 1;
    int e = 0;
    if (raw <= 1) {
        do {
            d /= 10;
            e -= 1;
        } while (raw < d);
    } else {
        for (d = 10; d < raw; d *= 10)
            e += 1;
        d /= 10;
    }
    const double r = raw / d;
    double multiplier = 1;
    if (r >= 1.41) {
        if (r < 2.24) {
            multiplier = 2;
        } else if (r < 3.36) {
            multiplier = 2.5;
            e -= 1;
        } else if (r < 7.07) {
            multiplier = 5;
        } else {
            e += 1;
            d *= 10;
        }
    }
    const double step = d * multiplier;
    if (!(step > 0) || !std::isfinite(step))
        return {0, bottom, 0};
    return {step, std::floor(bottom / step) * step, e};
}

void SetStudyYAxis(CChart2D& chart, const sStudyAxisLook& look, double max, double min)
{
    ClearLabels(chart);
    if (min > max)
        return;
    if (min == max) {
        if (max > 0)
            min = 0;
        else if (max == 0)
            max = 1;
        else
            max = 0;
    }
    const double margin = (max - min) * 0.015, top = max + margin, bottom = min - margin;
    if (!std::isfinite(top) || !std::isfinite(bottom) || !std::isfinite(top - bottom))
        return;
    const sAxisStep axis = ChooseAxisStep(top, bottom, 4);
    if (axis.Step > 0)
        WriteLabels(LabelledAxis(chart, look.Side).TickLabels(), axis, top - (top - axis.Start) * 0.04);
    SetEnds(chart, look, {top, max, axis.Start, min, axis.Step});
}

void SetPercentYAxis(CChart2D& chart, const sStudyAxisLook& look, double high, double low)
{
    ClearLabels(chart);
    SetEnds(chart, look, {high, high, low, low, 25});
    CTickLabels& labels = LabelledAxis(chart, look.Side).TickLabels();
    for (const int value : {25, 50, 75})
        labels.Add(value, std::to_string(value));
}

void SetVolumeYAxis(CChart2D& chart, const sStudyAxisLook& look, std::int64_t max)
{
    if (max < 10)
        max = 1000;
    max = std::min(max, GreatestVolumeAxis);
    const auto top = static_cast<std::int64_t>(static_cast<double>(max) * 1.04);
    const std::int64_t q = top / 3;
    std::int64_t t = 1;
    int exponent = -1;
    for (; t < q; t *= 10)
        exponent += 1;
    const std::int64_t decade = t / 10, r = q / decade;
    const std::int64_t step = decade * (r < 2 ? 1 : r < 5 ? 2 : 5);
    SetEnds(chart, look,
            {static_cast<double>(top), static_cast<double>(max), 0, 0, static_cast<double>(step)});
    ClearLabels(chart);
    CTickLabels& labels = LabelledAxis(chart, look.Side).TickLabels();
    for (std::int64_t v = step; v <= max; v += step)
        labels.Add(static_cast<double>(v), VolumeLabel(v, exponent));
}

} // namespace zantroq
