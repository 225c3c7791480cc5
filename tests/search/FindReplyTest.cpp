// Replies to a FIND line in pieces of any size, without a socket.
#include "search/FindReply.h"

#include "SearchFakes.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

using TLines = std::vector<std::string>;

TLines EventsOf(std::initializer_list<std::string_view> pieces, bool expectMore = false)
{
    test::sRecordedEvents events;
    CFindReply reply(7, events);
    bool more = true;
    for (const std::string_view piece : pieces)
        more = reply.Take(piece);
    EXPECT_EQ(more, expectMore);
    return events.Lines;
}

} // namespace

TEST(FindReply, LinesLoseTheirIdentifierAndKeepTheirFields)
{
    EXPECT_EQ(EventsOf({"7,GOOG,2,1,Google Inc.\r\n7,MSFT,2,1,Microsoft\r\n7,!ENDMSG!,\r\n"}),
              (TLines{"R GOOG,2,1,Google Inc.\r\n", "R MSFT,2,1,Microsoft\r\n", "R !ENDMSG!,\r\n"}));
}

TEST(FindReply, IsTheSameWhereverItIsCut)
{
    const std::string whole = "7,A,2,1,Alpha, Inc.\r\n7,B,,,\n\r\n7,E,broken\r\n";
    const TLines expected{"R A,2,1,Alpha, Inc.\r\n", "R B,,,\r\n", "X E,broken\r\n", "X !ENDMSG!,\r\n"};
    for (std::size_t cut = 0; cut <= whole.size(); ++cut)
        EXPECT_EQ(EventsOf({whole.substr(0, cut), whole.substr(cut)}), expected) << cut;
    test::sRecordedEvents events;
    CFindReply reply(7, events);
    for (const char byte : whole)
        reply.Take({&byte, 1});
    EXPECT_EQ(events.Lines, expected);
}

TEST(FindReply, AnErrorLineEndsTheSearch)
{
    EXPECT_EQ(EventsOf({"7,E,Empty search text\r\n7,A,1,1,late\r\n"}),
              (TLines{"X E,Empty search text\r\n", "X !ENDMSG!,\r\n"}));
}

TEST(FindReply, ASymbolNamedEIsNoError)
{
    EXPECT_EQ(EventsOf({"7,E,3,1,Eni\r\n7,E,3,x\r\n"}),
              (TLines{"R E,3,1,Eni\r\n", "X E,3,x\r\n", "X !ENDMSG!,\r\n"}));
}

TEST(FindReply, ASyntaxErrorWithoutAnIdentifierEndsTheSearch)
{
    EXPECT_EQ(EventsOf({"E,!SYNTAX_ERROR!,,\r\n"}), (TLines{"X E,!SYNTAX_ERROR!,,\r\n", "X !ENDMSG!,\r\n"}));
}

TEST(FindReply, LinesOfOtherSearchesArePassedOver)
{
    EXPECT_EQ(EventsOf({"6,A,1,1,x\r\nS,hello\r\n77,B,1,1,x\r\n7,C,1,1,x\r\n6,!ENDMSG!,\r\n"}, true),
              TLines{"R C,1,1,x\r\n"});
}

TEST(FindReply, NothingComesBehindTheEnd)
{
    EXPECT_EQ(EventsOf({"7,!ENDMSG!,\r\n", "7,A,1,1,late\r\n"}), TLines{"R !ENDMSG!,\r\n"});
}

TEST(FindReply, ARowOf65535BytesComesWholeAndALongerOneNot)
{
    const std::string row = "7,A,1,1," + std::string(CFindReply::MaxLine - 8, 'x');
    ASSERT_EQ(row.size(), 65'535u);
    EXPECT_EQ(EventsOf({row + "\r\n7,!ENDMSG!,\r\n"}),
              (TLines{"R " + row.substr(2) + "\r\n", "R !ENDMSG!,\r\n"}));
    EXPECT_EQ(EventsOf({row + "xx", "xx\r\n7,!ENDMSG!,\r\n"}), TLines{"R !ENDMSG!,\r\n"});
}

TEST(FindReply, ALineThatNeverEndsTakesNoMoreMemory)
{
    test::sRecordedEvents events;
    CFindReply reply(7, events);
    const std::string block(65'535, 'x');
    for (int i = 0; i < 100; ++i)
        EXPECT_TRUE(reply.Take(block));
    EXPECT_FALSE(reply.Take("\n7,!ENDMSG!,\r\n"));
}

TEST(FindCommand, IsOneLineWhateverItsTexts)
{
    EXPECT_EQ(FindCommand(7, "d", "goo", "e", "2 3"), "FIND,7,d,goo,e,2 3\r\n");
    EXPECT_EQ(FindCommand(7, "s", "a\r\nHTX,b", "", ""), "FIND,7,s,a  HTX,b,,\r\n");
}

} // namespace zantroq
