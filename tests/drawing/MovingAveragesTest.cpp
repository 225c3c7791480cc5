#include "drawing/MovingAverages.h"
#include "drawing/BollingerBands.h"
#include "scene/HoleValue.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

namespace zantroq {
namespace {

constexpr double Hole = HoleValue;

// The plain definitions, one index at a time.
double PlainSimple(const std::vector<double>& closes, int i, int period)
{
    if (period < 1 || i < period)
        return Hole;
    double sum = 0;
    for (int j = i - period + 1; j <= i; ++j)
        sum += closes[static_cast<std::size_t>(j)];
    return sum / period;
}

double PlainExponential(const std::vector<double>& closes, int i, int period)
{
    if (period < 1 || i <= period)
        return Hole;
    const double weight = 2.0 / (period + 1);
    return weight * closes[static_cast<std::size_t>(i)] + (1 - weight) * PlainSimple(closes, i - 1, period);
}

double PlainDeviation(const std::vector<double>& closes, int i, int period)
{
    const double middle = PlainSimple(closes, i, period);
    double sum = 0;
    for (int j = i - period + 1; j <= i; ++j)
        sum +=
            (closes[static_cast<std::size_t>(j)] - middle) * (closes[static_cast<std::size_t>(j)] - middle);
    return std::sqrt(sum / period);
}

bool SameBits(double a, double b)
{
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

sCloseRun RunFor(const std::vector<double>& closes, int first, int shown, int period)
{
    const int from = FirstCloseNeeded(first, period);
    const std::span<const double> all(closes);
    return {all.subspan(static_cast<std::size_t>(from), static_cast<std::size_t>(first + shown - from)),
            from};
}

std::vector<double> Random(std::size_t count, unsigned seed)
{
    std::mt19937 random(seed);
    std::vector<double> closes(count);
    for (double& close : closes)
        close = 100.0 + static_cast<double>(random() % 100000) * 0.01 / 7.0;
    return closes;
}

TEST(SimpleAverage, FirstValueStandsAtThePeriod)
{
    const std::vector<double> closes{1, 2, 3, 4, 5, 6};
    std::vector<double> out(6);
    SimpleAverages({closes, 0}, 0, 3, out);
    EXPECT_EQ(out, (std::vector<double>{Hole, Hole, Hole, 3, 4, 5}));
}

TEST(ExponentialAverage, FirstValueStandsOneAfterThePeriod)
{
    const std::vector<double> closes{1, 2, 3, 4, 5, 9};
    std::vector<double> out(6);
    ExponentialAverages({closes, 0}, 0, 3, out);
    // 2/4 * 5 + 2/4 * mean(2, 3, 4) = 4; 2/4 * 9 + 2/4 * mean(3, 4, 5) = 6.5: the previous value is not used.
    EXPECT_EQ(out, (std::vector<double>{Hole, Hole, Hole, Hole, 4, 6.5}));
}

TEST(MovingAverages, WindowInsideTheSeriesLooksBackPastItsBeginning)
{
    const std::vector<double> closes{1, 2, 3, 4, 5, 9};
    std::vector<double> out(2);
    EXPECT_EQ(FirstCloseNeeded(4, 3), 1);
    SimpleAverages(RunFor(closes, 4, 2, 3), 4, 3, out);
    EXPECT_EQ(out, (std::vector<double>{4, 6}));
    ExponentialAverages(RunFor(closes, 4, 2, 3), 4, 3, out);
    EXPECT_EQ(out, (std::vector<double>{4, 6.5}));
}

TEST(MovingAverages, StrangePeriodsGiveHolesAndDoNoHarm)
{
    const std::vector<double> closes{1, 2, 3, 4, 5, 6};
    for (int period :
         {0, -1, std::numeric_limits<int>::min(), 6, 7, 200000, std::numeric_limits<int>::max()}) {
        std::vector<double> simple(6, 1), exponential(6, 1), lower(6, 1), upper(6, 1), middle(6, 1);
        SimpleAverages(RunFor(closes, 0, 6, period), 0, period, simple);
        ExponentialAverages(RunFor(closes, 0, 6, period), 0, period, exponential);
        BollingerBands(RunFor(closes, 0, 6, period), 0, period, 2, lower, upper, middle);
        const std::vector<double> holes(6, Hole);
        EXPECT_EQ(simple, holes) << period;
        EXPECT_EQ(exponential, holes) << period;
        EXPECT_EQ(lower, holes) << period;
        EXPECT_EQ(upper, holes) << period;
        EXPECT_EQ(middle, holes) << period;
    }
    std::vector<double> none;
    SimpleAverages({closes, 0}, 0, 3, none);
    ExponentialAverages({closes, 0}, 0, 3, none);
    BollingerBands({closes, 0}, 0, 3, 2, none, none, none);
}

TEST(MovingAverages, PeriodOfOneIsTheCloseItself)
{
    const std::vector<double> closes{1.1, 2.2, 3.3};
    std::vector<double> out(3);
    SimpleAverages({closes, 0}, 0, 1, out);
    EXPECT_EQ(out, (std::vector<double>{Hole, 2.2, 3.3}));
}

// Rounding makes the order visible: added from the earliest on, each 1 is lost against 1e16; in the reverse
// order none is.
TEST(MovingAverages, SumsRunFromTheEarliestClose)
{
    const std::vector<double> closes{0, 1e16, 1, 1, 1};
    std::vector<double> out(1);
    SimpleAverages(RunFor(closes, 4, 1, 4), 4, 4, out);
    EXPECT_EQ(out[0], 1e16 / 4);
}

RC_GTEST_PROP(MovingAverages, AgreeBitForBitWithThePlainDefinition, ())
{
    const int count = *rc::gen::inRange(1, 400);
    const int first = *rc::gen::inRange(0, count);
    const int shown = *rc::gen::inRange(1, count - first + 1);
    const int period = *rc::gen::inRange(-2, 70);
    const double deviations = *rc::gen::element(0.01, 1.0, 2.0, 2.5, 100.0);
    const std::vector<double> closes =
        Random(static_cast<std::size_t>(count), *rc::gen::arbitrary<unsigned>());
    const auto size = static_cast<std::size_t>(shown);
    std::vector<double> simple(size), exponential(size), lower(size), upper(size), middle(size);
    const sCloseRun run = RunFor(closes, first, shown, period);
    SimpleAverages(run, first, period, simple);
    ExponentialAverages(run, first, period, exponential);
    BollingerBands(run, first, period, deviations, lower, upper, middle);
    for (int k = 0; k < shown; ++k) {
        const auto at = static_cast<std::size_t>(k);
        RC_ASSERT(SameBits(simple[at], PlainSimple(closes, first + k, period)));
        RC_ASSERT(SameBits(exponential[at], PlainExponential(closes, first + k, period)));
        const double mid = PlainSimple(closes, first + k, period);
        RC_ASSERT(SameBits(middle[at], mid));
        if (mid == Hole) {
            RC_ASSERT(lower[at] == Hole && upper[at] == Hole);
            continue;
        }
        const double deviation = PlainDeviation(closes, first + k, period);
        RC_ASSERT(SameBits(upper[at], mid + deviations * deviation));
        RC_ASSERT(SameBits(lower[at], mid - deviations * deviation));
    }
}

TEST(MovingAverages, LongestOfferedPeriodAgreesToo)
{
    const std::vector<double> closes = Random(1500, 7);
    std::vector<double> simple(1500), exponential(1500);
    SimpleAverages({closes, 0}, 0, 999, simple);
    ExponentialAverages({closes, 0}, 0, 999, exponential);
    for (int i = 0; i < 1500; ++i) {
        EXPECT_TRUE(SameBits(simple[static_cast<std::size_t>(i)], PlainSimple(closes, i, 999))) << i;
        EXPECT_TRUE(SameBits(exponential[static_cast<std::size_t>(i)], PlainExponential(closes, i, 999)))
            << i;
    }
}

TEST(BollingerBands, UsePopulationDeviation)
{
    // Closes 2, 4, 4, 4, 5, 5, 7, 9 have mean 5 and population deviation 2.
    const std::vector<double> closes{0, 2, 4, 4, 4, 5, 5, 7, 9};
    std::vector<double> lower(1), upper(1), middle(1);
    BollingerBands(RunFor(closes, 8, 1, 8), 8, 8, 1.5, lower, upper, middle);
    EXPECT_EQ(middle[0], 5);
    EXPECT_EQ(upper[0], 8);
    EXPECT_EQ(lower[0], 2);
}

TEST(BollingerBands, FlatSeriesHasNoWidth)
{
    const std::vector<double> closes(30, 12.5);
    std::vector<double> lower(30), upper(30), middle(30);
    BollingerBands({closes, 0}, 0, 20, 2, lower, upper, middle);
    EXPECT_EQ(middle[19], Hole);
    EXPECT_EQ(lower[20], 12.5);
    EXPECT_EQ(upper[29], 12.5);
}

TEST(BollingerBands, NotANumberPassesThrough)
{
    std::vector<double> closes(30, 12.5);
    closes[10] = std::numeric_limits<double>::quiet_NaN();
    std::vector<double> lower(30), upper(30), middle(30);
    BollingerBands({closes, 0}, 0, 5, 2, lower, upper, middle);
    EXPECT_TRUE(std::isnan(lower[10]) && std::isnan(upper[14]) && std::isnan(middle[14]));
    EXPECT_EQ(middle[15], 12.5);
}

} // namespace
} // namespace zantroq
