#include "scene/LeastGreatest.h"

#include "scene/ExtremeLanes.h"
#include "scene/PaneData.h"

namespace zantroq {

bool FindLeastGreatest(std::span<const double> values, sLeastGreatest& found)
{
    CExtremeLanes lanes;
    lanes.Take(values);
    return lanes.Finish(CPaneData::HoleValue(), found);
}

} // namespace zantroq
