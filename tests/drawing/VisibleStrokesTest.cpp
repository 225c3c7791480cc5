// The visible strokes of a pixel column, compared with a plot whose rows are painted stroke by stroke.
#include "ink/VisibleStrokes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace zantroq {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();

sPlotMap PlotOf(int top, int bottom, double low, double high)
{
    sPlotMap map;
    map.Plot = {10, top, 20, bottom};
    map.Y = CAxisMap(low, high, bottom - 1, top);
    return map;
}

struct sStrokes
{
    std::vector<double> High, Low;
    void Add(double high, double low)
    {
        High.push_back(high);
        Low.push_back(low);
    }
};

struct sSeenStroke
{
    std::size_t Point;
    int Top, Bottom; // rows covered by it and all later ones
    bool operator==(const sSeenStroke&) const = default;
};

// The plain definition: each row of the plot belongs to the last stroke that covers it. Returns false if the
// covered rows are not contiguous, so that two ends cannot describe them.
bool PaintRows(const sStrokes& strokes, std::size_t first, std::size_t last, const sPlotMap& map,
               std::vector<sSeenStroke>& seen)
{
    std::vector<bool> covered(static_cast<std::size_t>(map.Plot.Bottom));
    seen.clear();
    for (std::size_t i = last; i-- > first;) {
        const int a = map.Y.Pixel(strokes.High[i]), b = map.Y.Pixel(strokes.Low[i]);
        bool isNew = false;
        for (int row = map.Plot.Top; row < map.Plot.Bottom; ++row)
            if (row >= std::min(a, b) && row <= std::max(a, b) && !covered[static_cast<std::size_t>(row)])
                isNew = covered[static_cast<std::size_t>(row)] = true;
        if (!isNew) {
            if (seen.empty())
                return false;
            continue;
        }
        int top = map.Plot.Top, bottom = map.Plot.Bottom;
        while (!covered[static_cast<std::size_t>(top)])
            ++top;
        while (!covered[static_cast<std::size_t>(bottom) - 1])
            --bottom;
        for (int row = top; row < bottom; ++row)
            if (!covered[static_cast<std::size_t>(row)])
                return false;
        seen.push_back({i, top, bottom});
    }
    return true;
}

std::vector<sSeenStroke> ListOf(const CVisibleStrokes& points, std::size_t first, const sPlotMap& map)
{
    const CVisibleStrokes::sFound found = points.Found();
    std::vector<sSeenStroke> list;
    for (std::size_t k = 0; k < found.Count; ++k)
        list.push_back({first + static_cast<std::size_t>(found.Point[k]), map.Plot.Bottom - found.Up[k],
                        map.Plot.Top + found.Down[k]});
    return list;
}

class VisibleStrokes : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!CVisibleStrokes(PlotOf(0, 100, 0, 100)).Available())
            GTEST_SKIP() << "this processor has no AVX2";
    }
};

TEST_F(VisibleStrokes, AreThoseThatReachBeyondAllLaterOnes)
{
    const sPlotMap map = PlotOf(0, 101, 0, 100); // a value is its height in rows
    sStrokes strokes;
    for (int i = 0; i < 6; ++i)
        strokes.Add(50, 50);
    strokes.Add(55, 45); // 6: further at both ends
    strokes.Add(53, 49); // 7: further up
    strokes.Add(52, 50); // 8: no further
    strokes.Add(52, 49); // 9: the last one
    CVisibleStrokes points(map);
    ASSERT_TRUE(points.Find(strokes.High, strokes.Low, 0, 10));
    const std::vector<sSeenStroke> expected{{9, 48, 52}, {7, 47, 52}, {6, 45, 56}};
    EXPECT_TRUE(ListOf(points, 0, map) == expected);
}

