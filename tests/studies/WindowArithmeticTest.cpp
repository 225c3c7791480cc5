// Sums, means and extremes of sliding windows compared bit for bit with a loop over each window, for counts
// and lengths around the block sizes.
#include "studies/WindowArithmetic.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <random>
#include <vector>

namespace zantroq {
namespace {

// Numbers of very different sizes, so that another order of additions would be visible.
std::vector<double> Numbers(std::size_t count)
{
    std::mt19937 random(4711);
    std::uniform_real_distribution<double> unit(-1, 1);
    std::vector<double> numbers(count);
    for (double& number : numbers)
        number = unit(random) * std::pow(10.0, static_cast<double>(random() % 12));
    return numbers;
}

template<class Check> void ForEachSize(const Check& check)
{
    for (const int count : {0, 1, 7, 8, 9, 15, 16, 31, 32, 33, 63, 64, 65, 100, 257})
        for (const int terms : {1, 2, 3, 4, 5, 14, 15, 25, 100})
            check(count, terms, Numbers(static_cast<std::size_t>(count + terms - 1)));
}

std::uint64_t Bits(double value)
{
    return std::bit_cast<std::uint64_t>(value);
}

} // namespace

TEST(WindowArithmetic, EachSumIsThatOfALoopFromItsEarliestTerm)
{
    ForEachSize([](int count, int terms, const std::vector<double>& numbers) {
        std::vector<double> sums(static_cast<std::size_t>(count)), means(sums);
        SumWindows(numbers.data(), count, terms, sums.data());
        MeanWindows(numbers.data(), count, terms, 14, means.data());
        for (std::size_t i = 0; i < sums.size(); ++i) {
            double sum = 0;
            for (std::size_t t = 0; t < static_cast<std::size_t>(terms); ++t)
                sum += numbers[i + t];
            ASSERT_EQ(Bits(sums[i]), Bits(sum)) << count << " windows of " << terms << ", window " << i;
            ASSERT_EQ(Bits(means[i]), Bits(sum / 14)) << count << " windows of " << terms << ", window " << i;
        }
    });
}

TEST(WindowArithmetic, ANotANumberAndAnInfinityStayInTheirWindows)
{
    std::vector<double> numbers(100, 1.0);
    numbers[40] = std::nan("");
    numbers[70] = INFINITY;
    double sums[91];
    SumWindows(numbers.data(), 91, 10, sums);
    for (int i = 0; i < 91; ++i) {
        if (i >= 31 && i <= 40)
            EXPECT_TRUE(std::isnan(sums[i])) << i;
        else if (i >= 61 && i <= 70)
            EXPECT_EQ(sums[i], INFINITY) << i;
        else
            EXPECT_EQ(sums[i], 10) << i;
    }
}

TEST(WindowArithmetic, ExtremesAreThoseOfEachWindowAndTheStart)
{
    ForEachSize([](int count, int terms, const std::vector<double>& numbers) {
        std::vector<double> least(static_cast<std::size_t>(count)), greatest(least);
        LeastInWindows(numbers.data(), count, terms, 5.0, least.data());
        GreatestInWindows(numbers.data(), count, terms, -5.0, greatest.data());
        for (std::size_t i = 0; i < least.size(); ++i) {
            double low = 5.0, high = -5.0;
            for (std::size_t t = 0; t < static_cast<std::size_t>(terms); ++t) {
                low = numbers[i + t] < low ? numbers[i + t] : low;
                high = numbers[i + t] > high ? numbers[i + t] : high;
            }
            ASSERT_EQ(least[i], low) << count << " windows of " << terms << ", window " << i;
            ASSERT_EQ(greatest[i], high) << count << " windows of " << terms << ", window " << i;
        }
    });
}

} // namespace zantroq
