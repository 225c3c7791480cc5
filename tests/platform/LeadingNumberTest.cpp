#include "platform/parse/LeadingNumber.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>
#include <string>

using namespace zantroq;

namespace {

// The result of the C library in the "C" locale, in which a test program starts.
double Reference(const std::string& text)
{
    return std::strtod(text.c_str(), nullptr);
}

bool SameDouble(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0 || (std::isnan(a) && std::isnan(b));
}

void ExpectLikeC(const std::string& text)
{
    EXPECT_TRUE(SameDouble(TextToDouble(text), Reference(text)))
        << '"' << text << "\": " << TextToDouble(text);
}

std::int64_t ReferenceInt64(const std::string& text)
{
    return std::strtoll(text.c_str(), nullptr, 10);
}

std::int32_t ReferenceInt(const std::string& text)
{
    const std::int64_t value = ReferenceInt64(text);
    return static_cast<std::int32_t>(
        std::min<std::int64_t>(std::max<std::int64_t>(value, INT32_MIN), INT32_MAX));
}

// A 32-bit strtoul based on the 64-bit one: the number is limited before the sign is applied.
std::uint32_t ReferenceUnsigned(const std::string& text)
{
    const bool negative = text.find('-') < text.find_first_of("0123456789");
    std::string plain = text;
    if (negative) {
        // Only a digit may follow the sign.
        const std::size_t behind = plain.find('-') + 1;
        if (behind >= plain.size() || plain[behind] < '0' || plain[behind] > '9')
            return 0;
        plain[behind - 1] = ' ';
    }
    const unsigned long long value = std::strtoull(plain.c_str(), nullptr, 10);
    if (value > UINT32_MAX)
        return UINT32_MAX;
    return static_cast<std::uint32_t>(negative ? 0 - value : value);
}

rc::Gen<std::string> NumberLike()
{
    return rc::gen::container<std::string>(
        rc::gen::elementOf(std::string(" \t+-..0123456789012345678901234567899eExinfa")));
}

rc::Gen<std::string> Digits(int most)
{
    return rc::gen::scale(1.0, rc::gen::mapcat(rc::gen::inRange(0, most + 1), [](int count) {
                              return rc::gen::container<std::string>(
                                  static_cast<std::size_t>(count),
                                  rc::gen::inRange('0', static_cast<char>('9' + 1)));
                          }));
}

} // namespace

TEST(LeadingNumber, DoublesReadLikeTheCLibrary)
{
    for (const char* text : {"",
                             " ",
                             "0",
                             "1",
                             "-1",
                             "+1",
                             "101.25",
                             "  101.25",
                             "\t\n\v\f\r7",
                             "101.25abc",
                             ".5",
                             "5.",
                             ".",
                             "-.5",
                             "-.",
                             "1e",
                             "1e+",
                             "1e5",
                             "1E-5x",
                             "1.5e3,7",
                             "--5",
                             "+-5",
                             "-+5",
                             "- 5",
                             "0.1",
                             "0.2",
                             "0.3",
                             "1234567890.12345",
                             "123456789012345",
                             "1234567890123456",
                             "12345678901234567",
                             "9007199254740993",
                             "0.000000000000001",
                             "00000000000000000000001.5",
                             "1e400",
                             "-1e400",
                             "1e-400",
                             "4.9e-324",
                             "0x10",
                             "0x1.8p3",
                             "0x",
                             "-0x10",
                             "inf",
                             "-infinity",
                             "infx",
                             "nan",
                             "nan(1)",
                             "i",
                             "n",
                             "abc",
                             "1,5",
                             "-0",
                             "-0.0",
                             "179769313486231580793728971405301e280",
                             "2.2250738585072011e-308"})
        ExpectLikeC(text);
}

TEST(LeadingNumber, PricesAreCorrectlyRounded)
{
    for (int whole = 0; whole < 200; ++whole)
        for (int part = 0; part < 10000; part += 7) {
            char text[32];
            std::snprintf(text, sizeof text, "%d.%04d", whole * 37, part);
            ASSERT_EQ(TextToDouble(text), Reference(text)) << text;
        }
}

RC_GTEST_PROP(LeadingNumber, AnyTextReadsLikeTheCLibrary, ())
{
    const std::string text = *NumberLike();
    RC_ASSERT(SameDouble(TextToDouble(text), Reference(text)));
    RC_ASSERT(TextToInt64(text) == ReferenceInt64(text));
    RC_ASSERT(TextToInt(text) == ReferenceInt(text));
}

