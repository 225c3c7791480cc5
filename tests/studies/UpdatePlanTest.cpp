// The numbers are counted by hand: a pane as a row of points that new ones join at the right.
#include "studies/UpdatePlan.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

TEST(UpdatePlan, APaneWithRoomGrowsAndKeepsItsLeftEdge)
{
    // Points 1 to 10 of a window of 30, series 0 to 9; three more come: 10, 11 and 12.
    const sUpdatePlan plan = PlanUpdate({10, 1, 30, 12}, 3);
    EXPECT_EQ(plan.Dropped, 0);
    EXPECT_EQ(plan.Kept, 10);
    EXPECT_EQ(plan.Points, 13);
    EXPECT_EQ(plan.FirstNew, 11);
    EXPECT_EQ(plan.FirstIndex, 10);
    EXPECT_EQ(plan.XLow(), 1);
    EXPECT_EQ(plan.XHigh(), 13);
    EXPECT_EQ(plan.MarkerShift, 3);
}

TEST(UpdatePlan, AFullPaneDropsAsManyAsItTakes)
{
    // Points 30 of 30, x from 6 to 35; two come, so x is 8 to 37.
    const sUpdatePlan plan = PlanUpdate({30, 6, 30, 99}, 2);
    EXPECT_EQ(plan.Dropped, 2);
    EXPECT_EQ(plan.Kept, 28);
    EXPECT_EQ(plan.Points, 30);
    EXPECT_EQ(plan.FirstNew, 29);
    EXPECT_EQ(plan.FirstIndex, 98);
    EXPECT_EQ(plan.XLow(), 8);
    EXPECT_EQ(plan.XHigh(), 37);
    EXPECT_EQ(plan.MarkerShift, 2);
}

TEST(UpdatePlan, APaneThatFillsUpDropsOnlyTheRest)
{
    // 29 of 30 and three new points: two of the old ones leave.
    const sUpdatePlan plan = PlanUpdate({29, 1, 30, 31}, 3);
    EXPECT_EQ(plan.Dropped, 2);
    EXPECT_EQ(plan.Points, 30);
    EXPECT_EQ(plan.FirstNew, 28);
    EXPECT_EQ(plan.NewPoints(), 3);
    EXPECT_EQ(plan.MarkerShift, 2);
}

TEST(UpdatePlan, MoreNewPointsThanTheWindowShowsReplaceAll)
{
    const sUpdatePlan plan = PlanUpdate({30, 1, 30, 129}, 100);
    EXPECT_EQ(plan.Dropped, 100);
    EXPECT_EQ(plan.Kept, 0);
    EXPECT_EQ(plan.Points, 30);
    EXPECT_EQ(plan.FirstNew, 1);
    EXPECT_EQ(plan.FirstIndex, 100);
    EXPECT_EQ(plan.XLow(), 101);
    EXPECT_EQ(plan.XHigh(), 130);
}

TEST(UpdatePlan, APaneWithMorePointsThanTheWindowKeepsItsSize)
{
    // 60 points where the window shows 30 now: a new point drops 31 and the pane stays at 60.
    const sUpdatePlan plan = PlanUpdate({60, 1, 30, 60}, 1);
    EXPECT_EQ(plan.Dropped, 31);
    EXPECT_EQ(plan.Kept, 29);
    EXPECT_EQ(plan.Points, 60);
    EXPECT_EQ(plan.FirstNew, 60);
    EXPECT_EQ(plan.XLow(), 32);
}

TEST(UpdatePlan, AnEmptyPaneTakesWhatComes)
{
    const sUpdatePlan plan = PlanUpdate({0, 1, 30, 4}, 5);
    EXPECT_EQ(plan.Points, 5);
    EXPECT_EQ(plan.FirstNew, 1);
    EXPECT_EQ(plan.FirstIndex, 0);
}

} // namespace
} // namespace zantroq
