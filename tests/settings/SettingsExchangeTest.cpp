#include "settings/SettingsExchange.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

using Bytes = std::vector<std::uint8_t>;

std::string ErrorOf(const std::string& text)
{
    try {
        ParseSettings(text);
        return "";
    } catch (const CSettingsFormatError& error) {
        return error.what();
    }
}

} // namespace

TEST(SettingsExchange, WhatIsWrittenReadsBack)
{
    const SettingsTree tree{
        {"A\\B", {{"", std::string("x")}, {"n ", 4294967295u}, {"b/%", Bytes{0, 255, 16}}}},
        {"", {{"\t\n\"", std::string("\x01\x7f \xC3\xA4")}, {"empty", Bytes{}}}}};
    EXPECT_EQ(ParseSettings(FormatSettings(tree)), tree);
}

TEST(SettingsExchange, TheFormIsKeysOfNamesOfTypeAndValue)
{
    EXPECT_EQ(
        FormatSettings({{"K", {{"N", std::string("v")}}}}),
        "{\n  \"K\": {\n    \"N\": {\n      \"type\": \"sz\",\n      \"value\": \"v\"\n    }\n  }\n}\n");
    EXPECT_EQ(FormatSettings({}), "{}\n");
    EXPECT_EQ(ParseSettings(R"({"K":{"b":{"value":"00fF","type":"binary"}}})"),
              (SettingsTree{{"K", {{"b", Bytes{0, 255}}}}}));
}

TEST(SettingsExchange, AnythingElseIsRefused)
{
    for (const char* text :
         {"", "nonsense", "[]", "1", "{\"K\":1}", "{\"K\":{\"n\":1}}", "{\"K\":{\"n\":{\"type\":\"sz\"}}}",
          R"({"K":{"n":{"type":"sz","value":1}}})", R"({"K":{"n":{"type":"dword","value":"1"}}})",
          R"({"K":{"n":{"type":"dword","value":-1}}})", R"({"K":{"n":{"type":"dword","value":4294967296}}})",
          R"({"K":{"n":{"type":"dword","value":1.5}}})", R"({"K":{"n":{"type":"binary","value":"0"}}})",
          R"({"K":{"n":{"type":"binary","value":"0g"}}})", R"({"K":{"n":{"type":"qword","value":"0"}}})",
          R"({"K":{"n":{"type":"sz","value":"x","more":1}}})", R"({"K":{"n":{"type":"sz","value":{"a":1}}}})",
          "{\"K\":{\"n\":{\"type\":\"sz\",\"value\":\"\xff\"}}}", "{} x"})
        EXPECT_NE(ErrorOf(text), "") << text;
    EXPECT_NE(ErrorOf(std::string(100000, '[')), "");
    EXPECT_EQ(ErrorOf(R"({"K":{"n":{"type":"sz","value":1}}})"),
              "value \"n\" of key \"K\": its value must be a text");
}

// The library silently keeps the last of two values with the same name.
TEST(SettingsExchange, ANameThatStandsTwiceIsRefused)
{
    EXPECT_EQ(ErrorOf(R"({"K":{"a":{"type":"sz","value":"1"}},"K":{"b":{"type":"sz","value":"2"}}})"),
              "\"K\" stands twice in one object");
    EXPECT_EQ(ErrorOf(R"({"K":{"a":{"type":"sz","value":"1"},"a":{"type":"sz","value":"2"}}})"),
              "\"a\" stands twice in one object");
    EXPECT_EQ(ErrorOf(R"({"K":{"a":{"type":"sz","value":"1","type":"sz"}}})"),
              "\"type\" stands twice in one object");
    EXPECT_EQ(ErrorOf(R"({"K":{"a":{"type":"sz","value":"1"}},"L":{"a":{"type":"sz","value":"2"}}})"), "");
}

// Regression: the time of reading grew with the square of the number of values: minutes for this many.
TEST(SettingsExchange, AHundredThousandValuesAreRead)
{
    std::string text = "{\"K\":{";
    for (int i = 0; i < 100'000; ++i)
        text += (i == 0 ? "\"n" : ",\"n") + std::to_string(i) +
                "\":{\"type\":\"dword\",\"value\":" + std::to_string(i) + "}";
    const SettingsTree tree = ParseSettings(text + "}}");
    ASSERT_EQ(tree.at("K").size(), 100'000u);
    EXPECT_EQ(tree.at("K").find("n99999")->second, SettingValue(99'999u));
}

// Regression: the JSON library reports such a number with a different exception, which was not handled.
TEST(SettingsExchange, ANumberBeyondAllRangesIsAFormatError)
{
    EXPECT_NE(ErrorOf(R"({"K":{"n":{"type":"dword","value":44e92967295}}})"), "");
}

TEST(SettingsExchange, TextThatIsNotUtf8CannotBeWritten)
{
    EXPECT_THROW(FormatSettings({{"K", {{"n", std::string("\xff")}}}}), CSettingsFormatError);
    EXPECT_THROW(FormatSettings({{"K", {{"\xff", 1u}}}}), CSettingsFormatError);
    EXPECT_TRUE(IsUtf8("\xC3\xA4"));
    EXPECT_FALSE(IsUtf8("\xC3"));
}

TEST(SettingsExchange, ValuesOfAllTypesComeFromText)
{
    EXPECT_EQ(ValueFromText("sz", "a b"), SettingValue(std::string("a b")));
    EXPECT_EQ(ValueFromText("dword", "0xFF"), SettingValue(255u));
    EXPECT_EQ(ValueFromText("dword", "4294967295"), SettingValue(4294967295u));
    EXPECT_EQ(ValueFromText("binary", "0aFF"), SettingValue(Bytes{10, 255}));
    EXPECT_EQ(ValueFromText("binary", ""), SettingValue(Bytes{}));
    for (const char* text : {"", "-1", "4294967296", "1 ", "0x", "x"})
        EXPECT_THROW(ValueFromText("dword", text), CSettingsFormatError) << text;
    EXPECT_THROW(ValueFromText("binary", "abc"), CSettingsFormatError);
    EXPECT_THROW(ValueFromText("text", "abc"), CSettingsFormatError);
}

TEST(SettingsExchange, AListingLineKeepsEachValueOnItsLineAndInItsColumn)
{
    EXPECT_EQ(ListingLine("PTS INDEX", std::string("3")), "PTS INDEX\tsz\t3");
    EXPECT_EQ(ListingLine("", 7u), "\tdword\t7");
    EXPECT_EQ(ListingLine("a\tb", std::string("c\nd\re")), "a\\tb\tsz\tc\\nd\\re");
    EXPECT_EQ(ListingLine("b", Bytes{0, 171}), "b\tbinary\t00ab");
    EXPECT_EQ(ListingLine("x", std::string("\x01\x7f")), "x\tsz\t\\x01\\x7f");
    // A backslash is unchanged unless it could be mistaken for one of the above.
    EXPECT_EQ(ListingLine("a\\b/%", std::string("C:\\dir")), "a\\b/%\tsz\tC:\\dir");
    EXPECT_EQ(ListingLine("C:\\temp", std::string("\\")), "C:\\\\temp\tsz\t\\");
    EXPECT_EQ(ListingLine("\\\t", std::string("\\\\q")), "\\\\\\t\tsz\t\\\\\\q");
}

} // namespace zantroq
