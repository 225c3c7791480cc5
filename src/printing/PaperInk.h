// The colors of a pane for white paper: what could not be read or seen there is darkened until it can be.
// Chart window's thread.
#pragma once

#include "platform/Color.h"
#include "scene/Chart2D.h"

namespace zantroq {

inline constexpr double TextContrast = 4.5, LineContrast = 3.0;

// Contrast of a color with white paper, from 1 (white) to 21 (black).
double ContrastOnPaper(ColorValue color);

// The color itself where its contrast is enough, else the lightest shade of it with that contrast.
ColorValue InkOnPaper(ColorValue color, double leastContrast);

// Recolors a copy that is to be printed: texts, lines, symbols, bars and candles.
void TakePaperInk(CChart2D& copy);

} // namespace zantroq
