#include "window/BatchCounters.h"

#include <gtest/gtest.h>

#include <array>

namespace zantroq {
namespace {

struct sCountingView : IPaneView
{
    int Changes = 0;
    void PaneChanged() override { ++Changes; }
};

struct sBatchFixture
{
    sBatchFixture()
    {
        Panes[0].SetView(&Price);
        Panes[1].SetView(&Study);
    }
    void ChangeBoth()
    {
        for (CChart2D& pane : Panes)
            pane.PaneInterior().SetBackground(++Colors);
    }
    std::array<CChart2D, 2> Panes;
    CBatchCounters Batch{Panes};
    sCountingView Price, Study;
    ColorValue Colors = 0;
};

TEST(BatchCounters, NestedBatchesRepaintOnceAtTheOutermostEnd)
{
    sBatchFixture window;
    window.Batch.Begin();
    window.Batch.Begin();
    window.ChangeBoth();
    window.Batch.End();
    EXPECT_EQ(window.Price.Changes, 0);
    window.ChangeBoth();
    window.Batch.End();
    EXPECT_EQ(window.Price.Changes, 1);
    EXPECT_EQ(window.Study.Changes, 1);
    EXPECT_EQ(window.Batch.Outer(), 0);
    EXPECT_EQ(window.Batch.Inner(), 0);
}

TEST(BatchCounters, ThePriceBatchHoldsThePricePaneAlone)
{
    sBatchFixture window;
    window.Batch.BeginPrice();
    window.ChangeBoth();
    EXPECT_EQ(window.Price.Changes, 0);
    EXPECT_EQ(window.Study.Changes, 1);
    window.Batch.EndPrice();
    EXPECT_EQ(window.Price.Changes, 1);
}

TEST(BatchCounters, APriceBatchInsideAWholeOneEndsWithIt)
{
    sBatchFixture window;
    window.Batch.Begin();
    window.Batch.BeginPrice();
    window.ChangeBoth();
    window.Batch.EndPrice();
    EXPECT_EQ(window.Price.Changes, 0);
    window.Batch.End();
    EXPECT_EQ(window.Price.Changes, 1);
}

TEST(BatchCounters, AWholeBatchInsideAPriceBatchLeavesThePricePaneHeld)
{
    sBatchFixture window;
    window.Batch.BeginPrice();
    window.Batch.Begin();
    window.ChangeBoth();
    window.Batch.End();
    EXPECT_EQ(window.Price.Changes, 0);
    EXPECT_EQ(window.Study.Changes, 1);
    window.Batch.EndPrice();
    EXPECT_EQ(window.Price.Changes, 1);
}

} // namespace
} // namespace zantroq
