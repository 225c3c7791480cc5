// A trendline as plain data for the window's snapshot. Optional members are present only for kinds that have
// them.
#pragma once

#include "platform/Color.h"

#include <optional>
#include <string>
#include <vector>

namespace zantroq {

struct sTrendRecord
{
    std::string Kind;   // name of its kind, such as "fibonacci-fan"
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
