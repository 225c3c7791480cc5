// Replies of the reference tables, block by block and without a socket.
#include "search/LookupReply.h"

#include <gtest/gtest.h>
#include <map>
#include <vector>

namespace zantroq {
namespace {

using TRows = std::vector<std::pair<unsigned, std::vector<std::string>>>;

TRows RowsOf(const CLookupReply& reply)
{
    TRows rows;
    reply.ForEachRow([&](unsigned id, CRowTokens& tokens) {
        rows.push_back({id, {}});
        for (std::string_view token; tokens.Next(token);)
            rows.back().second.emplace_back(token);
    });
    return rows;
}

TRows RowsOf(std::initializer_list<std::string_view> blocks)
{
    CLookupReply reply;
    for (const std::string_view block : blocks)
        if (!reply.Take(block))
            break;
    return RowsOf(reply);
}

const std::string Two = "1,A,Alpha\r\n2,B,Beta\r\n";

} // namespace

TEST(LookupReply, TheRowBeforeTheEndMarkIsLost)
{
    EXPECT_EQ(RowsOf({Two + "!ENDMSG!,\r\n"}), (TRows{{1, {"A", "Alpha\r"}}}));
    EXPECT_EQ(RowsOf({"1,A,Alpha\r\n!ENDMSG!,\r\n"}), TRows{});
}

TEST(LookupReply, TheLastTokenOfARowKeepsItsCarriageReturn)
{
    EXPECT_EQ(RowsOf({"1,A,Alpha\r\n2,B\r\n3,C\n4,D\r\n!ENDMSG!"}),
              (TRows{{1, {"A", "Alpha\r"}}, {2, {"B\r"}}, {3, {"C"}}}));
}

TEST(LookupReply, EmptyFieldsMoveTheTokensBehindThem)
{
    EXPECT_EQ(RowsOf({"1,,Alpha,,x\n,,2,B\n,\n\n3,,\nlast\n!ENDMSG!"}),
              (TRows{{1, {"Alpha", "x"}}, {2, {"B"}}, {3, {}}}));
}

TEST(LookupReply, IdsRunFrom0To255)
{
    EXPECT_EQ(RowsOf({"0,a\n255,b\n256,c\n-1,d\n-255,e\n4294967296,f\n99999999999999999999,g\nx,h\n 7z,i\n!"
                      "ENDMSG!"}),
              (TRows{{0, {"a"}}, {255, {"b"}}, {0, {"h"}}}))
        << "what cannot be read as a number is id 0; \" 7z\" is the line that the end takes along";
    EXPECT_EQ(RowsOf({" 7z,i\n\n!ENDMSG!"}), TRows{});
    EXPECT_EQ(RowsOf({" 7z,i\nlast\n!ENDMSG!"}), (TRows{{7, {"i"}}}));
}

TEST(LookupReply, ASyntaxErrorEmptiesTheReplyAndEndsIt)
{
    CLookupReply reply;
    EXPECT_TRUE(reply.Take(Two));
    EXPECT_FALSE(reply.Take("E,!SYNTAX_ERROR!,,\r\n"));
    EXPECT_EQ(reply.Text(), "");
}

TEST(LookupReply, TheEndMarkCountsBeforeASyntaxErrorInTheSameBlock)
{
    CLookupReply reply;
    EXPECT_FALSE(reply.Take("1,A\n!SYNTAX_ERROR!\n2,B\r\n!ENDMSG!,"));
    EXPECT_EQ(reply.Text(), "1,A\n!SYNTAX_ERROR!\n2,B");
}

TEST(LookupReply, WhatStandsBehindAZeroByteOfABlockIsLost)
{
    using namespace std::string_view_literals;
    EXPECT_EQ(RowsOf({"1,A\n2,\0B\n!ENDMSG!"sv, "\n3,C\n"sv}), (TRows{{1, {"A"}}, {2, {}}, {3, {"C"}}}));
}

// The end mark is searched in one block only, and only that block is trimmed.
TEST(LookupReply, AReplyCutAtEachByteDependsOnWhereTheEndMarkIsCut)
{
    const std::string whole = Two + "!ENDMSG!,\r\n";
    const std::size_t mark = Two.size(), markEnd = mark + std::string("!ENDMSG!").size();
    for (std::size_t cut = 0; cut <= whole.size(); ++cut) {
        CLookupReply reply;
        bool more = reply.Take(whole.substr(0, cut));
        if (more && cut < whole.size())
            more = reply.Take(whole.substr(cut));
        const bool split = cut > mark && cut < markEnd;
        EXPECT_EQ(more, split) << cut;
        TRows expected{{1, {"A", "Alpha\r"}}};
        // If the line end came in an earlier block, the mark is at the start of its block.
        if (cut == mark)
            expected.push_back({2, {"B", "Beta\r"}});
        else if (split) // the mark itself becomes a row of id 0
            expected.insert(expected.end(), {{2, {"B", "Beta\r"}}, {0, {"\r"}}});
        EXPECT_EQ(RowsOf(reply), expected) << cut;
    }
}

TEST(LookupReply, ABlockThatCutsTheLineEndKeepsTheCarriageReturn)
{
    // "\r" came with the row, "\n" with the mark: only the second block is trimmed.
    EXPECT_EQ(RowsOf({"1,A\r", "\n!ENDMSG!,\r\n"}), TRows{});
    EXPECT_EQ(RowsOf({"1,A\r\n", "!ENDMSG!,\r\n"}), (TRows{{1, {"A\r"}}}));
}

TEST(LookupReply, ARowOf65535BytesIsKeptWhole)
{
    const std::string name(65'535 - 2, 'n');
    EXPECT_EQ(RowsOf({"1," + name, "\nlast\n!ENDMSG!"}), (TRows{{1, {name}}}));
}

} // namespace zantroq
