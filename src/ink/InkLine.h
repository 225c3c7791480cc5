// A line of a group in device pixels. Plain data.
#pragma once

#include "platform/Color.h"

#include <vector>

namespace zantroq {

// One stay of a line in a pixel column. Heights are in 1/256 device pixels from the top of the picture to the
// middle of the line.
struct sInkVertex
{
    static constexpr int One = 256;
    int Column;
    int First, Last, Top, Bottom; // Top <= First, Last <= Bottom
    bool Joined;                  // a line leads here from the vertex before
    bool Several;                 // more than one point
    bool operator==(const sInkVertex&) const = default;
};

struct sInkLine
{
    ColorValue Color = 0;
    int Width = 1;   // device pixels
    int Pattern = 0; // a LinePattern other than LineNone
    std::vector<sInkVertex> Vertices;
    bool Level = false; // known by its ends: columns between them have no vertices
};

} // namespace zantroq
