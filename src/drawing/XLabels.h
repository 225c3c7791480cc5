// Which dates and times stand under the price pane and where. Pure arithmetic over two texts per index. Chart
// window's thread.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace zantroq {

struct sXLabelView
{
    int First = 0; // data index of the leftmost point shown
    int Last = 0;  // of the rightmost
    int Shown = 0; // points shown
    double PixelsPerPoint = 1;
    bool AxisOnRight =
        false; // the value axis's side; with it on the left the first label may stand nearer to the edge
    bool Intraday = false;                      // ticks and minutes: a new date is followed by the time
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
