#include "settings/StoredNumber.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace zantroq {

TEST(StoredNumber, BlanksBeforeANumberAreSkippedAndJunkEndsIt)
{
    EXPECT_EQ(ParseStoredInt(" \t42x7"), 42);
    EXPECT_EQ(ParseStoredInt("+7"), 7);
    EXPECT_EQ(ParseStoredInt("-7"), -7);
    EXPECT_EQ(ParseStoredDouble("  2.5abc"), 2.5);
    EXPECT_EQ(ParseStoredDouble("+.5"), 0.5);
}

TEST(StoredNumber, NothingReadIsZero)
{
    for (const char* text : {"", "abc", "-", "+", "+-5", " ", "."})
        EXPECT_EQ(ParseStoredInt(text), 0) << text;
    EXPECT_EQ(ParseStoredDouble("abc"), 0.0);
    EXPECT_EQ(ParseStoredDouble(""), 0.0);
}

TEST(StoredNumber, ADoubleMayHaveAnyFormThatAtofTakes)
{
    EXPECT_EQ(ParseStoredDouble("0x10"), 16.0);
    EXPECT_EQ(ParseStoredDouble("1e2"), 100.0);
    EXPECT_EQ(ParseStoredDouble("-inf"), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(ParseStoredDouble("1e999"), std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(ParseStoredDouble("nan")));
}

TEST(StoredNumber, OnlyTheFirstNineCharactersAreRead)
{
    EXPECT_EQ(ParseStoredInt("1234567890"), 123456789);
    EXPECT_EQ(ParseStoredInt("-1234567890"), -12345678);
    EXPECT_EQ(ParseStoredInt("   1234567"), 123456);
    EXPECT_EQ(ParseStoredDouble("100.000000"), 100.0);
    EXPECT_EQ(ParseStoredDouble("0.12345678901"), 0.1234567);
}

TEST(StoredNumber, ADoubleHasSixDecimals)
{
    EXPECT_EQ(TextFromDouble(0.66), "0.660000");
    EXPECT_EQ(TextFromDouble(1.0), "1.000000");
    EXPECT_EQ(TextFromDouble(-1.0 / 3), "-0.333333");
    EXPECT_EQ(TextFromDouble(0.0000005), "0.000000"); // the nearest double is below the half
    EXPECT_EQ(TextFromDouble(std::numeric_limits<double>::max()).size(), 309u + 7u);
}

TEST(StoredNumber, AWholeTextMustBeANumber)
{
    std::int64_t whole = 0;
    EXPECT_TRUE(ParseWholeInt("-12", whole));
    EXPECT_EQ(whole, -12);
    for (const char* text : {"", " 1", "1 ", "1.5", "0x10", "+-1", "99999999999999999999"})
        EXPECT_FALSE(ParseWholeInt(text, whole)) << text;
    double number = 0;
    EXPECT_TRUE(ParseWholeDouble("0.01", number));
    EXPECT_EQ(number, 0.01);
    EXPECT_FALSE(ParseWholeDouble("2,5", number));
}

} // namespace zantroq
