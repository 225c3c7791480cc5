#include "drawing/PriceScale.h"

#include <array>
#include <cmath>

namespace zantroq {

namespace {

constexpr int MostLabels = 1000; // never reached by a valid axis, which has fewer than ten

template<std::size_t size> int FirstNotLess(const std::array<int, size>& steps, int value)
{
    for (int step : steps)
        if (step >= value)
            return step;
    return steps.back();
}

int UnitParts(int parts, int formatCode)
{
    static constexpr std::array<int, 8> fractional{2, 4, 8, 16, 32, 64, 128, 256};
    static constexpr std::array<int, 16> decimal{
        1, 2, 4, 10, 25, 100, 250, 1000, 2500, 10000, 25000, 100000, 250000, 1000000, 2500000, 10000000};
    if (formatCode < 11)
        return FirstNotLess(fractional, parts);
    const int chosen = FirstNotLess(decimal, parts);
    const double finest = std::pow(10.0, formatCode - 10);
    return finest < chosen ? static_cast<int>(finest) : chosen;
}

// Moves both ends outward to a multiple of the step. A negative low end that is already a multiple moves one
// step further down.
void Snap(double& high, double& low, double step)
{
    low = low - (std::fmod(low, step) + (low < 0 ? step : 0.0));
    high = (high + step) - (std::fmod(high, step) + (high < 0 ? step : 0.0));
}

sPriceScale PlainScale(double high, double low)
{
    const double range = high - low;
    const double margin = range == 0 ? 1.0 : range;
    high = high + 0.1 * margin;
    low = low - 0.1 * margin;
    const double step = RoundStep((high - low) * 0.25, StepPowers::All);
    const double rest = std::fmod(low, step);
    // Not exactly a multiple of the step: the remaining 0.0099 keeps the lowest label off the edge of the
    // pane.
    if (rest >= 0.01)
        low = low - rest + 0.0099;
    sPriceScale scale;
    scale.Low = low;
    scale.High = high;
    scale.Step = step;
    scale.LabelMethod = 2;
    scale.Plain = true;
    return scale;
}

} // namespace

double RoundStep(double step, StepPowers powers)
{
    constexpr double smallest = 1e-300; // below it the powers of ten underflow before the step does
    if (!(step >= smallest) || std::isinf(step))
        return step;
    double power = 1.0;
    if (powers == StepPowers::All)
        while (power > step)
            power /= 10.0;
    while (power * 10.0 <= step)
        power *= 10.0;
    const double ratio = step / power;
    return power * (ratio < 1.41 ? 1.0 : ratio < 3.16 ? 2.0 : ratio < 7.07 ? 5.0 : 10.0);
}

std::optional<sPriceScale> MakePriceScale(double high, double low, int formatCode, bool plain)
{
    if (!(low <= high) || std::isinf(low) || std::isinf(high))
        return std::nullopt;
    if (plain)
        return PlainScale(high, low);
    double range = high - low;
    if (range == 0)
        range = 0.01;
    const double parts = 4.0 / range;
    const int wholeParts = parts < 1e9 ? static_cast<int>(parts) : 1000000000;
    sPriceScale scale;
    if (wholeParts == 0) {
        scale.Step = RoundStep(range * 0.25, StepPowers::FromOneUp);
        scale.LabelMethod = 0;
    } else {
        scale.UnitParts = UnitParts(wholeParts, formatCode);
        scale.Step = range * 0.25;
        scale.LabelMethod = 4;
        scale.LabelsAtLow = false;
    }
    Snap(high, low, scale.Step);
    scale.Low = low;
    scale.High = high;
    return scale;
}

std::vector<double> PriceScaleLabels(const sPriceScale& scale)
{
    std::vector<double> values;
    if (!scale.Plain && !(scale.Low < scale.High))
        return values;
    double value = scale.LabelsAtLow ? scale.Low : scale.Low + scale.Step;
    while (value <= scale.High && static_cast<int>(values.size()) < MostLabels) {
        values.push_back(value);
        const double next = value + scale.Step;
        if (!(next > value))
            break;
        value = next;
    }
    return values;
}

} // namespace zantroq
