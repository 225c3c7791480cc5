// The vectors of a group after random sequences of operations, compared with plain vectors: optimisations
// (known constants, consecutive x, a sliding array) must never be visible.
#include "scene/Chart2D.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace zantroq {
namespace {

constexpr double Hole = HoleValue;

struct sPlainData
{
    std::vector<double> X;
    std::vector<std::vector<double>> Y;
    std::vector<int> FirstPoint, DrawnTo;

    bool Has(int series) const { return series >= 1 && series <= static_cast<int>(Y.size()); }
    bool Has(int series, int point) const
    {
        return Has(series) && point >= 1 && point <= static_cast<int>(X.size());
    }
    std::vector<double>& Series(int series) { return Y[static_cast<std::size_t>(series - 1)]; }

    void SetSeriesCount(int count)
    {
        if (count == 0)
            X.clear();
        Y.resize(static_cast<std::size_t>(count), std::vector<double>(X.size(), Hole));
        FirstPoint.resize(Y.size(), 1);
        DrawnTo.resize(Y.size(), 0);
    }
    void SetPointCount(int series, int count)
    {
        if (!Has(series))
            return;
        while (static_cast<int>(X.size()) < count)
            X.push_back(static_cast<double>(X.size() + 1));
        X.resize(static_cast<std::size_t>(count));
        for (std::vector<double>& y : Y)
            y.resize(X.size(), Hole);
    }
    bool Shift(int series, int count, int source)
    {
        if (!Has(series) || count < 0 || source < 1 || source - 1 + count > static_cast<int>(X.size()))
            return false;
        for (int i = 0; i < count; ++i)
            Series(series)[static_cast<std::size_t>(i)] =
                Series(series)[static_cast<std::size_t>(source - 1 + i)];
        for (int i = 0; i < count && series == 1; ++i)
            X[static_cast<std::size_t>(i)] = X[static_cast<std::size_t>(source - 1 + i)];
        return true;
    }
    bool Ascending() const
    {
        for (std::size_t i = 0; i < X.size(); ++i)
            if (std::isnan(X[i]) || (i > 0 && X[i] < X[i - 1]))
                return false;
        return true;
    }
};

void ExpectSame(const CPaneData& data, const sPlainData& plain)
{
    ASSERT_EQ(data.SeriesCount(), static_cast<int>(plain.Y.size()));
    const auto same = [](std::span<const double> a, const std::vector<double>& b) {
        return std::equal(a.begin(), a.end(), b.begin(), b.end(), IsSame<double>);
    };
    for (int series = 1; series <= data.SeriesCount(); ++series) {
        const auto at = static_cast<std::size_t>(series - 1);
        ASSERT_EQ(data.PointCount(series), static_cast<int>(plain.X.size()));
        ASSERT_TRUE(same(data.Y(series), plain.Y[at])) << "series " << series;
        ASSERT_EQ(data.FirstPoint(series), plain.FirstPoint[at]);
        ASSERT_EQ(data.DrawnTo(series), plain.DrawnTo[at]);
    }
    if (data.SeriesCount() > 0) {
        ASSERT_TRUE(same(data.X(), plain.X));
        const std::optional<double> first = data.ConsecutiveXFrom();
        for (std::size_t i = 0; first && i < plain.X.size(); ++i)
            ASSERT_EQ(plain.X[i], *first + static_cast<double>(i)) << i;
        ASSERT_EQ(data.XAscending(), plain.Ascending());
    }
}

void OneOperation(CPaneData& data, sPlainData& plain, std::mt19937& random)
{
    const auto below = [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
    const int points = static_cast<int>(plain.X.size());
    const int series = below(static_cast<int>(plain.Y.size()) + 2), point = below(points + 2);
    static const double values[] = {0.0, 1.5, 1.5, Hole, 2.5, -7.0, 1e9};
    const double value = values[below(7)];
    const auto vector = [&](int size) {
        std::vector<double> numbers;
        for (int i = 0; i < size; ++i)
            numbers.push_back(below(5) ? i + 1.0 : values[below(7)]);
        return numbers;
    };
    switch (below(16)) {
    case 0: {
        const int count = below(5);
        data.SetSeriesCount(count);
        plain.SetSeriesCount(count);
        break;
    }
    case 1: {
        const int count = below(40);
        data.SetPointCount(series, count);
        plain.SetPointCount(series, count);
        break;
    }
    case 2:
        data.SetPointX(series, point, value);
        if (plain.Has(series, point))
            plain.X[static_cast<std::size_t>(point - 1)] = value;
        break;
    case 3:
    case 4:
        data.SetPointY(series, point, value);
        if (plain.Has(series, point))
            plain.Series(series)[static_cast<std::size_t>(point - 1)] = value;
        break;
    case 5:
    case 6: {
        const int source = 1 + below(4), count = below(3) ? points - source + 1 : below(10) - 1;
        ASSERT_EQ(data.ShiftPoints(series, count, source), plain.Shift(series, count, source));
        break;
    }
    case 7:
    case 8: {
        const std::vector<double> numbers = vector(points + below(3) - 1 < 0 ? 0 : points + below(3) - 1);
        const bool fits = plain.Has(series) && numbers.size() >= plain.X.size();
        const bool x = below(2);
        ASSERT_EQ(x ? data.SetXVector(series, std::span<const double>(numbers))
                    : data.SetYVector(series, numbers),
                  fits);
        if (fits)
            std::copy_n(numbers.begin(), plain.X.size(), (x ? plain.X : plain.Series(series)).begin());
        break;
    }
    case 9: {
        const double first = below(2) ? 1 : below(5);
        data.NumberPoints(first);
        for (std::size_t i = 0; i < plain.X.size(); ++i)
            plain.X[i] = first + static_cast<double>(i);
        break;
    }
    case 10:
        data.SetConstantY(series, value);
        if (plain.Has(series))
            std::fill(plain.Series(series).begin(), plain.Series(series).end(), value);
        break;
    case 11: {
        const std::span<double> room = data.YForOverwrite(series);
        ASSERT_EQ(room.size(), plain.Has(series) ? plain.X.size() : 0);
        for (std::size_t i = 0; i < room.size(); ++i)
            room[i] = plain.Series(series)[i] = below(3) ? 1.5 : value;
        break;
    }
    case 12: {
        const int count = below(6) - 1;
        const bool moves = plain.Has(series) && count >= 0 &&
                           plain.DrawnTo[static_cast<std::size_t>(series - 1)] + count <= points;
        ASSERT_EQ(data.AdvanceDrawn(series, count), moves);
        if (moves)
            plain.DrawnTo[static_cast<std::size_t>(series - 1)] += count;
        break;
    }
    case 13: { // one more point in a full window
        const double next = plain.X.empty() ? 0 : plain.X.back() + 1;
        for (int one = 1; one <= static_cast<int>(plain.Y.size()); ++one)
            ASSERT_EQ(data.ShiftPoints(one, points - 1, 2), plain.Shift(one, points - 1, 2));
        data.SetPointX(1, points, next);
        if (!plain.X.empty())
            plain.X.back() = next;
        break;
    }
    case 14: {
        CChart2D chart;
        CPaneData& other = chart.PaneGroups(1).PaneData();
        const int count = std::max(0, points + below(4) - 1);
        other.SetSeriesCount(1);
        other.SetPointCount(1, count);
        if (below(2))
            other.NumberPoints(below(4));
        else if (count > 0)
            other.SetPointX(1, 1 + below(count), value);
        const bool fits = count >= points && !plain.Y.empty();
        ASSERT_EQ(data.TakeX(other), fits);
        for (std::size_t i = 0; fits && i < plain.X.size(); ++i)
            plain.X[i] = other.X()[i];
        break;
    }
    default:
        data.SetDrawnTo(series, point);
        data.SetFirstPoint(series, 1 + below(3));
        if (plain.Has(series)) {
            plain.DrawnTo[static_cast<std::size_t>(series - 1)] = point;
            plain.FirstPoint[static_cast<std::size_t>(series - 1)] = data.FirstPoint(series);
        }
    }
}

TEST(PaneDataModel, AnyRowOfOperationsLeavesPlainVectors)
{
    for (unsigned seed = 1; seed <= 60; ++seed) {
        std::mt19937 random(seed);
        CChart2D chart;
        CPaneData& data = chart.PaneGroups(1).PaneData();
        sPlainData plain;
        for (int round = 0; round < 400; ++round) {
            SCOPED_TRACE(testing::Message() << "seed " << seed << ", round " << round);
            OneOperation(data, plain, random);
            ExpectSame(data, plain);
            if (testing::Test::HasFatalFailure())
                return;
        }
    }
}

// A live chart drops a point at the left for each new one at the right, thousands of times.
TEST(PaneDataModel, AFullWindowSlidesForEver)
{
    CChart2D chart;
    CPaneData& data = chart.PaneGroups(1).PaneData();
    constexpr int points = 50;
    data.SetSeriesCount(2);
    data.SetPointCount(1, points);
    for (int taken = 1; taken <= 3000; ++taken) {
        for (const int series : {1, 2}) {
            ASSERT_TRUE(data.ShiftPoints(series, points - 1, 2));
            data.SetPointY(series, points, series * 10000.0 + taken);
        }
        for (const int series : {1, 2})
            for (int point = std::max(1, points - taken + 1); point <= points; ++point)
                ASSERT_EQ(data.PointY(series, point), series * 10000.0 + taken - points + point)
                    << "after " << taken;
    }
}

TEST(PaneData, XCountsOnWhilePointsComeAndGo)
{
    CChart2D chart;
    CPaneData& data = chart.PaneGroups(1).PaneData();
    data.SetSeriesCount(1);
    EXPECT_EQ(data.ConsecutiveXFrom(), std::nullopt) << "no point";
    data.SetPointCount(1, 5);
    EXPECT_EQ(data.ConsecutiveXFrom(), 1);
    ASSERT_TRUE(data.ShiftPoints(1, 4, 2));
    EXPECT_EQ(data.ConsecutiveXFrom(), std::nullopt) << "the last x stands twice";
    data.SetPointX(1, 5, 6);
    EXPECT_EQ(data.ConsecutiveXFrom(), 2);
    data.SetPointX(1, 3, 9);
    EXPECT_EQ(data.ConsecutiveXFrom(), std::nullopt);
    data.NumberPoints(2);
    EXPECT_EQ(data.ConsecutiveXFrom(), 2);
    EXPECT_EQ(data.PointX(1, 3), 4);
    data.SetPointCount(1, 6);
    EXPECT_EQ(data.PointX(1, 6), 6) << "points that come into being are numbered from 1";
    EXPECT_EQ(data.ConsecutiveXFrom(), std::nullopt);
    data.SetPointX(1, 6, 7);
    EXPECT_EQ(data.ConsecutiveXFrom(), 2);
}

} // namespace
} // namespace zantroq
