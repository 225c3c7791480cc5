// Chooses the dates and times below the price pane and their positions. Pure functions, any thread that may
// call Date and Time.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace zantroq {

struct sXLabelView
{
    int First = 0; // data index of the leftmost displayed point
    int Last = 0;  // data index of the rightmost displayed point
    int Shown = 0; // number of displayed points
    double PixelsPerPoint = 1;
    // With the value axis on the left, the first label may be closer to the edge.
    bool AxisOnRight = false;
    bool Intraday = false;                      // ticks and minutes: the time follows a new date
    std::function<std::string(int)> Date, Time; // by data index
};

struct sXLabel
{
    int Position = 0; // pane x, from 1
    std::string Text;
    bool operator==(const sXLabel&) const = default;
};

std::vector<sXLabel> MakeXLabels(const sXLabelView& view);

} // namespace zantroq
