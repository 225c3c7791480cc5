// Checks what docs/feed-protocol.md shows about tables and searches: reads its lines from the page.
#include "feed/markets/ReferenceTables.h"
#include "search/FindReply.h"
#include "search/LookupReply.h"

#include "SearchFakes.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace zantroq {
namespace {

// The line of the page that begins with this text.
std::string Shown(const std::string& beginning)
{
    std::ifstream page(ZANTROQ_DOCS "/feed-protocol.md");
    for (std::string line; std::getline(page, line);)
        if (line.starts_with(beginning))
            return line;
    ADD_FAILURE() << "the page shows no line that begins with " << beginning;
    return "";
}

} // namespace

TEST(SearchDocument, TheRowsShownAreThoseOfTheFeed)
{
    EXPECT_TRUE(feed::ListedMarketsReply().starts_with(Shown("1,LOCAL,") + "\r\n"));
    EXPECT_TRUE(feed::SecurityTypesReply().starts_with(Shown("1,EQUITY,") + "\r\n"));
}

TEST(SearchDocument, TheSearchShownIsSentAndItsReplyRead)
{
    EXPECT_EQ(FindCommand(1, "d", "goo", "e", "2 3"), Shown("FIND,1,") + "\r\n");
    test::sRecordedEvents events;
    CFindReply reply(1, events);
    EXPECT_FALSE(reply.Take(Shown("1,GOOG,") + "\r\n" + Shown("1,!ENDMSG!,") + "\r\n"));
    EXPECT_EQ(events.Lines, (std::vector<std::string>{"R GOOG,2,1,Google Inc.\r\n", "R !ENDMSG!,\r\n"}));
}

TEST(SearchDocument, TheLongestLineIsThatShown)
{
    std::ifstream page(ZANTROQ_DOCS "/feed-protocol.md");
    std::stringstream text;
    text << page.rdbuf();
    EXPECT_NE(text.str().find("one of more than 65,535 bytes"), std::string::npos);
    EXPECT_EQ(CFindReply::MaxLine, 65'535u);
    EXPECT_EQ(BlockingLimitMs, 5'000) << "the 5 seconds of the page";
}

} // namespace zantroq
