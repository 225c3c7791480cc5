#include "support/SeriesFixture.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

constexpr double Hole = CPaneData::HoleValue();

std::vector<double> Values(std::span<const double> values)
{
    return {values.begin(), values.end()};
}

TEST(PriceDraw, ShortSeriesFillsTheWindowWithAllItHas)
{
    CSeriesFixture chart;
    chart.Add(10, 12, 9, 11);
    chart.Add(11, 14, 10, 13);
    chart.Add(13, 13, 8, 9);
    chart.manager.FullRedraw();
    const sDisplayRange& range = chart.window.range;
    EXPECT_EQ(range.first, 0);
    EXPECT_EQ(range.last, 2);
    EXPECT_EQ(range.shown, 3);
    EXPECT_EQ(Values(chart.Bars().X()), (std::vector<double>{1, 2, 3}));
    EXPECT_EQ(Values(chart.Bars().Y(1)), (std::vector<double>{12, 14, 13}));
    EXPECT_EQ(Values(chart.Bars().Y(2)), (std::vector<double>{9, 10, 8}));
    EXPECT_EQ(Values(chart.Bars().Y(3)), (std::vector<double>{10, 11, 13}));
    EXPECT_EQ(Values(chart.Bars().Y(4)), (std::vector<double>{11, 13, 9}));
}

} // namespace
} // namespace zantroq
