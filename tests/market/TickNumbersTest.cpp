// The numbers of a tick line read in parallel, compared with the C library.
#include "market/TickNumbers.h"

#include <bit>
#include <cerrno>
#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>
#include <rapidcheck/gtest.h>
#include <string>
#include <vector>

using namespace zantroq;

namespace {

constexpr int FirstNumber = 2, LastNumber = 7;

using Bits = std::vector<std::uint64_t>;

Bits BitsOf(const sTickBatch& ticks)
{
    return {std::bit_cast<std::uint64_t>(ticks.Last[1]), std::bit_cast<std::uint64_t>(ticks.Bid[1]),
            std::bit_cast<std::uint64_t>(ticks.Ask[1]),  static_cast<std::uint32_t>(ticks.Size[1]),
            static_cast<std::uint32_t>(ticks.TickId[1]), static_cast<std::uint64_t>(ticks.TotalVolume[1])};
}

// As if unsigned long had 32 bits.
std::uint32_t PlainUnsigned(const std::string& text)
{
    errno = 0;
    const unsigned long value = std::strtoul(text.c_str(), nullptr, 10);
    const std::size_t first = text.find_first_not_of(" \t\n\v\f\r");
    const bool negative = first != std::string::npos && text[first] == '-';
    const unsigned long size = negative ? 0 - value : value;
    return errno != 0 || size > 0xFFFFFFFFul ? 0xFFFFFFFFu : static_cast<std::uint32_t>(value);
}

// The fields as the C library reads them; the tests run in its "C" locale.
Bits Expected(const std::vector<std::string>& f)
{
    const auto price = [&](std::size_t i) {
        return std::bit_cast<std::uint64_t>(std::strtod(f[i].c_str(), nullptr));
    };
    return {price(2),
            price(5),
            price(6),
            PlainUnsigned(f[3]),
            PlainUnsigned(f[7]),
            static_cast<std::uint64_t>(std::strtoll(f[4].c_str(), nullptr, 10))};
}

std::string Line(const std::vector<std::string>& fields)
{
    std::string line = fields[0];
    for (std::size_t i = 1; i < fields.size(); ++i)
        line += ',' + fields[i];
    return line;
}

void CheckLine(const std::vector<std::string>& fields)
{
    const std::string text = Line(fields);
    // In a separate block, so that the sanitizer detects a read outside it.
    const std::unique_ptr<char[]> line(new char[text.size()]);
    text.copy(line.get(), text.size());
    const HistoryFields split(std::string_view(line.get(), text.size()));
    sTickBatch fast, plain;
    ReadTickNumbers(split, fast, 1);
    ReadTickNumbersPlainly(split, plain, 1);
    ASSERT_EQ(BitsOf(plain), Expected(fields)) << text;
    ASSERT_EQ(BitsOf(fast), Expected(fields)) << text;
}

std::vector<std::string> UsualLine()
{
    return {"0123456", "2014-01-02 09:30:01.250", "101.25", "100", "5000", "101.2", "101.3", "77", "C"};
}

std::string Number(int most, const std::string& characters)
{
    std::string text;
    for (int i = *rc::gen::inRange(0, most + 1); i > 0; --i)
        text += characters[*rc::gen::inRange<std::size_t>(0, characters.size())];
    return text;
}

} // namespace

TEST(TickNumbers, EveryNumberOfDigitsAndEveryPlaceOfThePoint)
{
    const std::string digits = "9876543219";
    for (int field = FirstNumber; field <= LastNumber; ++field)
        for (std::size_t length = 0; length <= digits.size(); ++length) {
            auto fields = UsualLine();
            fields[static_cast<std::size_t>(field)] = digits.substr(0, length);
            CheckLine(fields);
            for (std::size_t point = 0; point <= length; ++point) {
                fields[static_cast<std::size_t>(field)] = digits.substr(0, length).insert(point, ".");
                CheckLine(fields);
            }
        }
}

TEST(TickNumbers, NoByteButADigitIsTakenForOne)
{
    for (int field = FirstNumber; field <= LastNumber; ++field)
        for (int byte = 1; byte < 256; ++byte)
            for (const char* place : {"?", "?1", "1?", "12?45", "1?.5", "1.?", "123456?8"}) {
                std::string text = place;
                text[text.find('?')] = static_cast<char>(byte);
                auto fields = UsualLine();
                fields[static_cast<std::size_t>(field)] = text;
                if (byte != ',')
                    CheckLine(fields);
            }
}

TEST(TickNumbers, SignsExponentsOverflowsAndSecondPoints)
{
    for (int field = FirstNumber; field <= LastNumber; ++field)
        for (const char* text : {"-1",
                                 "+1",
                                 "-0",
                                 " 7",
                                 "7 ",
                                 "1e3",
                                 "1E-3",
                                 "1.2.3",
                                 "..",
                                 ".",
                                 "-.5",
                                 "5.",
                                 ".5",
                                 "00000000",
                                 "000000001",
                                 "99999999",
                                 "999999999",
                                 "2147483648",
                                 "4294967295",
                                 "4294967296",
                                 "-4294967295",
                                 "9223372036854775807",
                                 "9223372036854775808",
                                 "-9223372036854775808",
                                 "99999999999999999999",
                                 "0x10",
                                 "inf",
                                 "nan",
                                 "12345678",
                                 "1234567.8",
                                 "0.0000001",
                                 "1e400",
                                 "123456789012345678.9"}) {
            auto fields = UsualLine();
            fields[static_cast<std::size_t>(field)] = text;
            CheckLine(fields);
        }
}

TEST(TickNumbers, ALineThatBarelyHasFields)
{
    CheckLine({"", "", "", "", "", "", "", "", ""});
    CheckLine({"0", "", "1", "2", "3", "4", "5", "6", ""});
    CheckLine({"0", "123456", "1", "2", "3", "4", "5", "6", "C"});
    CheckLine({"0", "12345", "1.5", "2", "3", "4", "5", "6", "C"});
}

RC_GTEST_PROP(TickNumbers, AnyFieldsReadAsTheCLibraryReadsThem, ())
{
    std::vector<std::string> fields = UsualLine();
    if (*rc::gen::inRange(0, 8) == 0)
        fields[1] = Number(8, "0123456789:-");
    for (int field = FirstNumber; field <= LastNumber; ++field) {
        const int form = *rc::gen::inRange(0, 10);
        std::string& text = fields[static_cast<std::size_t>(field)];
        if (form < 6)
            text = Number(field == 4 ? 12 : 8, "0123456789");
        else if (form < 9)
            text = Number(5, "0123456789") + "." + Number(3, "0123456789");
        else
            text = Number(12, "0123456789.+- eE/:;\t");
    }
    fields[8] = *rc::gen::element<std::string>("", "C", "C,1,2,3");
    CheckLine(fields);
}
