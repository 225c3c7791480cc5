// The server on real sockets of the loopback address, always on free ports.
#include "feed/server/FeedServer.h"

#include "FeedClient.h"
#include "TemporaryFolder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <list>
#include <thread>

namespace zantroq::feed {
namespace {

sFEED_OPTIONS Options()
{
    sFEED_OPTIONS options;
    options.ServeShipped = false;
    return options;
}

std::size_t CountLines(const std::string& text)
{
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

} // namespace

TEST(FeedServer, ServesOnTwoFreePortsAndStops)
{
    CFeedServer server(Options());
    std::string error;
    EXPECT_EQ(server.LookupPort(), 0);
    ASSERT_TRUE(server.Start(error)) << error;
    EXPECT_NE(server.LookupPort(), 0);
    EXPECT_NE(server.LookupPort(), server.Level1Port());
    CFeedClient client(server.LookupPort());
    EXPECT_EQ(CountLines(client.Ask("HDX,SIM.CALM,5,1,61")), 6u);
    server.Stop();
    EXPECT_EQ(server.LookupPort(), 0);
    EXPECT_EQ(client.ReadTo("anything"), "");
    ASSERT_TRUE(server.Start(error)) << error;
}

TEST(FeedServer, ATakenPortIsOneClearSentence)
{
    CFeedServer first(Options());
    std::string error;
    ASSERT_TRUE(first.Start(error));
    sFEED_OPTIONS options = Options();
    options.LookupPort = first.LookupPort();
    CFeedServer second(options);
    EXPECT_FALSE(second.Start(error));
    EXPECT_NE(error.find("lookup port 127.0.0.1:" + std::to_string(first.LookupPort())), std::string::npos)
        << error;
    EXPECT_EQ(second.LookupPort(), 0);
}

TEST(FeedServer, ShipsGenuineDailyPrices)
{
    CFeedServer server{sFEED_OPTIONS()};
    std::string error;
    ASSERT_TRUE(server.Start(error));
    CFeedClient client(server.LookupPort());
    EXPECT_EQ(client.Ask("HDT,GOOG,20040819,20040820,,1,7"),
              "7,2004-08-19,104.06,95.96,100.0,100.34,22351900,0\r\n"
              "7,2004-08-20,109.08,100.5,101.01,108.31,11428600,0\r\n"
              "7,!ENDMSG!,\r\n");
    EXPECT_EQ(CountLines(client.Ask("HDX,GOOG,0,1,6")), 1048u);
    EXPECT_EQ(CountLines(client.Ask("HDX,MSFT,0,1,6")), 66u);
}

TEST(FeedServer, CommandsMayComeInPiecesAndSeveralAtOnce)
{
    CFeedServer server(Options());
    std::string error;
    ASSERT_TRUE(server.Start(error));
    CFeedClient client(server.LookupPort());
    client.Send("S,SET PROTOCOL,5.0\nHDX,SIM.CALM,2");
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    client.Send(",1,61\r\nHDX,SIM.CALM,3,1,62\r");
    EXPECT_EQ(client.ReadTo("\r\n"), "S,CURRENT PROTOCOL,5.0\r\n");
    EXPECT_EQ(CountLines(client.ReadTo("!ENDMSG!,\r\n")), 3u);
    EXPECT_EQ(CountLines(client.ReadTo("62,!ENDMSG!,\r\n")), 4u);
}

TEST(FeedServer, AnEndlessLineIsOneErrorAndTheConnectionStays)
{
    CFeedServer server(Options());
    std::string error;
    ASSERT_TRUE(server.Start(error));
    CFeedClient client(server.LookupPort());
    client.Send(std::string(200'000, 'x') + "\n");
    EXPECT_EQ(client.Ask("HDX,SIM.CALM,0,1,6").substr(0, 20), "E,!SYNTAX_ERROR!,,\r\n");
    EXPECT_EQ(CountLines(client.Ask("HDX,SIM.CALM,1,1,6")), 2u);
}

TEST(FeedServer, ManyClientsAtOnceGetTheSameAnswers)
{
    CFeedServer server(Options());
    std::string error;
    ASSERT_TRUE(server.Start(error));
    const std::string expected = CFeedClient(server.LookupPort()).Ask("HTD,SIM.WILD,2,,,,1,1");
    ASSERT_GT(CountLines(expected), 1000u);
    std::vector<std::thread> clients;
    std::array<bool, 12> same{};
    for (bool& result : same)
        clients.emplace_back([&] {
            CFeedClient client(server.LookupPort());
            result = client.Ask("HTD,SIM.WILD,2,,,,1,1") == expected &&
                     client.Ask("HTD,SIM.WILD,2,,,,1,1") == expected;
        });
    for (auto& client : clients)
        client.join();
    EXPECT_TRUE(std::all_of(same.begin(), same.end(), [](bool result) { return result; }));
}

TEST(FeedServer, AClientThatClosesInMidReplyHarmsNobody)
{
    CFeedServer server(Options());
    std::string error;
    ASSERT_TRUE(server.Start(error));
    for (int i = 0; i < 5; ++i) {
        CFeedClient leaving(server.LookupPort());
        leaving.Send("HTX,SIM.BIG,500000,1,0\n");
        leaving.ReadTo("\r\n");
        leaving.Close();
        CFeedClient watching(server.Level1Port());
        watching.Send("wSIM.WILD\n");
        watching.ReadTo("P,SIM.WILD");
        watching.Close();
    }
    EXPECT_EQ(CountLines(CFeedClient(server.LookupPort()).Ask("HDX,SIM.CALM,5,1,61")), 6u);
}

TEST(FeedServer, AClientThatDoesNotReadHoldsUpNobody)
{
    CFeedServer server(Options());
    std::string error;
    ASSERT_TRUE(server.Start(error));
    CFeedClient stuck(server.LookupPort());
    for (int i = 0; i < 1000; ++i)
        stuck.Send("HTX,SIM.BIG,300000,1,0\n");
    CFeedClient client(server.LookupPort());
    EXPECT_EQ(CountLines(client.Ask("HDX,SIM.CALM,5,1,61")), 6u);
}

TEST(FeedServer, AClientThatStopsSendingStillGetsItsReply)
{
    CFeedServer server(Options());
    std::string error;
    ASSERT_TRUE(server.Start(error));
    CFeedClient client(server.LookupPort());
    client.Send("HTX,SIM.CALM,20000,1,0\n");
    client.CloseSendingHalf();
    EXPECT_EQ(CountLines(client.ReadTo("!ENDMSG!,\r\n")), 20'001u);
}

TEST(FeedServer, AHundredThousandTicksArriveInOrder)
{
    CFeedServer server(Options());
    std::string error;
    ASSERT_TRUE(server.Start(error));
    const std::string reply = CFeedClient(server.LookupPort()).Ask("HTX,SIM.BIG,100000,1,0");
    ASSERT_EQ(CountLines(reply), 100'001u);
    std::string_view rest = reply, before;
    for (int i = 0; i < 100'000; ++i) {
        const std::string_view stamp = rest.substr(2, 23);
        ASSERT_LE(before, stamp);
        before = stamp;
        rest.remove_prefix(rest.find('\n') + 1);
    }
}

TEST(FeedServer, WatchedSimulationsTradeUntilRemoved)
{
    sFEED_OPTIONS options = Options();
    options.Speed = 100;
    CFeedServer server(options);
    std::string error;
    ASSERT_TRUE(server.Start(error));
    CFeedClient first(server.Level1Port()), second(server.Level1Port());
    first.Send("S,SELECT UPDATE FIELDS,,Symbol,Most Recent Trade\nwSIM.CALM\r\n");
    second.Send("S,SELECT UPDATE FIELDS,,Symbol,Most Recent Trade\nwSIM.CALM\r\n");
    std::string a = first.ReadTo("P,SIM.CALM,"), b = second.ReadTo("P,SIM.CALM,");
    EXPECT_NE(a.find("S,SIMULATED,SIM.CALM\r\nF,SIM.CALM,"), std::string::npos);
    // The market of each client begins at the last recorded point and continues identically.
    for (int i = 0; i < 20; ++i) {
        a = first.ReadTo("Q,SIM.CALM,");
        b = second.ReadTo("Q,SIM.CALM,");
        EXPECT_EQ(a, b);
    }
    first.Send("rSIM.CALM\r\nwNIX\r\nwSIM.FLAT\r\n");
    first.ReadTo("P,SIM.FLAT,");
    EXPECT_EQ(first.ReadTo("Q,SIM.FLAT,").find("SIM.CALM"), std::string::npos);
}

TEST(FeedServer, StopsWhileItServes)
{
    CFeedServer server(Options());
    std::string error;
    ASSERT_TRUE(server.Start(error));
    CFeedClient history(server.LookupPort()), live(server.Level1Port());
    history.Send("HTX,SIM.BIG,2000000,1,0\n");
    live.Send("wSIM.WILD\n");
    history.ReadTo("\r\n");
    live.ReadTo("\r\n");
    server.Stop();
}

TEST(FeedServer, ToldOfBadRowsInsideStart)
{
    CTemporaryFolder folder;
    folder.Write("X.daily.csv", "date,open,high,low,close\n2014-01-02,1,1,1,1\nnonsense\n");
    std::vector<std::string> notices;
    sFEED_OPTIONS options = Options();
    options.Folders.push_back(folder.Path());
    options.OnNotice = [&](const std::string& notice) { notices.push_back(notice); };
    CFeedServer server(options);
    std::string error;
    ASSERT_TRUE(server.Start(error));
    ASSERT_EQ(notices.size(), 2u);
    EXPECT_NE(notices[0].find("X.daily.csv:3: "), std::string::npos);
}

// Regression: eight clients whose requests yield no line, or that request ever new simulated symbols, blocked
// the feed for all others for more than a minute, even after they had disconnected.
TEST(FeedServer, HeavyWorkOfOthersHoldsUpNobody)
{
    CFeedServer server(Options());
    std::string error;
    ASSERT_TRUE(server.Start(error));
    CFeedClient client(server.LookupPort());
    std::list<CFeedClient> attackers;
    for (int i = 0; i < 8; ++i) {
        CFeedClient& lookup = attackers.emplace_back(server.LookupPort());
        for (int line = 0; line < 50; ++line)
            lookup.Send(i % 2 == 0 ? "HID,SIM.BIG,7,9999999,,030000,030001,1,Z" + std::to_string(line) + "\n"
                                   : "HTX,SIM.K" + std::to_string(50 * i + line) + ",1,1,q\n");
        CFeedClient& live = attackers.emplace_back(server.Level1Port());
        for (int line = 0; line < 50; ++line)
            live.Send("wSIM.L" + std::to_string(50 * i + line) + "\n");
    }
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(CountLines(client.Ask("HIX,SIM.CALM,60,100,1,31")), 101u);
    for (CFeedClient& attacker : attackers)
        attacker.Close();
    EXPECT_EQ(CountLines(client.Ask("HIX,SIM.CALM,60,100,1,31")), 101u);
    server.Stop();
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

// Regression: idle connections were kept for ever.
TEST(FeedServer, ASilentClientIsClosedAfterAWhileAndOneThatSpokeIsNot)
{
    sFEED_OPTIONS options = Options();
    options.SilentLimit = std::chrono::milliseconds(100);
    CFeedServer server(options);
    std::string error;
    ASSERT_TRUE(server.Start(error));
    CFeedClient speaking(server.LookupPort());
    EXPECT_EQ(CountLines(speaking.Ask("HDX,SIM.CALM,5,1,61")), 6u);
    CFeedClient lookup(server.LookupPort()), live(server.Level1Port());
    lookup.Send("half a line is none");
    EXPECT_EQ(lookup.ReadTo("anything"), "");
    EXPECT_EQ(live.ReadTo("anything"), "");
    EXPECT_EQ(CountLines(speaking.Ask("HDX,SIM.CALM,5,1,61")), 6u);
}

} // namespace zantroq::feed
