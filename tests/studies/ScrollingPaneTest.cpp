// The vectors of a pane scroll without being moved; they must look as if each shift were a plain copy.
#include "drawing/Chart2D.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <vector>

namespace zantroq {
namespace {

RC_GTEST_PROP(ScrollingPane, ShiftsLooksLikePlainCopies, ())
{
    CChart2D chart;
    CPaneData& data = chart.PaneGroups(1).PaneData();
    data.SetSeriesCount(1);
    std::vector<double> x, y;
    double next = 0;
    const int steps = *rc::gen::inRange(1, 400);
    for (int step = 0; step < steps; ++step) {
        const int size = static_cast<int>(y.size());
        if (*rc::gen::inRange(0, 5) == 0) {
            const int newSize = *rc::gen::inRange(0, 120);
            data.SetPointCount(1, newSize);
            for (int i = size; i < newSize; ++i) {
                x.push_back(i + 1);
                y.push_back(CPaneData::HoleValue());
            }
            x.resize(static_cast<std::size_t>(newSize));
            y.resize(static_cast<std::size_t>(newSize));
        } else if (size > 0) {
            const int drop = *rc::gen::inRange(0, std::min(size, 12) + 1);
            const int count =
                *rc::gen::inRange(0, 4) == 0 ? *rc::gen::inRange(0, size - drop + 1) : size - drop;
            RC_ASSERT(data.ShiftPoints(1, count, drop + 1));
            std::copy_n(y.begin() + drop, count, y.begin());
            std::copy_n(x.begin() + drop, count, x.begin());
            const int point = *rc::gen::inRange(1, size + 1);
            data.SetPointY(1, point, ++next);
            y[static_cast<std::size_t>(point - 1)] = next;
        }
        RC_ASSERT(std::ranges::equal(data.Y(1), y));
        RC_ASSERT(std::ranges::equal(data.X(), x));
    }
}

TEST(ScrollingPane, WholeYIsWrittenInPlace)
{
    CChart2D chart;
    CPaneData& data = chart.PaneGroups(1).PaneData();
    data.SetSeriesCount(2);
    data.SetPointCount(1, 3);
    const auto before = data.Revision();
    const std::span<double> y = data.WholeY(2);
    std::fill(y.begin(), y.end(), 7.0);
    EXPECT_EQ(data.PointY(2, 3), 7.0);
    EXPECT_EQ(data.PointY(1, 3), CPaneData::HoleValue());
    EXPECT_TRUE(data.ChangesSince(before).Whole);
    EXPECT_TRUE(data.WholeY(3).empty());
}

} // namespace
} // namespace zantroq
