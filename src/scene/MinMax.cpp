#include "scene/MinMax.h"

#include "scene/HoleValue.h"
#include "scene/MinMaxLanes.h"

namespace zantroq {

bool FindMinMax(std::span<const double> values, sMinMax& found)
{
    CMinMaxLanes lanes;
    lanes.Take(values);
    return lanes.Finish(HoleValue, found);
}

} // namespace zantroq
