#include "paint/DirtyRects.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

std::vector<int> Lefts(const CDirtyRects& dirty)
{
    std::vector<int> lefts;
    for (const sPixelRect& rect : dirty.Rects())
        lefts.push_back(rect.Left);
    return lefts;
}

// Two rectangles cost 64 + 10 * 50 each, their common one 64 + 20 * 50.
TEST(DirtyRects, NeighborsBecomeOneRectangle)
{
    CDirtyRects dirty;
    dirty.Add({10, 5, 20, 55});
    dirty.Add({20, 5, 30, 55});
    ASSERT_EQ(dirty.Rects().size(), 1u);
    EXPECT_EQ(dirty.Rects()[0].Left, 10);
    EXPECT_EQ(dirty.Rects()[0].Top, 5);
    EXPECT_EQ(dirty.Rects()[0].Right, 30);
    EXPECT_EQ(dirty.Rects()[0].Bottom, 55);
}

TEST(DirtyRects, RectanglesFarApartStayApart)
{
    CDirtyRects dirty;
    dirty.Add({10, 5, 20, 55});
    dirty.Add({100, 5, 110, 55});
    EXPECT_EQ(Lefts(dirty), (std::vector<int>{10, 100}));
}

TEST(DirtyRects, DropNewestStopsAtTheFirstRectangleThatReachesOut)
{
    CDirtyRects dirty;
    for (const int left : {100, 10, 200, 300})
        dirty.Add({left, 5, left + 10, 55});
    dirty.DropNewest({90, 0, 400, 60});
    EXPECT_EQ(Lefts(dirty), (std::vector<int>{100, 10}));
}

TEST(DirtyRects, AfterDropNewestRectanglesMergeWithTheLastOneLeft)
{
    CDirtyRects dirty;
    dirty.Add({10, 5, 20, 55});
    dirty.Add({100, 5, 110, 55});
    dirty.DropNewest({90, 0, 400, 60});
    dirty.Add({20, 5, 30, 55});
    ASSERT_EQ(dirty.Rects().size(), 1u);
    EXPECT_EQ(dirty.Rects()[0].Right, 30);
}

} // namespace
} // namespace zantroq
