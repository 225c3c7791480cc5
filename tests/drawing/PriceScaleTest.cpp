#include "drawing/PriceScale.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zantroq {
namespace {

constexpr int Cents = 12, ThirtySeconds = 5;

TEST(PriceScale, NothingWhereLowIsAboveHigh)
{
    EXPECT_FALSE(MakePriceScale(1, 2, Cents, false));
    EXPECT_FALSE(MakePriceScale(1, 2, 0, true));
    EXPECT_FALSE(MakePriceScale(std::nan(""), 2, Cents, false));
    EXPECT_FALSE(MakePriceScale(std::numeric_limits<double>::infinity(), 2, Cents, false));
    EXPECT_FALSE(MakePriceScale(2, -std::numeric_limits<double>::infinity(), 0, true));
}

TEST(PriceScale, RoundStepsAreOneTwoFiveTen)
{
    EXPECT_DOUBLE_EQ(RoundStep(1.40, StepPowers::All), 1);
    EXPECT_DOUBLE_EQ(RoundStep(1.41, StepPowers::All), 2);
    EXPECT_DOUBLE_EQ(RoundStep(3.15, StepPowers::All), 2);
    EXPECT_DOUBLE_EQ(RoundStep(3.16, StepPowers::All), 5);
    EXPECT_DOUBLE_EQ(RoundStep(7.06, StepPowers::All), 5);
    EXPECT_DOUBLE_EQ(RoundStep(7.07, StepPowers::All), 10);
    EXPECT_DOUBLE_EQ(RoundStep(10, StepPowers::All), 10);
    EXPECT_DOUBLE_EQ(RoundStep(0.03, StepPowers::All), 0.02);
    EXPECT_DOUBLE_EQ(RoundStep(300, StepPowers::FromOneUp), 200);
}

TEST(PriceScale, StepsWithoutEndDoNotHang)
{
    EXPECT_EQ(RoundStep(0, StepPowers::All), 0);
    EXPECT_EQ(RoundStep(5e-324, StepPowers::All), 5e-324);
    EXPECT_TRUE(std::isinf(RoundStep(std::numeric_limits<double>::infinity(), StepPowers::FromOneUp)));
    EXPECT_GT(RoundStep(1e308, StepPowers::FromOneUp), 0);
}

// a = 110 + 0.1 * 10 = 111, b = 100 - 1 = 99; a quarter of 12 is 3, which becomes 2; 99 modulo 2 is 1, so b
// is 98.0099.
TEST(PriceScale, PlainRangeHasATenthOfMarginAndARoundStep)
{
    const auto scale = MakePriceScale(110, 100, 0, true);
    ASSERT_TRUE(scale);
    EXPECT_DOUBLE_EQ(scale->High, 111);
    EXPECT_DOUBLE_EQ(scale->Step, 2);
    EXPECT_DOUBLE_EQ(scale->Low, 99.0 - 1.0 + 0.0099);
    EXPECT_EQ(scale->LabelMethod, 2);
    const std::vector<double> labels = PriceScaleLabels(*scale);
    ASSERT_EQ(labels.size(), 7u); // 98.0099, 100.0099, ... 110.0099
    EXPECT_DOUBLE_EQ(labels.front(), 98.0099);
    EXPECT_NEAR(labels.back(), 110.0099, 1e-9);
}

// b = 90 - 0.1 * 20 = 88, a = 112; a quarter of 24 is 6, which becomes 5; 88 modulo 5 is 3, so b is 85.0099.
TEST(PriceScale, PlainLowEndWithoutARestStays)
{
    const auto moved = MakePriceScale(110, 90, 0, true);
    EXPECT_DOUBLE_EQ(moved->Low, 88.0 - 3.0 + 0.0099);
    // b = 105 - 5 = 100, a = 160; 15 becomes 20; 100 modulo 20 is 0.
    const auto still = MakePriceScale(155, 105, 0, true);
    EXPECT_DOUBLE_EQ(still->Low, 100);
    EXPECT_DOUBLE_EQ(still->Step, 20);
}

TEST(PriceScale, PlainNegativeLowEndStays)
{
    // b = -10 - 2 = -12, a = 12; step 5; -12 modulo 5 is -2, below 0.01.
    const auto scale = MakePriceScale(10, -10, 0, true);
    EXPECT_DOUBLE_EQ(scale->Low, -12);
    EXPECT_DOUBLE_EQ(scale->Step, 5);
}

// d = 1.0: b = 49.9, a = 50.1; a quarter of 0.2 is 0.05.
TEST(PriceScale, PlainFlatSeriesGetsATenthOnEachSide)
{
    const auto scale = MakePriceScale(50, 50, 0, true);
    ASSERT_TRUE(scale);
    EXPECT_DOUBLE_EQ(scale->High, 50.1);
    EXPECT_NEAR(scale->Step, 0.05, 1e-12);
    EXPECT_LE(scale->Low, 49.9);
}

// r = 10; a quarter is 2.5, step 2; b = 101 - 1 = 100; a = 111 + 2 - 1 = 112.
TEST(PriceScale, WideRangeSnapsBothEndsToARoundStep)
{
    const auto scale = MakePriceScale(111, 101, Cents, false);
    ASSERT_TRUE(scale);
    EXPECT_EQ(scale->Low, 100);
    EXPECT_EQ(scale->High, 112);
    EXPECT_EQ(scale->Step, 2);
    EXPECT_EQ(scale->LabelMethod, 0);
    EXPECT_EQ(scale->UnitParts, 0);
    EXPECT_EQ(PriceScaleLabels(*scale), (std::vector<double>{100, 102, 104, 106, 108, 110, 112}));
}

// A high end that is a multiple gains one step: a = 110 + 2 - 0.
TEST(PriceScale, WideRangeAlwaysEndsAboveItsHigh)
{
    const auto scale = MakePriceScale(110, 100, Cents, false);
    EXPECT_EQ(scale->Low, 100);
    EXPECT_EQ(scale->High, 112);
}

// b = -3: fmod -1, plus 2, gives 1: -4. A multiple: b = -4: fmod -0, plus 2: -6. a = -1: 1 - (fmod(-1, 2) +
// 2) = 0.
TEST(PriceScale, NegativeEndsSnapOneStepFurther)
{
    EXPECT_EQ(MakePriceScale(7, -3, Cents, false)->Low, -4);
    EXPECT_EQ(MakePriceScale(6, -4, Cents, false)->Low, -6);
    EXPECT_EQ(MakePriceScale(-1, -11, Cents, false)->High, 0);
}

// r = 4: 4.0 / r is 1, so this is a narrow range already: t = 1, b = 100, a = 104 + 1 - 0 = 105.
TEST(PriceScale, NarrowRangeTakesTheBareQuarter)
{
    const auto scale = MakePriceScale(104, 100, Cents, false);
    ASSERT_TRUE(scale);
    EXPECT_EQ(scale->Step, 1);
    EXPECT_EQ(scale->Low, 100);
    EXPECT_EQ(scale->High, 105);
    EXPECT_EQ(scale->LabelMethod, 4);
    EXPECT_EQ(PriceScaleLabels(*scale),
              (std::vector<double>{101, 102, 103, 104, 105})); // none at the low end
}

// r = 3: t = 0.75; b = 100.5 - fmod(100.5, 0.75) = 100.5; a = 103.5 + 0.75 - 0.
TEST(PriceScale, NarrowStepIsNotRounded)
{
    const auto scale = MakePriceScale(103.5, 100.5, Cents, false);
    EXPECT_EQ(scale->Step, 0.75);
    EXPECT_EQ(scale->Low, 100.5);
    EXPECT_EQ(scale->High, 104.25);
}

TEST(PriceScale, FlatSeriesWithACodeCountsAsAHundredth)
{
    const auto scale = MakePriceScale(50, 50, Cents, false);
    EXPECT_DOUBLE_EQ(scale->Step, 0.0025);
    EXPECT_EQ(scale->LabelMethod, 4);
    // 0.0025 is not exact in binary, so the rest of 50 is nearly a whole step and only the low end moves.
    EXPECT_LT(scale->Low, 50);
    EXPECT_GE(scale->High, 50);
    EXPECT_LE(scale->High - scale->Low, 0.0051);
}

TEST(PriceScale, FractionalCodesThinkInHalvesToTwoHundredFiftySixths)
{
    EXPECT_EQ(MakePriceScale(104, 100, ThirtySeconds, false)->UnitParts, 2);    // 1
    EXPECT_EQ(MakePriceScale(101, 100, ThirtySeconds, false)->UnitParts, 4);    // 4
    EXPECT_EQ(MakePriceScale(100.75, 100, ThirtySeconds, false)->UnitParts, 8); // 5
    EXPECT_EQ(MakePriceScale(100, 100, ThirtySeconds, false)->UnitParts, 256);  // 400
    EXPECT_EQ(MakePriceScale(100.0, 100, 10, false)->UnitParts, 256); // codes below 11 are fractional
}

TEST(PriceScale, DecimalCodesThinkInDecimalPartsNoFinerThanTheirLast)
{
    EXPECT_EQ(MakePriceScale(104, 100, 14, false)->UnitParts, 1);     // 1
    EXPECT_EQ(MakePriceScale(101.5, 100, 14, false)->UnitParts, 2);   // 2
    EXPECT_EQ(MakePriceScale(100.75, 100, 14, false)->UnitParts, 10); // 5
    EXPECT_EQ(MakePriceScale(100.25, 100, 14, false)->UnitParts, 25); // 16
    EXPECT_EQ(MakePriceScale(100, 100, 14, false)->UnitParts, 1000);  // 400
    EXPECT_EQ(MakePriceScale(100, 100, 12, false)->UnitParts, 100);   // 400, but two decimals
    EXPECT_EQ(MakePriceScale(100.25, 100, 11, false)->UnitParts, 10); // 16, but one decimal
    EXPECT_EQ(MakePriceScale(100 + 1e-9, 100, 30, false)->UnitParts, 10000000);
}

TEST(PriceScale, LabelsThatRoundingSwallowsEndTheRow)
{
    const auto scale = MakePriceScale(1e17, 1e17, Cents, false);
    ASSERT_TRUE(scale);
    EXPECT_LE(PriceScaleLabels(*scale).size(), 2u);
    EXPECT_LE(PriceScaleLabels(*MakePriceScale(1e17, 1e17, 0, true)).size(), 2u);
}

} // namespace
} // namespace zantroq
