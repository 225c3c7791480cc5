// One trendline as plain data, for the window's snapshot. The optional members are present only for the kinds
// that have them.
#pragma once

#include "platform/Color.h"

#include <optional>
#include <string>
#include <vector>

namespace zantroq {

struct sTrendRecord
{
    std::string Kind;   // the name in the row of its kind, such as "fibonacci-fan"
    int StartIndex = 0; // data indices, from 0
    int EndIndex = 0;
    double Value = 0;
    double EndValue = 0;
    std::vector<int> Series; // series numbers in group 2 of the price pane
    ColorValue Color = 0;
    int Width = 1;
    int Extendable = 1;
    std::optional<double> Offset;
    std::optional<int> ThirdIndex;
    std::optional<double> ThirdValue;
    std::optional<int> FirstLabel;
};

} // namespace zantroq