RC_GTEST_PROP(LeadingNumber, AnyDecimalReadsLikeTheCLibrary, ())
{
    const std::string text =
        *Digits(20) + "." + *Digits(20) + *rc::gen::element<std::string>("", "e5", "e-9", "x", " ");
    RC_ASSERT(SameDouble(TextToDouble(text), Reference(text)));
}

RC_GTEST_PROP(LeadingNumber, AnyIntegerReadsLikeTheCLibrary, ())
{
    const std::string text = *rc::gen::element<std::string>("", " ", "-", "+", " -", "+-") + *Digits(24) +
                             *rc::gen::element<std::string>("", ".5", "x", " 1");
    RC_ASSERT(TextToInt64(text) == ReferenceInt64(text));
    RC_ASSERT(TextToInt(text) == ReferenceInt(text));
    if (text.rfind("+-", 0) != 0)
        RC_ASSERT(TextToUnsigned(text) == ReferenceUnsigned(text));
    else
        RC_ASSERT(TextToUnsigned(text) == 0u);
}

TEST(LeadingNumber, UnsignedNumbersSaturateAndNegativeOnesWrap)
{
    EXPECT_EQ(TextToUnsigned("4294967295"), 4294967295u);
    EXPECT_EQ(TextToUnsigned("4294967296"), 4294967295u);
    EXPECT_EQ(TextToUnsigned("99999999999999999999999"), 4294967295u);
    EXPECT_EQ(TextToUnsigned("-1"), 4294967295u);
    EXPECT_EQ(TextToUnsigned("-4294967295"), 1u);
    EXPECT_EQ(TextToUnsigned("-4294967296"), 4294967295u);
    EXPECT_EQ(TextToUnsigned("  +17,3"), 17u);
    EXPECT_EQ(TextToUnsigned("x"), 0u);
}

TEST(LeadingNumber, IntegersStopAtTheirLimits)
{
    EXPECT_EQ(TextToInt("2147483648"), 2147483647);
    EXPECT_EQ(TextToInt("-2147483648"), -2147483647 - 1);
    EXPECT_EQ(TextToInt("-99999999999"), -2147483647 - 1);
    EXPECT_EQ(TextToInt64("9223372036854775808"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(TextToInt64("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(TextToInt64("-9223372036854775809"), std::numeric_limits<std::int64_t>::min());
}

TEST(LeadingNumber, AZeroByteEndsANumber)
{
    EXPECT_EQ(TextToDouble(std::string_view("1\0005", 3)), 1);
    EXPECT_EQ(TextToInt(std::string_view("1\0005", 3)), 1);
}

TEST(LeadingNumber, PlainIntegersAreDigitsAlone)
{
    std::uint64_t value = 0;
    EXPECT_TRUE(PlainInteger("9999999999999999999", value));
    EXPECT_EQ(value, 9999999999999999999u);
    for (const char* text : {"", "+1", "-1", " 1", "1 ", "1.0", "12345678901234567890"})
        EXPECT_FALSE(PlainInteger(text, value)) << text;
}

RC_GTEST_PROP(LeadingNumber, ANumberInsideALineReadsLikeTheNumberAlone, ())
{
    const std::string number =
        *rc::gen::oneOf(NumberLike(), Digits(9), rc::gen::map(Digits(4), [](std::string text) {
                            text.insert(text.size() / 2, ".");
                            return text;
                        }));
    const std::string line = *rc::gen::container<std::string>(rc::gen::arbitrary<char>()) + number;
    const std::size_t before = line.size() - number.size();
    const std::string_view field = std::string_view(line).substr(before);
    RC_ASSERT(SameDouble(TextToDouble(field, before), Reference(number)));
    std::uint64_t plain = 0, inLine = 0;
    const bool isPlain = PlainInteger(number, plain);
    RC_ASSERT(PlainInteger(field, before, inLine) == isPlain);
    RC_ASSERT(!isPlain || inLine == plain);
}

TEST(LeadingNumber, EightCharactersInsideALineMayHoldAnyByte)
{
    const std::string front = "12345678";
    for (int at = 0; at < 5; ++at)
        for (int byte = 1; byte < 256; ++byte) {
            std::string number = "10125";
            number[static_cast<std::size_t>(at)] = static_cast<char>(byte);
            const std::string line = front + number;
            ASSERT_TRUE(SameDouble(TextToDouble(std::string_view(line).substr(8), 8), Reference(number)))
                << at << ' ' << byte;
        }
}
