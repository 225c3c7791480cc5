#include "market/LineCutter.h"

#include "market/LineFields.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <vector>

using namespace zantroq;

namespace {

using Lines = std::vector<std::string>;

class CFeeder
{
public:
    explicit CFeeder(int capacity = CLineCutter::StreamCapacity) : Cutter(capacity) {}

    // Writes as much as fits; returns how much.
    std::size_t Put(std::string_view text)
    {
        const auto room = Cutter.Room();
        const std::size_t size = std::min(room.size(), text.size());
        std::copy_n(text.data(), size, room.data());
        if (size > 0)
            Cutter.Received(static_cast<int>(size),
                            [this](std::string_view line) { Seen.emplace_back(line); });
        return size;
    }

    CLineCutter Cutter;
    Lines Seen;
};

// The plain rule: each CR or LF ends a line, and a line is read up to its first zero byte.
Lines PlainLines(const std::string& text)
{
    Lines lines;
    std::string line;
    for (const char c : text) {
        if (c != '\r' && c != '\n') {
            line += c;
            continue;
        }
        lines.push_back(line.substr(0, line.find('\0')));
        line.clear();
    }
    return lines;
}

} // namespace

TEST(LineCutter, ACarriageReturnAndALineFeedEachEndALine)
{
    CFeeder feeder;
    feeder.Put("one\ntwo\rthree\r\nfour\n\n");
    EXPECT_EQ(feeder.Seen, (Lines{"one", "two", "three", "", "four", ""}));
    EXPECT_EQ(feeder.Cutter.Pending(), 0);
}

TEST(LineCutter, KeepsACutLineUntilTheRestComes)
{
    CFeeder feeder;
    feeder.Put("first\nsec");
    EXPECT_EQ(feeder.Cutter.Pending(), 3);
    feeder.Put("ond\n");
    EXPECT_EQ(feeder.Seen, (Lines{"first", "second"}));
    EXPECT_EQ(feeder.Cutter.Pending(), 0);
}

TEST(LineCutter, AReceiveThatEndsAtALineEndLeavesNothingPending)
{
    for (const char* text : {"whole\n", "whole\r", "whole\r\n", "\n"}) {
        CFeeder feeder;
        feeder.Put("cut ");
        feeder.Put(text);
        EXPECT_EQ(feeder.Cutter.Pending(), 0);
        EXPECT_EQ(feeder.Cutter.Room().size(), 4095u) << "the next line starts at the front of the buffer";
        feeder.Put("next\n");
        EXPECT_EQ(feeder.Seen.front(), text[0] == 'w' ? "cut whole" : "cut ");
        EXPECT_EQ(feeder.Seen.back(), "next");
    }
}

TEST(LineCutter, ABlockThatFillsTheBufferInMidLineContinues)
{
    CFeeder feeder(CLineCutter::LookupCapacity);
    EXPECT_EQ(feeder.Cutter.Room().size(), 65535u);
    std::string block = std::string(60000, 'a') + "\n";
    block += std::string(65535 - block.size(), 'b');
    EXPECT_EQ(feeder.Put(block), 65535u);
    EXPECT_EQ(feeder.Seen, (Lines{std::string(60000, 'a')}));
    EXPECT_EQ(feeder.Cutter.Pending(), 5534);
    feeder.Put("c\n");
    EXPECT_EQ(feeder.Seen.back(), std::string(5534, 'b') + "c");
}

TEST(LineCutter, TheLongestLineLeavesRoomForItsEnd)
{
    CFeeder feeder(CLineCutter::LookupCapacity);
    EXPECT_EQ(feeder.Put(std::string(65534, 'x')), 65534u);
    EXPECT_EQ(feeder.Put("\nnext\n"), 1u);
    EXPECT_EQ(feeder.Seen, (Lines{std::string(65534, 'x')}));
    EXPECT_EQ(feeder.Cutter.Room().size(), 65535u);
}

TEST(LineCutter, ALineThatFillsTheBufferEndsTheReading)
{
    for (const int capacity : {CLineCutter::LookupCapacity, CLineCutter::StreamCapacity}) {
        CFeeder feeder(capacity);
        const std::string line(static_cast<std::size_t>(capacity), 'x');
        EXPECT_EQ(feeder.Put(line), line.size() - 1);
        EXPECT_EQ(feeder.Cutter.Room().size(), 0u);
        EXPECT_EQ(feeder.Put("\n"), 0u);
        EXPECT_TRUE(feeder.Seen.empty());
    }
}

TEST(LineCutter, BinaryBytesPassAndAZeroByteEndsTheText)
{
    CFeeder feeder;
    feeder.Put(std::string_view("\xff\x80\x01\ta\0b\nnext\n", 13));
    EXPECT_EQ(feeder.Seen, (Lines{"\xff\x80\x01\ta", "next"}));
    CFeeder cut;
    cut.Put(std::string_view("a\0", 2));
    cut.Put(std::string_view("b\0c\nd\n", 6));
    EXPECT_EQ(cut.Seen, (Lines{"a", "d"}));
}

RC_GTEST_PROP(LineCutter, AnyTextCutAnywhereGivesTheSameLines, ())
{
    const std::string text =
        *rc::gen::container<std::string>(rc::gen::weightedOneOf<char>({{8, rc::gen::inRange<char>('a', 'z')},
                                                                       {1, rc::gen::just('\n')},
                                                                       {1, rc::gen::just('\r')},
                                                                       {1, rc::gen::just('\0')}}));
    CFeeder feeder;
    std::size_t at = 0;
    while (at < text.size())
        at += feeder.Put(std::string_view(text).substr(at, *rc::gen::inRange<std::size_t>(1, 40)));
    RC_ASSERT(feeder.Seen == PlainLines(text));
}

TEST(LineFields, SplitsAtEveryCommaAndCountsEmptyFields)
{
    const CLineFields<9> fields(",a,,b,");
    EXPECT_EQ(fields.Count(), 5);
    EXPECT_EQ(fields[0], "");
    EXPECT_EQ(fields[1], "a");
    EXPECT_EQ(fields[3], "b");
    EXPECT_EQ(fields[4], "");
    EXPECT_THROW(fields[5], std::invalid_argument);
    EXPECT_EQ(CLineFields<9>("").Count(), 1);
}

TEST(LineFields, FieldsBehindTheLastOneKeptAreNotLookedAt)
{
    const CLineFields<3> fields("a,b,c,d,e");
    EXPECT_EQ(fields.Count(), 3);
    EXPECT_EQ(fields[2], "c");
}

RC_GTEST_PROP(LineFields, AnyLineSplitsLikeThePlainLoop, ())
{
    // Lines below, at and above the 64 bytes that are examined together.
    const std::string line = *rc::gen::container<std::string>(*rc::gen::inRange<std::size_t>(0, 200),
                                                              rc::gen::elementOf(std::string("abcdefgh,")));
    Lines expected(1);
    for (const char c : line) {
        if (c == ',')
            expected.emplace_back();
        else
            expected.back() += c;
    }
    const CLineFields<41> fields(line);
    RC_ASSERT(fields.Count() == std::min<int>(41, static_cast<int>(expected.size())));
    for (int i = 0; i < fields.Count(); ++i)
        RC_ASSERT(std::string(fields[i]) == expected[static_cast<std::size_t>(i)]);
}
