#include "studies/UpdatePlan.h"

#include <algorithm>

namespace zantroq {

sUpdatePlan PlanUpdate(const sPaneBefore& pane, int newPoints)
{
    const std::int64_t had = pane.Points;
    const std::int64_t dropped = std::max<std::int64_t>(had + newPoints - pane.WindowPoints, 0);
    sUpdatePlan plan;
    plan.Dropped = static_cast<int>(dropped);
    plan.Kept = static_cast<int>(std::max<std::int64_t>(had - dropped, 0));
    plan.Points = static_cast<int>(newPoints > dropped ? had - dropped + newPoints : had);
    plan.XOffset = pane.XLow + plan.Dropped - 1;
    const int fresh = std::min(newPoints, plan.Points);
    plan.FirstNew = plan.Points - fresh + 1;
    plan.FirstIndex = pane.LastIndex + 1 - fresh;
    plan.MarkerShift = dropped > 0 ? plan.Dropped : newPoints;
    return plan;
}

} // namespace zantroq