TEST_F(VisibleStrokes, OfAnyWalkAreThoseWhosePixelsShow)
{
    std::mt19937 random(11);
    const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    int told = 0;
    for (int round = 0; round < 4000; ++round) {
        const int top = below(3) * 7, rows = 1 + below(round % 10 == 0 ? 3000 : 90);
        const bool upsideDown = below(5) == 0;
        const sPlotMap map = upsideDown ? PlotOf(top, top + rows, 100, 0) : PlotOf(top, top + rows, 0, 100);
        const double step = 0.05 * std::pow(10, below(4)), length = 0.1 * std::pow(10, below(3));
        sStrokes strokes;
        double value = 50;
        const int count = 8 + below(round % 4 == 0 ? 600 : 40);
        for (int i = 0; i < count; ++i) {
            const double next = value + step * (below(201) - 100) / 100;
            const double a = std::max(value, next) + length * below(100) / 100,
                         b = std::min(value, next) - length * below(100) / 100;
            below(50) == 0 ? strokes.Add(b, a) : strokes.Add(a, b);
            value = below(40) == 0 ? value : next;
        }
        const auto first = static_cast<std::size_t>(below(count - 7)), last = static_cast<std::size_t>(count);
        std::vector<sSeenStroke> expected;
        const bool together = PaintRows(strokes, first, last, map, expected);
        CVisibleStrokes points(map);
        const bool found = points.Find(strokes.High, strokes.Low, first, last);
        if (found) {
            ASSERT_TRUE(together) << "round " << round;
            ASSERT_TRUE(ListOf(points, first, map) == expected) << "round " << round;
        }
        told += found;
    }
    EXPECT_GT(told, 1000);
}

TEST_F(VisibleStrokes, AreNotToldWhereRowsBetweenThemStayBare)
{
    const sPlotMap map = PlotOf(0, 101, 0, 100);
    for (const double gap : {1.0, 2.0, 30.0})
        for (int at = 0; at < 19; ++at) {
            sStrokes strokes;
            for (int i = 0; i < 20; ++i)
                strokes.Add(i <= at ? 50 - gap : 52, i <= at ? 48 - gap : 50);
            CVisibleStrokes points(map);
            EXPECT_EQ(gap == 1.0, points.Find(strokes.High, strokes.Low, 0, 20)) << gap << " at " << at;
        }
}

TEST_F(VisibleStrokes, AreNotToldWhereAPointIsNotDrawnOrFarAway)
{
    const sPlotMap map = PlotOf(0, 101, 0, 100);
    for (const double bad :
         {HoleValue, std::nan(""), Infinity, -Infinity, 1e9, -1e9, 1e300, -1e300, 40000.0, -40000.0})
        for (int at = 0; at < 21; ++at)
            for (const bool high : {true, false}) {
                sStrokes strokes;
                for (int i = 0; i < 21; ++i)
                    strokes.Add(52, 48);
                (high ? strokes.High : strokes.Low)[static_cast<std::size_t>(at)] = bad;
                CVisibleStrokes points(map);
                EXPECT_FALSE(points.Find(strokes.High, strokes.Low, 0, 21)) << bad << " at " << at;
            }
}

TEST_F(VisibleStrokes, AreNotToldWhereTheLastOneIsOutOfSightOrTheyAreFew)
{
    const sPlotMap map = PlotOf(5, 101, 0, 100);
    sStrokes strokes;
    for (int i = 0; i < 8; ++i)
        strokes.Add(52, 48);
    CVisibleStrokes points(map);
    EXPECT_TRUE(points.Find(strokes.High, strokes.Low, 0, 8));
    EXPECT_FALSE(points.Find(strokes.High, strokes.Low, 1, 8)) << "seven";
    EXPECT_FALSE(points.Find(strokes.High, strokes.Low, 8, 8)) << "none";
    for (const double outside : {200.0, -200.0}) {
        strokes.High[7] = outside + 1;
        strokes.Low[7] = outside;
        EXPECT_FALSE(points.Find(strokes.High, strokes.Low, 0, 8)) << outside;
    }
}

TEST_F(VisibleStrokes, AreOfNoUseForAViewWithoutExtentOrAHugePicture)
{
    EXPECT_FALSE(CVisibleStrokes(PlotOf(0, 101, 5, 5)).Available());
    EXPECT_FALSE(CVisibleStrokes(PlotOf(7, 7, 0, 100)).Available());
    EXPECT_TRUE(CVisibleStrokes(PlotOf(0, 16000, 0, 100)).Available());
    EXPECT_FALSE(CVisibleStrokes(PlotOf(0, 17000, 0, 100)).Available());
}

} // namespace
} // namespace zantroq
