// Reference tables over real connections, and the connection itself.
#include "search/LookupSystemInfo.h"

#include "support/ScriptedFeed.h"

#include <csignal>
#include <gtest/gtest.h>
#include <unistd.h>

namespace zantroq {
namespace {

using test::CScriptedPort;

constexpr int ShortLimitMs = 200;

sLookupSetup SetupOf(const CScriptedPort& port, int limitMs = BlockingLimitMs)
{
    return {MakePortKey(port.Port(), 1), MakeBlockingConnection(limitMs), nullptr};
}

// Ends the process if a broken connection raises the signal that hosts do not expect.
struct sSigPipeKills
{
    sSigPipeKills() { std::signal(SIGPIPE, SIG_DFL); }
};

} // namespace

TEST(LookupFeed, ATableComesOverAConnectionOfItsOwn)
{
    CScriptedPort port;
    port.SetResponder([](std::string_view line) {
        return line == "SLM" ? "2,N,North,1,Group\r\n0,x\r\n!ENDMSG!,\r\n" : "";
    });
    CListedMarkets markets(SetupOf(port));
    EXPECT_EQ(markets.GetLongName(2), "North");
    EXPECT_EQ(port.Received(), "SLM\r\n");
    EXPECT_TRUE(test::AwaitTrue([&] { return port.PeerClosed(); }));
}

TEST(LookupFeed, TheConnectionStandsForTheSilenceOfItsPeer)
{
    CScriptedPort port;
    port.SetResponder([](std::string_view) { return "2,N,North\r\n3,S"; });
    CListedMarkets markets(SetupOf(port, ShortLimitMs));
    EXPECT_EQ(markets.GetShortName(2), "N") << "what came before the silence counts";
    EXPECT_EQ(markets.GetShortName(3), "");
    EXPECT_TRUE(markets.Loaded());
}

TEST(LookupFeed, AFeedThatIsNotRunningLeavesTheTableUnloaded)
{
    CListedMarkets markets({MakePortKey(test::RefusingPort(), 1), nullptr, nullptr});
    EXPECT_EQ(markets.GetShortName(1), "");
    EXPECT_FALSE(markets.Loaded());
}

// However the reply is cut outside its end mark, the result is the same.
TEST(LookupFeed, AReplyCutOutsideOfItsEndMarkIsTheSame)
{
    const std::string answer = "2,N,North\r\n3,S,South\r\n!ENDMSG!,\r\n";
    std::vector<std::size_t> cuts;
    for (std::size_t i = 1; i < answer.find("\r\n!"); ++i)
        cuts.push_back(i);
    CScriptedPort port;
    CSecurityTypes types(SetupOf(port));
    std::thread sender([&] {
        ASSERT_TRUE(port.AwaitReceived("SST\r\n"));
        port.SendCut(answer, cuts);
    });
    EXPECT_EQ(types.GetRowCount(), 1);
    EXPECT_EQ(types.GetLongName(2), "North\r");
    sender.join();
}

TEST(BlockingConnection, ABrokenConnectionRaisesNoSignal)
{
    const sSigPipeKills signal;
    auto port = std::make_unique<CScriptedPort>();
    const auto connection = MakeBlockingConnection();
    ASSERT_TRUE(connection->Connect(port->Port()));
    ASSERT_TRUE(port->AwaitConnection());
    port.reset();
    EXPECT_TRUE(test::AwaitTrue([&] { return !connection->Send("again"); }));
}

TEST(BlockingConnection, AnInterruptEndsAWaitOnAnotherThread)
{
    CScriptedPort port;
    const auto connection = MakeBlockingConnection(600'000);
    ASSERT_TRUE(connection->Connect(port.Port()));
    int received = 1;
    std::thread waiting([&] {
        char byte = 0;
        received = connection->Receive(&byte, 1);
    });
    connection->Interrupt();
    waiting.join();
    EXPECT_LE(received, 0);
    EXPECT_FALSE(connection->Connect(port.Port())) << "an interrupted connection is done with";
}

TEST(BlockingConnection, NothingGoesThroughAConnectionThatWasNeverMade)
{
    const auto connection = MakeBlockingConnection();
    char byte = 0;
    EXPECT_FALSE(connection->Connect(test::RefusingPort()));
    EXPECT_FALSE(connection->Send("x"));
    EXPECT_EQ(connection->Receive(&byte, 1), -1);
    connection->Close();
}

} // namespace zantroq
