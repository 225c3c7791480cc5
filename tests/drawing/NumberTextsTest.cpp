#include "drawing/NumberTexts.h"
#include "drawing/PriceFormatter.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdio>
#include <limits>

namespace zantroq {
namespace {

constexpr double Nan = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();

TEST(NumberTexts, FixedAndGeneralFollowPrintf)
{
    char expected[512];
    for (double value :
         {0.0, -0.0, 1.0, -1.5, 101.25, 0.1, 1234567.0, 1e-7, 123456789012.0, 1e22, -2.5e-9, 99999.95}) {
        for (int digits : {1, 2, 6, 12}) {
            std::snprintf(expected, sizeof expected, "%.*f", digits, value);
            EXPECT_EQ(FixedText(value, digits), expected) << value << " " << digits;
            std::snprintf(expected, sizeof expected, "%.*g", digits, value);
            EXPECT_EQ(GeneralText(value, digits), expected) << value << " " << digits;
        }
        std::snprintf(expected, sizeof expected, "%g", value);
        EXPECT_EQ(GeneralText(value), expected);
    }
}

TEST(NumberTexts, LargestNumberWithMostDecimalsFits)
{
    EXPECT_EQ(FixedText(-std::numeric_limits<double>::max(), 100000).size(), 1u + 309u + 1u + 340u);
}

TEST(NumberTexts, NotANumberHasNoSign)
{
    EXPECT_EQ(FixedText(-Nan, 2), "nan");
    EXPECT_EQ(GeneralText(std::copysign(Nan, -1.0), 12), "nan");
    EXPECT_EQ(FixedText(Infinity, 2), "inf");
    EXPECT_EQ(FixedText(-Infinity, 2), "-inf");
}

TEST(NumberTexts, ProcessLocaleChangesNothing)
{
    // A locale that the machine may lack; the test then shows only that nothing breaks.
    const char* old = std::setlocale(LC_ALL, nullptr);
    const std::string kept = old ? old : "C";
    std::setlocale(LC_ALL, "de_DE.UTF-8");
    EXPECT_EQ(FixedText(1234.5, 2), "1234.50");
    EXPECT_EQ(GeneralText(1234.5), "1234.5");
    EXPECT_EQ(ThousandsText(1234567), "1,234,567");
    std::setlocale(LC_ALL, kept.c_str());
}

TEST(NumberTexts, OnlyZerosOfAFractionAreCut)
{
    EXPECT_EQ(CutTrailingZeros("101.250000000000"), "101.25");
    EXPECT_EQ(CutTrailingZeros("101.000000000000"), "101");
    EXPECT_EQ(CutTrailingZeros("100"), "100");
    EXPECT_EQ(CutTrailingZeros("0.000"), "0");
    EXPECT_EQ(CutTrailingZeros("1.5e+100"), "1.5e+100");
    EXPECT_EQ(CutTrailingZeros(""), "");
}

TEST(NumberTexts, ThousandsGetACommaEveryThreeDigits)
{
    EXPECT_EQ(ThousandsText(0), "0");
    EXPECT_EQ(ThousandsText(999), "999");
    EXPECT_EQ(ThousandsText(1000), "1,000");
    EXPECT_EQ(ThousandsText(123456), "123,456");
    EXPECT_EQ(ThousandsText(std::numeric_limits<std::int64_t>::max()), "9,223,372,036,854,775,807");
}

TEST(NumberTexts, NegativeThousandsAreEmpty)
{
    EXPECT_EQ(ThousandsText(-1), "");
    EXPECT_EQ(ThousandsText(std::numeric_limits<std::int64_t>::min()), "");
}

TEST(NumberTexts, RoundedThousandsKeepThreeDigitsAndTheSign)
{
    EXPECT_EQ(RoundedThousandsText(0), "0");
    EXPECT_EQ(RoundedThousandsText(987), "987");
    EXPECT_EQ(RoundedThousandsText(-987), "-987");
    EXPECT_EQ(RoundedThousandsText(1234), "1,230");
    EXPECT_EQ(RoundedThousandsText(1235), "1,240");
    EXPECT_EQ(RoundedThousandsText(-1234567), "-1,230,000");
    EXPECT_EQ(RoundedThousandsText(9996), "10,000");
    EXPECT_EQ(RoundedThousandsText(3000000000.0), "3,000,000,000");
    EXPECT_EQ(RoundedThousandsText(1e300), "9,000,000,000,000,000,000");
    EXPECT_EQ(RoundedThousandsText(-0.5), "0");
    EXPECT_EQ(RoundedThousandsText(Nan), "nan");
}

TEST(NumberTexts, ShortLargeNumberHasThreeDigitsAndASuffix)
{
    EXPECT_EQ(ShortLargeNumberText(5), "5.00");
    EXPECT_EQ(ShortLargeNumberText(56.78), "56.8");
    EXPECT_EQ(ShortLargeNumberText(567.8), "568");
    EXPECT_EQ(ShortLargeNumberText(5678), "5.68K");
    EXPECT_EQ(ShortLargeNumberText(56789), "56.8K");
    EXPECT_EQ(ShortLargeNumberText(567890), "568K");
    EXPECT_EQ(ShortLargeNumberText(1234567), "1.23M");
    EXPECT_EQ(ShortLargeNumberText(1234567890.0), "1.23B");
    EXPECT_EQ(ShortLargeNumberText(1234567890123.0), "1.23T");
    EXPECT_EQ(ShortLargeNumberText(999999999999999.0 / 2), "500T");
}

TEST(NumberTexts, ShortLargeNumberIsEmptyWhereItHasNoSuffix)
{
    EXPECT_EQ(ShortLargeNumberText(0), "");
    EXPECT_EQ(ShortLargeNumberText(0.05), "");
    EXPECT_EQ(ShortLargeNumberText(0.5), "0.50"); // the logarithm is cut toward 0
    EXPECT_EQ(ShortLargeNumberText(1e15), "");
    EXPECT_EQ(ShortLargeNumberText(-5), "");
    EXPECT_EQ(ShortLargeNumberText(Nan), "");
    EXPECT_EQ(ShortLargeNumberText(Infinity), "");
}

TEST(PriceFormatter, CodeOfTenAndAboveGivesDecimals)
{
    const IPriceFormatter& formatter = ShippedPriceFormatter();
    EXPECT_EQ(formatter.Format(101.256, 10), "101");
    EXPECT_EQ(formatter.Format(101.256, 11), "101.3");
    EXPECT_EQ(formatter.Format(101.256, 12), "101.26");
    EXPECT_EQ(formatter.Format(101.25, 14), "101.2500");
    EXPECT_EQ(formatter.Format(-0.5, 12), "-0.50");
}

TEST(PriceFormatter, CodesOneToEightGiveFractions)
{
    const IPriceFormatter& formatter = ShippedPriceFormatter();
    EXPECT_EQ(formatter.Format(101.25, 5), "101 8/32");
    EXPECT_EQ(formatter.Format(101.5, 1), "101 1/2");
    EXPECT_EQ(formatter.Format(101.25, 8), "101 64/256");
    EXPECT_EQ(formatter.Format(101.0, 5), "101");
    EXPECT_EQ(formatter.Format(-101.25, 5), "-101 8/32");
    EXPECT_EQ(formatter.Format(0.25, 2), "0 1/4");
    EXPECT_EQ(formatter.Format(101.999, 5), "102");
    EXPECT_EQ(formatter.Format(-0.0001, 5), "0");
    EXPECT_EQ(formatter.Format(0, 3), "0");
}

TEST(PriceFormatter, OtherCodesArePlain)
{
    const IPriceFormatter& formatter = ShippedPriceFormatter();
    EXPECT_EQ(formatter.Format(101.25, 0), "101.25");
    EXPECT_EQ(formatter.Format(101.25, 9), "101.25");
    EXPECT_EQ(formatter.Format(101.25, -3), "101.25");
    EXPECT_EQ(formatter.Format(1.0 / 3.0, 9), "0.333333333333");
}

TEST(PriceFormatter, StrangeNumbersAndHugeCodesDoNoHarm)
{
    const IPriceFormatter& formatter = ShippedPriceFormatter();
    EXPECT_EQ(formatter.Format(Nan, 5), "nan");
    EXPECT_EQ(formatter.Format(Infinity, 12), "inf");
    EXPECT_EQ(formatter.Format(1.0, 2147483647).size(), 342u);
    EXPECT_EQ(formatter.Format(1e300, 5).size(), 301u);
}

TEST(PriceFormatter, PlainTextsHaveTheirOwnDigits)
{
    EXPECT_EQ(PlainInfoPriceText(101.25), "101.25");
    EXPECT_EQ(PlainInfoPriceText(100), "100");
    EXPECT_EQ(PlainInfoPriceText(1.0 / 3.0), "0.333333333333");
    EXPECT_EQ(PlainReadoutPriceText(1234.0 / 3.0), "411.333333333");
    EXPECT_EQ(PlainReadoutPriceText(100), "100");
}

} // namespace
} // namespace zantroq
