// The two reference tables with a peer in memory.
#include "search/LookupSystemInfo.h"

#include "SearchFakes.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

using test::sPeer;

sLookupSetup SetupOf(sPeer& peer, IMessageBox* box = nullptr)
{
    return {MakePortKey(9123, 1), std::make_unique<test::CFakeConnection>(peer), box};
}

} // namespace

TEST(LookupTables, AreFetchedOnceOnFirstUse)
{
    sPeer peer{.Blocks = {"1,N,North,7,Group\r\n3,S,South,8,Other\r\nx\r\n!ENDMSG!,\r\n"}};
    CListedMarkets markets(SetupOf(peer));
    EXPECT_EQ(peer.Connects, 0);
    EXPECT_FALSE(markets.Loaded());
    EXPECT_EQ(markets.GetShortName(3), "S");
    EXPECT_EQ(markets.GetLongName(1), "North");
    EXPECT_EQ(markets.GetShortName(2), "");
    EXPECT_EQ(markets.GetRowCount(), 2);
    EXPECT_EQ(peer.Connects, 1);
    EXPECT_EQ(peer.Port, 9123);
    EXPECT_EQ(peer.Sent, "SLM\r\n");
    EXPECT_EQ(peer.Closes, 1);
}

TEST(LookupTables, SecurityTypesAskWithSst)
{
    sPeer peer{.Blocks = {"1,EQUITY,Equity\r\nx\r\n!ENDMSG!,\r\n"}};
    CSecurityTypes types(SetupOf(peer));
    EXPECT_EQ(types.GetLongName(1), "Equity\r") << "the carriage return stays in the table";
    EXPECT_EQ(peer.Sent, "SST\r\n");
}

TEST(LookupTables, TheFirstToAskForTheCountLoads)
{
    sPeer peer{.Blocks = {"1,A,B\nx\n!ENDMSG!"}};
    CSecurityTypes types(SetupOf(peer));
    EXPECT_EQ(types.GetRowCount(), 1);
}

TEST(LookupTables, ASyntaxErrorIsAnEmptyTableThatIsNotFetchedAgain)
{
    sPeer peer{.Blocks = {"E,!SYNTAX_ERROR!,,\r\n"}};
    CListedMarkets markets(SetupOf(peer));
    EXPECT_EQ(markets.GetShortName(1), "");
    EXPECT_EQ(markets.GetShortName(1), "");
    EXPECT_TRUE(markets.Loaded());
    EXPECT_EQ(markets.GetRowCount(), 0);
    EXPECT_EQ(peer.Connects, 1);
}

TEST(LookupTables, EachLookupTriesAgainWhileTheFeedIsNotRunning)
{
    sPeer peer{.Refuses = true, .Blocks = {"5,A,B\nx\n!ENDMSG!"}};
    CListedMarkets markets(SetupOf(peer));
    EXPECT_EQ(markets.GetShortName(5), "");
    EXPECT_EQ(markets.GetLongName(5), "");
    EXPECT_EQ(peer.Connects, 2);
    EXPECT_FALSE(markets.Loaded());
    peer.Refuses = false;
    EXPECT_EQ(markets.GetShortName(5), "A");
    EXPECT_TRUE(markets.Loaded());
}

TEST(LookupTables, APeerThatClosesAtOnceLeavesALoadedEmptyTable)
{
    sPeer peer;
    CListedMarkets markets(SetupOf(peer));
    EXPECT_EQ(markets.GetRowCount(), 0);
    EXPECT_TRUE(markets.Loaded());
}

TEST(LookupTables, APeerThatClosesEarlyLeavesTheWholeLinesThatCame)
{
    sPeer peer{.Blocks = {"1,A,Al\r\n2,B,", "Be\r\n3,C,Ce"}};
    CListedMarkets markets(SetupOf(peer));
    EXPECT_EQ(markets.GetRowCount(), 2);
    EXPECT_EQ(markets.GetLongName(2), "Be\r");
    EXPECT_EQ(markets.GetShortName(3), "");
}

TEST(LookupTables, Id255IsStoredAnd256IsNot)
{
    sPeer peer{.Blocks = {"255,A,Last\n256,B,Beyond\n-1,C,Below\nx\n!ENDMSG!"}};
    CListedMarkets markets(SetupOf(peer));
    EXPECT_EQ(markets.GetShortName(255), "A");
    EXPECT_EQ(markets.GetRowCount(), 1);
    EXPECT_EQ(markets.GetShortName(256), "");
    EXPECT_EQ(markets.GetShortName(-1), "");
}

TEST(LookupTables, AnIdAloneCountsAndLeavesItsRowEmpty)
{
    sPeer peer{.Blocks = {"4\n5,A\nx\n!ENDMSG!"}};
    CSecurityTypes types(SetupOf(peer));
    EXPECT_EQ(types.GetRowCount(), 2);
    EXPECT_EQ(types.GetShortName(4), "");
    EXPECT_EQ(types.GetLongName(5), "");
}

TEST(LookupTables, ARowThatComesTwiceCountsTwiceAndFillsWhatItHas)
{
    sPeer peer{.Blocks = {"4,A,Alpha\n4,B\nx\n!ENDMSG!"}};
    CSecurityTypes types(SetupOf(peer));
    EXPECT_EQ(types.GetRowCount(), 2);
    EXPECT_EQ(types.GetShortName(4), "B");
    EXPECT_EQ(types.GetLongName(4), "Alpha");
}

TEST(LookupTables, ASystemWithoutSocketsIsReportedAndTheTableGoesOn)
{
    sPeer peer{.HasSockets = false, .Blocks = {"1,A,B\nx\n!ENDMSG!"}};
    test::sFakeBox box;
    CListedMarkets markets(SetupOf(peer, &box));
    EXPECT_EQ(box.Asked, std::vector<std::string>{"AfxSocketInit: Failed to Initialize Sockets"});
    EXPECT_EQ(markets.GetShortName(1), "A");
}

} // namespace zantroq
