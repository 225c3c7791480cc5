#include "scene/MinMax.h"

#include "scene/MinMaxLanes.h"
#include "scene/PaneData.h"

namespace zantroq {

bool FindMinMax(std::span<const double> values, sMinMax& found)
{
    CMinMaxLanes lanes;
    lanes.Take(values);
    return lanes.Finish(CPaneData::HoleValue(), found);
}

} // namespace zantroq
