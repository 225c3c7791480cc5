// The value axis of the price pane: a range of prices becomes an axis with round steps. Pure arithmetic; the
// price pane writes the answer. Chart window's thread.
#pragma once

#include <optional>
#include <vector>

namespace zantroq {

// A finished axis. Labels stand from FirstLabel up to High in steps of Step.
struct sPriceScale
{
    double Low = 0, High = 0, Step = 0;
    int LabelMethod = 0;
    bool Plain = false;      // labels by "%g", else by the price formatter
    bool LabelsAtLow = true; // else the first label stands one step above Low
    // Parts of a unit that a narrow range is thought of in, 0 for a range above 4: halves to 256ths for the
    // fractional format codes, decimal parts no finer than the price's last decimal for the others. The step
    // does not depend on it.
    int UnitParts = 0;
};

// Nothing where low is above high, or where one is not a finite number: the axis then stays. formatCode is
// the series' price format; plain is set while the series has none.
std::optional<sPriceScale> MakePriceScale(double high, double low, int formatCode, bool plain);

// The values that get a label, from bottom to top. A step that rounding swallows ends the row.
std::vector<double> PriceScaleLabels(const sPriceScale& scale);

// 1, 2, 5 or 10 times a power of ten near a raw step. upwardOnly looks for the power from 1 up and not below.
double RoundStep(double step, bool upwardOnly);

} // namespace zantroq
