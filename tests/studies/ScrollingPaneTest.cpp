// The vectors of a pane scroll without being copied; the result must equal a plain copy at each shift.
#include "scene/Chart2D.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <random>
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
                y.push_back(HoleValue);
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
    const std::span<double> y = data.YForOverwrite(2);
    std::fill(y.begin(), y.end(), 7.0);
    EXPECT_EQ(data.PointY(2, 3), 7.0);
    EXPECT_EQ(data.PointY(1, 3), HoleValue);
    EXPECT_TRUE(data.ChangesSince(before).Whole);
    EXPECT_TRUE(data.YForOverwrite(3).empty());
}

TEST(ScrollingPane, NumberingPointsRestoresXAfterAnyChange)
{
    CChart2D pane;
    CPaneData& data = pane.PaneGroups(1).PaneData();
    data.SetSeriesCount(1);
    data.SetPointCount(1, 4);
    const auto expectNumbers = [&] {
        data.NumberPoints();
        EXPECT_THAT(std::vector<double>(data.X().begin(), data.X().end()), testing::ElementsAre(1, 2, 3, 4));
        EXPECT_TRUE(data.XAscending());
    };
    expectNumbers();
    data.SetPointX(1, 2, 7);
    expectNumbers();
    ASSERT_TRUE(data.ShiftPoints(1, 3, 2));
    expectNumbers();
    ASSERT_TRUE(data.SetXVector(1, std::vector<double>{9, 8, 7, 6}));
    expectNumbers();
    ASSERT_TRUE(data.SetXVector(1, std::vector<int>{5, 6, 7, 8}));
    expectNumbers();
    data.SetPointCount(1, 2);
    data.SetPointCount(1, 4);
    expectNumbers();
    const std::uint64_t revision = data.Revision();
    data.NumberPoints();
    EXPECT_EQ(data.Revision(), revision) << "nothing changed";
}

TEST(ScrollingPane, AConstantIsWrittenAgainAfterAnyOtherWrite)
{
    CChart2D pane;
    CPaneData& data = pane.PaneGroups(1).PaneData();
    data.SetSeriesCount(2);
    data.SetPointCount(1, 3);
    const auto expectConstant = [&](double y) {
        data.SetConstantY(2, y);
        const auto values = data.Y(2);
        EXPECT_THAT(std::vector<double>(values.begin(), values.end()),
                    testing::ElementsAreArray(std::vector<double>(values.size(), y)));
    };
    expectConstant(70);
    expectConstant(30);
    data.SetPointY(2, 3, 5);
    expectConstant(30);
    data.YForOverwrite(2)[0] = 1;
    expectConstant(30);
    data.YForOverwrite(2)[1] = 1;
    expectConstant(30);
    ASSERT_TRUE(data.SetYVector(2, std::vector<double>{1, 2, 3}));
    expectConstant(30);
    data.SetPointCount(1, 5);
    expectConstant(30);
    ASSERT_TRUE(data.ShiftPoints(2, 4, 2));
    expectConstant(30);
    const std::uint64_t revision = data.Revision();
    data.SetConstantY(2, 30);
    data.SetConstantY(3, 30);
    EXPECT_EQ(data.Revision(), revision) << "nothing changed";
    EXPECT_DOUBLE_EQ(data.PointY(1, 1), HoleValue);
}

TEST(ScrollingPane, AStepHoldsHolesBeforeItsPointWhateverStoodThere)
{
    CChart2D pane;
    CPaneData& data = pane.PaneGroups(1).PaneData();
    data.SetSeriesCount(2);
    data.SetPointCount(1, 6);
    std::mt19937 random(7);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    for (int round = 0; round < 3000; ++round) {
        const int points = data.PointCount(2);
        switch (below(8)) {
        case 0:
            data.SetPointY(2, 1 + below(points), 5);
            break;
        case 1:
            data.YForOverwrite(2)[static_cast<std::size_t>(below(points))] = 1;
            break;
        case 2:
            data.SetPointCount(1, 1 + below(9));
            break;
        case 3:
            ASSERT_TRUE(data.ShiftPoints(2, points - 1, 2));
            break;
        case 4:
            data.SetConstantY(2, 3);
            break;
        default:
            break; // a step over the last one
        }
        const int from = below(12) - 1, now = data.PointCount(2);
        const double value = below(2);
        data.SetStepY(2, from, value);
        for (int point = 1; point <= now; ++point)
            ASSERT_EQ(data.PointY(2, point), point < from ? HoleValue : value)
                << "round " << round << ", point " << point << " of " << now << ", step at " << from;
        const std::uint64_t revision = data.Revision();
        data.SetStepY(2, from, value);
        data.SetStepY(3, from, value);
        ASSERT_EQ(data.Revision(), revision) << "nothing changed";
    }
}

} // namespace
} // namespace zantroq
