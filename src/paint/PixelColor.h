// Colors of device pixels.
#pragma once

#include "platform/Color.h"

#include <cstdint>

namespace zantroq {

// A pixel as 0xAARRGGBB, as 32-bit pictures store it.
using PixelColor = std::uint32_t;

constexpr PixelColor OpaquePixel(unsigned red, unsigned green, unsigned blue)
{
    return 0xff000000u | (red & 0xffu) << 16 | (green & 0xffu) << 8 | (blue & 0xffu);
}

// The opaque pixel of a scene's color.
constexpr PixelColor PixelOf(ColorValue color)
{
    return OpaquePixel(color, color >> 8, color >> 16);
}

// Mixes two opaque pixels; `weight` is the share of b in 256ths.
constexpr PixelColor Mixed(PixelColor a, PixelColor b, int weight)
{
    const auto mix = [weight, a, b](unsigned shift) {
        const int from = static_cast<int>(a >> shift & 0xffu), to = static_cast<int>(b >> shift & 0xffu);
        return static_cast<unsigned>((from * (256 - weight) + to * weight) / 256);
    };
    return OpaquePixel(mix(16), mix(8), mix(0));
}

} // namespace zantroq
