// A rectangle of pixels. Plain data.
#pragma once

namespace zantroq {

struct sPixelRect
{
    int Left = 0, Top = 0, Right = 0, Bottom = 0; // Right and Bottom are exclusive
    int Width() const { return Right - Left; }
    int Height() const { return Bottom - Top; }
};

inline constexpr int FarPixel = 1 << 20; // no pixel of a pane lies further out than this

} // namespace zantroq
