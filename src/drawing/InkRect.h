// A piece of ink in one colour.
#pragma once

#include "settings/ChartSettings.h"

namespace zantroq {

struct sInkRect
{
    int Left, Top, Right, Bottom; // device pixels, Right and Bottom exclusive, inside the plot
    Colour Color;
    bool operator==(const sInkRect&) const = default;
};

} // namespace zantroq
