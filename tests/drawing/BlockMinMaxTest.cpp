// The stored minima and maxima of blocks of a series, after any sequence of changes, compared with a look at
// each value.
#include "scene/Chart2D.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace zantroq {
namespace {

constexpr double Hole = HoleValue;

bool IsPlain(double value)
{
    return std::isfinite(value) && value < Hole;
}

// The plain definitions.
bool LookAtEach(std::span<const double> values, sMinMax& found)
{
    if (values.empty())
        return false;
    found = {values[0], values[0]};
    for (const double value : values) {
        if (!IsPlain(value))
            return false;
        found = {std::min(found.Least, value), std::max(found.Greatest, value)};
    }
    return true;
}

bool IsDrawnValue(double value)
{
    return !std::isnan(value) && value != Hole;
}

class CChangingSeries
{
public:
    explicit CChangingSeries(unsigned seed) : m_random(seed)
    {
        Data().SetSeriesCount(2);
        Data().SetPointCount(1, 300);
        for (int i = 0; i < 3; ++i)
            Change();
    }
    CPaneData& Data() { return m_chart.PaneGroups(1).PaneData(); }
    int Below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }

    void Change()
    {
        CPaneData& data = Data();
        const int points = data.PointCount(1);
        switch (Below(8)) {
        case 0:
            data.SetPointY(2, 1 + Below(points), Value());
            break;
        case 1: {
            const int drop = 1 + Below(Below(4) ? std::min(5, points) : points);
            data.ShiftPoints(2, Below(6) ? points - drop : Below(points - drop + 1), drop + 1);
            break;
        }
        case 2:
            data.SetPointCount(1, 1 + Below(400));
            break;
        case 3:
            data.SetStepY(2, Below(points), Value());
            break;
        case 4: {
            const std::span<double> y = data.YForOverwrite(2);
            for (double& value : y)
                value = Below(90) ? Below(1000) - 500 : Value();
            data.UpdateBlockMinMax(2, static_cast<std::size_t>(Below(points)));
            break;
        }
        case 5: {
            const std::span<double> y = data.YForOverwrite(2);
            std::fill(y.begin() + Below(points), y.end(), Below(2) ? Hole : std::nan(""));
            break;
        }
        case 6:
            data.SetYVector(2, std::vector<double>(static_cast<std::size_t>(points), Value()));
            break;
        default:
            for (int i = 1; i <= points; i += 1 + Below(3))
                data.SetPointY(2, i, Below(60) ? Below(1000) : Value());
        }
    }

private:
    double Value()
    {
        static const double strange[] = {Hole,
                                         std::nan(""),
                                         std::numeric_limits<double>::infinity(),
                                         -std::numeric_limits<double>::infinity(),
                                         9e307,
                                         -1e308,
                                         0.0,
                                         -0.0};
        return Below(2) ? Below(1000) / 8.0 : strange[Below(8)];
    }

    std::mt19937 m_random;
    CChart2D m_chart;
};

TEST(BlockMinMax, AnswerAsALookAtEachValueDoes)
{
    int answered = 0;
    for (unsigned seed = 1; seed <= 30; ++seed) {
        CChangingSeries series(seed);
        for (int round = 0; round < 200; ++round) {
            series.Change();
            const CPaneData& data = series.Data();
            if (series.Below(3))
                data.UpdateBlockMinMax(2);
            const sBlockedValues blocked = data.BlockedY(2);
            const std::span<const double> y = data.Y(2);
            ASSERT_EQ(blocked.Values.data(), y.data());
            ASSERT_EQ(blocked.Values.size(), y.size());
            for (int i = 0; i < 20; ++i) {
                const auto first = static_cast<std::size_t>(series.Below(static_cast<int>(y.size())));
                const std::size_t end =
                    first + static_cast<std::size_t>(series.Below(static_cast<int>(y.size() - first) + 1));
                SCOPED_TRACE(testing::Message() << "seed " << seed << ", round " << round << ", from "
                                                << first << " to " << end << " of " << y.size());
                sMinMax expected, found;
                const bool plain = LookAtEach(y.subspan(first, end - first), expected);
                ASSERT_EQ(FindMinMax(blocked, first, end, found), plain);
                if (plain) {
                    ++answered;
                    ASSERT_EQ(found.Least, expected.Least);
                    ASSERT_EQ(found.Greatest, expected.Greatest);
                }
                const std::size_t skipped = SkipUndrawn(blocked, first);
                ASSERT_GE(skipped, first);
                ASSERT_LE(skipped, y.size());
                for (std::size_t k = first; k < skipped; ++k)
                    ASSERT_FALSE(IsDrawnValue(y[k])) << k;
            }
        }
    }
    EXPECT_GT(answered, 10000) << "or little was compared";
}

TEST(BlockMinMax, AreKnownAfterLearningAndStayKnownWhileTheSeriesSlides)
{
    CChart2D chart;
    CPaneData& data = chart.PaneGroups(1).PaneData();
    data.SetSeriesCount(1);
    data.SetPointCount(1, 1000);
    EXPECT_EQ(data.BlockedY(1).Blocks(), 0u);
    data.UpdateBlockMinMax(1);
    EXPECT_EQ(data.BlockedY(1).Blocks(), 1000 / sBlockedValues::BlockSize);
    for (int tick = 0; tick < 5; ++tick) {
        ASSERT_TRUE(data.ShiftPoints(1, 999, 2));
        data.SetPointY(1, 1000, tick);
    }
    EXPECT_GE(data.BlockedY(1).Blocks(), 1000 / sBlockedValues::BlockSize - 2);
    data.YForOverwrite(1);
    EXPECT_EQ(data.BlockedY(1).Blocks(), 0u);
    data.UpdateBlockMinMax(1, 100);
    EXPECT_GE(data.BlockedY(1).Blocks(), 100 / sBlockedValues::BlockSize - 1);
    EXPECT_LE(data.BlockedY(1).Blocks(), 100 / sBlockedValues::BlockSize);
    EXPECT_TRUE(data.BlockedY(2).Values.empty()) << "no such series";
}

} // namespace
} // namespace zantroq
