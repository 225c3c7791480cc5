#include "drawing/LeastGreatest.h"

#include "drawing/ExtremeLanes.h"
#include "drawing/PaneData.h"

namespace zantroq {

bool FindLeastGreatest(std::span<const double> values, sLeastGreatest& found)
{
    CExtremeLanes lanes;
    lanes.Take(values);
    return lanes.Finish(CPaneData::HoleValue(), found);
}

} // namespace zantroq
