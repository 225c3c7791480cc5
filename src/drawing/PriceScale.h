// The value axis of the price pane: computes an axis with round steps from a range of prices. Pure functions,
// any thread.
#pragma once

#include <optional>
#include <vector>

namespace zantroq {

// A computed axis, with labels in steps of Step up to High.
struct sPriceScale
{
    double Low = 0, High = 0, Step = 0;
    int LabelMethod = 0;
    bool Plain = false;      // labels use "%g", otherwise the price formatter
    bool LabelsAtLow = true; // otherwise the first label is one step above Low
    // The parts into which a narrow range divides a unit: halves to 256ths for the fractional format codes,
    // otherwise decimal parts no finer than the last decimal of the price; 0 for a range above 4. The step
    // does not depend on it.
    int UnitParts = 0;
};

// Returns nothing if low is above high or one of them is not finite; the axis must then stay unchanged.
// `formatCode` is the price format of the series; `plain` is true while it has none.
std::optional<sPriceScale> MakePriceScale(double high, double low, int formatCode, bool plain);

// The values of the labels from bottom to top. The list ends if a step is too small to change the value.
std::vector<double> PriceScaleLabels(const sPriceScale& scale);

// The powers of ten among which RoundStep searches.
enum class StepPowers
{
    FromOneUp, // 1 and above
    All
};

// 1, 2, 5 or 10 times a power of ten near `step`.
double RoundStep(double step, StepPowers powers);

} // namespace zantroq
