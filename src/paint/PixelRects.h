// Arithmetic of pixel rectangles.
#pragma once

#include "scene/PixelRect.h"

#include <algorithm>

namespace zantroq {

// Without width or height (possibly negative) when the rectangles do not overlap.
inline sPixelRect CommonPart(const sPixelRect& a, const sPixelRect& b)
{
    return {std::max(a.Left, b.Left), std::max(a.Top, b.Top), std::min(a.Right, b.Right),
            std::min(a.Bottom, b.Bottom)};
}

// The smallest rectangle around both.
inline sPixelRect Enclosing(const sPixelRect& a, const sPixelRect& b)
{
    return {std::min(a.Left, b.Left), std::min(a.Top, b.Top), std::max(a.Right, b.Right),
            std::max(a.Bottom, b.Bottom)};
}

inline bool LiesInside(const sPixelRect& inner, const sPixelRect& outer)
{
    return inner.Left >= outer.Left && inner.Right <= outer.Right && inner.Top >= outer.Top &&
           inner.Bottom <= outer.Bottom;
}

} // namespace zantroq
