// A rectangle of one color. Plain data.
#pragma once

#include "platform/Color.h"

namespace zantroq {

struct sInkRect
{
    int Left, Top, Right, Bottom; // device pixels, Right and Bottom exclusive, inside the plot
    ColorValue Color;
    bool operator==(const sInkRect&) const = default;
};

} // namespace zantroq
