// The worker with its two sockets and a scripted feed on loopback ports.
#include "market/ManagerThreadHolder.h"

#include "market/HistoryCommand.h"
#include "market/Level1Command.h"
#include "market/SeriesFixture.h"
#include "support/ScriptedFeed.h"
#include "support/UnreliableKey.h"

#include <gtest/gtest.h>
#include <map>

using namespace zantroq;
using namespace zantroq::test;

namespace {

constexpr const char* ClientName = "S,SET CLIENT NAME,Zantroq Chart\n";

class CMapKey : public ISettingsKey
{
public:
    std::map<std::string, SettingValue, std::less<>> Values;
    bool Opens = true;

    CSettingRead Read(std::string_view name) override
    {
        if (!Opens)
            return CSettingRead::Unreadable();
        const auto found = Values.find(name);
        return found != Values.end() ? CSettingRead(found->second) : CSettingRead::Missing();
    }
    bool Write(std::string_view name, const SettingValue& value) override
    {
        if (Opens)
            Values[std::string(name)] = value;
        return Opens;
    }
    bool Delete(std::string_view) override { return false; }
    std::vector<std::pair<std::string, SettingValue>> List() override { return {}; }
};

class CFeedTest : public ::testing::Test
{
protected:
    void Start() { m_holder.StartManagerThread(m_feed.Key()); }
    void TearDown() override { m_holder.StopManagerThread(); }

    std::unique_ptr<CChartHistRequest> Request(int kind)
    {
        auto request = std::make_unique<CChartHistRequest>();
        request->SetSymbol("SYM");
        request->SetRequestKind(kind);
        request->SetDataDirection("1");
        return request;
    }
    static std::string Identifier(const CChartHistRequest& request)
    {
        return std::to_string(request.GetRequestKind()) + std::to_string(request.Handle());
    }
    static std::string Day(const CChartHistRequest& request, const std::string& date)
    {
        return Identifier(request) + "," + date + ",4,1,2,3,5,7\r\n";
    }

    CScriptedFeed m_feed;
    CManagerThreadHolder m_holder;
};

} // namespace

TEST_F(CFeedTest, ConnectionsOpenWithTheirSetUp)
{
    Start();
    EXPECT_TRUE(m_feed.Lookup.AwaitReceived(ClientName));
    EXPECT_TRUE(m_feed.Level1.AwaitReceived(Level1SetupText()));
    EXPECT_EQ(m_feed.Lookup.Received(), ClientName);
    EXPECT_EQ(m_feed.Level1.Received(), Level1SetupText());
}

TEST_F(CFeedTest, TheTenCommandsArriveByteForByte)
{
    Start();
    std::string expected = ClientName;
    std::vector<std::unique_ptr<CChartHistRequest>> requests;
    const char* const texts[] = {"HTX,SYM,100,1,",
                                 "HTD,SYM,5,,100000,150000,1,",
                                 "HTT,SYM,20140102 093000,20140103 160000,,100000,150000,1,",
                                 "HIX,SYM,60,100,1,",
                                 "HID,SYM,60,5,,100000,150000,1,",
                                 "HIT,SYM,60,20140102 093000,20140103 160000,,100000,150000,1,",
                                 "HDX,SYM,100,1,",
                                 "HDT,SYM,20140102,20140103,,1,",
                                 "HWX,SYM,100,1,",
                                 "HMX,SYM,100,1,"};
    for (int kind = 0; kind <= 9; ++kind) {
        auto request = Request(kind);
        request->SetDatapoints(100);
        request->SetIntervalSeconds(60);
        request->SetDays(5);
        request->SetBeginDate("20140102");
        request->SetEndDate("20140103");
        request->SetBeginTime("093000");
        request->SetEndTime("160000");
        request->SetBeginFilterTime("100000");
        request->SetEndFilterTime("150000");
        m_holder.SendHistoryRequest(*request);
        expected += "S,SET PROTOCOL,5.0\n" + std::string(texts[kind]) + Identifier(*request) + "\n";
        requests.push_back(std::move(request));
    }
    EXPECT_TRUE(m_feed.Lookup.AwaitReceived("HMX"));
    EXPECT_TRUE(AwaitTrue([&] { return m_feed.Lookup.Received().size() >= expected.size(); }));
    EXPECT_EQ(m_feed.Lookup.Received(), expected);
}

TEST_F(CFeedTest, AReplyFillsTheSeriesAndCompletesIt)
{
    Start();
    auto request = Request(6);
    m_feed.Lookup.SetResponder([&](std::string_view line) -> std::string {
        if (line.substr(0, 3) != "HDX")
            return {};
        return Day(*request, "2014-01-02") + Day(*request, "2014-01-03") + Identifier(*request) +
               ",!ENDMSG!,\r\n";
    });
    m_holder.WatchSymbol(*request);
    m_holder.SendHistoryRequest(*request);
    EXPECT_TRUE(AwaitTrue([&] { return request->IsComplete(); }));
    EXPECT_EQ(request->GetCount(0), 2);
    EXPECT_TRUE(m_feed.Level1.AwaitReceived("wSYM\r\n"));
    m_feed.Level1.Send(Trade("01/06/2014", "12:00:00.000", "3.5").Text() + "\r\n");
    EXPECT_TRUE(AwaitTrue([&] { return request->GetCount(0) == 3; }));
    EXPECT_EQ(request->GetCloseAt(2), 3.5);
}

TEST_F(CFeedTest, LinesCutAcrossReceivesAreTakenWhole)
{
    Start();
    auto request = Request(6);
    m_holder.SendHistoryRequest(*request);
    const std::string text =
        Day(*request, "2014-01-02") + Day(*request, "2014-01-03") + Identifier(*request) + ",!ENDMSG!,\n";
    ASSERT_TRUE(m_feed.Lookup.AwaitReceived("HDX"));
    m_feed.Lookup.SendCut(text, {1, 3, 10, text.find('\r'), text.find('\r') + 1, text.size() - 1});
    EXPECT_TRUE(AwaitTrue([&] { return request->IsComplete(); }));
    EXPECT_EQ(request->GetCount(0), 2);
}

TEST_F(CFeedTest, AFailingLineCostsThatLineAlone)
{
    Start();
    auto request = Request(6), other = Request(6);
    m_holder.SendHistoryRequest(*request);
    m_holder.SendHistoryRequest(*other);
    ASSERT_TRUE(m_feed.Lookup.AwaitReceived(Identifier(*other) + "\n"));
    m_feed.Lookup.Send(Day(*request, "2014-01-02") + Identifier(*request) + ",2014-01-03,1\r\n" +
                       Day(*other, "2014-01-02") + Identifier(*request) + "\r\n" + std::string(100, '\0') +
                       "\r\n\xff\xfe,\x01\r\n99,x\r\n" + Day(*request, "2014-01-03") + Identifier(*request) +
                       ",!ENDMSG!,\r\n" + Identifier(*other) + ",!ENDMSG!,\r\n");
    EXPECT_TRUE(AwaitTrue([&] { return request->IsComplete() && other->IsComplete(); }));
    EXPECT_EQ(request->GetCount(0), 2);
    EXPECT_EQ(other->GetCount(0), 1);
    m_feed.Level1.Send("Q,SYM\r\n\r\nF\r\nQ\r\n,\r\n");
    m_holder.WatchSymbol(*request);
    EXPECT_TRUE(m_feed.Level1.AwaitReceived("wSYM\r\n"));
}

TEST_F(CFeedTest, ALineThatFillsTheBufferEndsThatSocketOnly)
{
    Start();
    auto request = Request(0);
    m_holder.SendHistoryRequest(*request);
    ASSERT_TRUE(m_feed.Lookup.AwaitReceived("HTX"));
    m_feed.Lookup.Send(std::string(65534, 'x') + "\n"); // the longest line that fits
    m_feed.Lookup.Send(Identifier(*request) + ",!ENDMSG!,\n");
    ASSERT_TRUE(AwaitTrue([&] { return request->IsComplete(); }));
    m_feed.Lookup.Send(std::string(65535, 'x') + "\n");
    m_holder.SendHistoryRequest(*request);
    m_feed.Lookup.Send(Identifier(*request) + ",!ENDMSG!,\n");
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    EXPECT_FALSE(request->IsComplete());
    m_feed.Level1.Send("Q,OTHER,1\r\n");
    EXPECT_TRUE(m_feed.Level1.AwaitReceived("rOTHER\r\n"));
}

TEST_F(CFeedTest, TheLevel1BufferHoldsShorterLines)
{
    Start();
    m_feed.Level1.Send("Q,FIRST," + std::string(4094 - 8, 'x') + "\n");
    EXPECT_TRUE(m_feed.Level1.AwaitReceived("rFIRST\r\n"));
    m_feed.Level1.Send("Q,SECOND," + std::string(4095 - 9, 'x') + "\nQ,THIRD,\n");
    EXPECT_FALSE(m_feed.Level1.AwaitReceived("rSECOND", std::chrono::milliseconds(100)));
    EXPECT_EQ(m_feed.Level1.Received().find("rTHIRD"), std::string::npos);
}

TEST_F(CFeedTest, AFeedThatHangsUpLeavesTheChartAsItStands)
{
    Start();
    auto request = Request(6);
    m_holder.SendHistoryRequest(*request);
    ASSERT_TRUE(m_feed.Lookup.AwaitReceived("HDX"));
    m_feed.Lookup.Send(Day(*request, "2014-01-02"));
    ASSERT_TRUE(AwaitTrue([&] { return request->GetCount(0) == 1; }));
    m_feed.Lookup.CloseConnection();
    m_feed.Level1.CloseConnection();
    m_holder.SendHistoryRequest(*request);
    m_holder.WatchSymbol(*request);
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    m_holder.SendHistoryRequest(*request);
    EXPECT_FALSE(request->IsComplete());
    EXPECT_EQ(request->GetCount(0), 1);
    EXPECT_EQ(m_feed.Lookup.Connections(), 1) << "there is no reconnection";
}

TEST_F(CFeedTest, PortsThatRefuseLeaveTheRequestWaiting)
{
    m_holder.StartManagerThread(MakePortKey(RefusingPort(), RefusingPort()));
    auto request = Request(6);
    m_holder.WatchSymbol(*request);
    m_holder.SendHistoryRequest(*request);
    m_holder.UnwatchSymbol(*request);
    EXPECT_TRUE(m_holder.Running());
    EXPECT_FALSE(request->IsComplete());
}

TEST_F(CFeedTest, TwoChartsOfASymbolWatchTwiceAndRemoveOnce)
{
    Start();
    auto a = Request(0), b = Request(0);
    m_holder.WatchSymbol(*a);
    m_holder.WatchSymbol(*b);
    m_holder.UnwatchSymbol(*a);
    m_holder.UnwatchSymbol(*a);
    m_holder.UnwatchSymbol(*b);
    m_holder.UnwatchSymbol(*b);
    EXPECT_TRUE(m_feed.Level1.AwaitReceived("rSYM\r\n"));
    EXPECT_EQ(m_feed.Level1.Received(), Level1SetupText() + "wSYM\r\nwSYM\r\nrSYM\r\n");
}

TEST_F(CFeedTest, AnEmptySymbolIsNotWatched)
{
    Start();
    auto request = Request(0);
    request->SetSymbol("");
    m_holder.WatchSymbol(*request);
    m_holder.UnwatchSymbol(*request);
    request->SetSymbol("NEXT");
    m_holder.WatchSymbol(*request);
    EXPECT_TRUE(m_feed.Level1.AwaitReceived("wNEXT\r\n"));
    EXPECT_EQ(m_feed.Level1.Received(), Level1SetupText() + "wNEXT\r\n");
}

TEST_F(CFeedTest, AReplyToAClosedWindowFreesItsRequest)
{
    Start();
    auto request = Request(6);
    const std::string line = Day(*request, "2014-01-02"), identifier = Identifier(*request);
    m_holder.SendHistoryRequest(*request);
    ASSERT_TRUE(m_feed.Lookup.AwaitReceived("HDX"));
    const std::weak_ptr<CChartHistRequest> watched = FindRequest(request->Handle());
    m_feed.Lookup.Send(line);
    ASSERT_TRUE(AwaitTrue([&] { return request->GetCount(0) == 1; }));
    GiveUpRequest(std::move(request));
    EXPECT_FALSE(watched.expired());
    m_feed.Lookup.Send(line + identifier + ",!ENDMSG!,\r\n");
    EXPECT_TRUE(AwaitTrue([&] { return watched.expired(); }));
}

TEST_F(CFeedTest, TheWorkerLivesFromTheFirstControlToTheLast)
{
    auto request = Request(0);
    m_holder.UnwatchSymbol(*request); // nothing runs yet
    m_holder.SendHistoryRequest(*request);
    m_holder.AddControl(m_feed.Key());
    m_holder.AddControl(m_feed.Key());
    EXPECT_TRUE(
        AwaitTrue([&] { return m_feed.Lookup.Connections() == 1 && m_feed.Level1.Connections() == 1; }));
    m_holder.WatchSymbol(*request);
    m_holder.RemoveControl(nullptr);
    EXPECT_TRUE(m_holder.Running());
    m_holder.RemoveControl(request.get());
    EXPECT_FALSE(m_holder.Running());
    EXPECT_TRUE(m_feed.Level1.AwaitReceived("rSYM\r\n"));
    EXPECT_TRUE(AwaitTrue([&] { return m_feed.Level1.PeerClosed() && m_feed.Lookup.PeerClosed(); }));
    m_holder.AddControl(m_feed.Key());
    EXPECT_TRUE(
        AwaitTrue([&] { return m_feed.Lookup.Connections() == 2 && m_feed.Level1.Connections() == 2; }));
    m_holder.RemoveControl(nullptr);
    EXPECT_EQ(m_holder.ControlCount(), 0);
}

// The worker has ended, so the end marker that would free the series cannot arrive.
TEST_F(CFeedTest, TheLastControlGoesWhileAReplyIsLoading)
{
    auto request = Request(6);
    m_holder.AddControl(m_feed.Key());
    m_holder.WatchSymbol(*request);
    m_holder.SendHistoryRequest(*request);
    ASSERT_TRUE(m_feed.Lookup.AwaitReceived("HDX"));
    m_feed.Lookup.Send(Day(*request, "2014-01-02"));
    ASSERT_TRUE(AwaitTrue([&] { return request->GetCount(0) == 1; }));
    const std::int32_t handle = request->Handle();
    m_holder.RemoveControl(request.get());
    GiveUpRequest(std::move(request));
    EXPECT_FALSE(m_holder.Running());
    EXPECT_TRUE(AwaitTrue([&] { return m_feed.Level1.PeerClosed() && m_feed.Lookup.PeerClosed(); }));
    const RequestPtr left = FindRequest(handle);
    ASSERT_TRUE(left);
    EXPECT_FALSE(left->IsAlive());
    EXPECT_EQ(left->GetCount(0), 1);
    EXPECT_FALSE(EndReply(*left)); // clean-up of this test
}

TEST_F(CFeedTest, TheStateOfBothConnectionsIsKnown)
{
    EXPECT_EQ(m_holder.FeedStatus(), sFeedStatus());
    Start();
    const sFeedStatus status = m_holder.FeedStatus();
    EXPECT_TRUE(status.Connected());
    EXPECT_EQ(status.Lookup.Port, m_feed.Lookup.Port());
    EXPECT_EQ(status.Level1.Port, m_feed.Level1.Port());
    EXPECT_EQ(status.Connection, 1);
    ASSERT_TRUE(m_feed.Lookup.AwaitConnection());
    ASSERT_TRUE(m_feed.Level1.AwaitConnection());
    m_feed.Level1.CloseConnection();
    EXPECT_TRUE(AwaitTrue([this] { return m_holder.FeedStatus().Level1.State == PortState::Lost; }));
    EXPECT_EQ(m_holder.FeedStatus().Lookup.State, PortState::Connected);
    m_feed.Lookup.CloseConnection();
    EXPECT_TRUE(AwaitTrue([this] { return m_holder.FeedStatus().Lookup.State == PortState::Lost; }));
}

TEST_F(CFeedTest, PortsThatNobodyServesAreKnownAsRefusing)
{
    m_holder.StartManagerThread(MakePortKey(RefusingPort(), RefusingPort()));
    EXPECT_TRUE(AwaitTrue([this] {
        const sFeedStatus status = m_holder.FeedStatus();
        return status.Lookup.State == PortState::Refused && status.Level1.State == PortState::Refused;
    }));
}

TEST_F(CFeedTest, AnErrorAnswerIsKeptUntilTheRequestIsSentAgain)
{
    Start();
    auto request = Request(TicksByDatapoints);
    m_holder.SendHistoryRequest(*request);
    ASSERT_TRUE(m_feed.Lookup.AwaitReceived(Identifier(*request)));
    EXPECT_FALSE(m_holder.Refusal(*request));
    m_feed.Lookup.Send(Identifier(*request) + ",E,Unknown symbol SYM,\r\n");
    ASSERT_TRUE(AwaitTrue([&] { return m_holder.Refusal(*request).has_value(); }));
    EXPECT_EQ(*m_holder.Refusal(*request), "Unknown symbol SYM");
    EXPECT_FALSE(request->IsComplete());
    m_holder.SendHistoryRequest(*request);
    EXPECT_FALSE(m_holder.Refusal(*request));
    GiveUpRequest(std::move(request));
}

TEST_F(CFeedTest, ReconnectMakesNewConnectionsWithTheirSetUp)
{
    Start();
    ASSERT_TRUE(m_feed.Lookup.AwaitReceived(ClientName)); // a port drops what an old client sent
    ASSERT_TRUE(m_feed.Level1.AwaitReceived(Level1SetupText()));
    m_holder.Reconnect();
    EXPECT_TRUE(m_holder.FeedStatus().Connected());
    EXPECT_EQ(m_holder.FeedStatus().Connection, 2);
    EXPECT_TRUE(AwaitTrue([this] { return m_feed.Lookup.Connections() == 2; }));
    EXPECT_TRUE(m_feed.Lookup.AwaitReceived(std::string(ClientName) + ClientName));
    EXPECT_TRUE(m_feed.Level1.AwaitReceived(Level1SetupText() + Level1SetupText()));
}

TEST_F(CFeedTest, ReconnectCanGoToAnotherFeedAndStaysThere)
{
    Start();
    CScriptedFeed other;
    m_holder.Reconnect(other.Key());
    EXPECT_TRUE(AwaitTrue([&other] { return other.Lookup.Connections() == 1; }));
    m_holder.Reconnect();
    EXPECT_TRUE(AwaitTrue([&other] { return other.Lookup.Connections() == 2; }));
    EXPECT_EQ(m_feed.Lookup.Connections(), 1);
    m_holder.StopManagerThread(); // before the feed goes
}

TEST_F(CFeedTest, WithoutAWorkerReconnectDoesNothing)
{
    m_holder.Reconnect(m_feed.Key());
    EXPECT_FALSE(m_holder.Running());
}

TEST_F(CFeedTest, TheLastTradeOfAWatchedSymbolIsKnownAlsoForBars)
{
    Start();
    auto request = Request(DailyByDatapoints);
    m_holder.WatchSymbol(*request);
    ASSERT_TRUE(m_feed.Level1.AwaitReceived("wSYM"));
    EXPECT_FALSE(m_holder.LastTrade("SYM"));
    const auto line = [](const char* price, const char* size, const char* contents) {
        return std::string("Q,SYM,9000,") + size + ",110,90,101,102,1,1,10:00:00.000,0,100,99,01/02/2014," +
               price + ",14,1,1,1,1," + contents + ",01\r\n";
    };
    m_feed.Level1.Send(line("105.5", "50", "Cba"));
    EXPECT_TRUE(AwaitTrue([this] { return m_holder.LastTrade("SYM") == sLastTrade{105.5, 50}; }));
    m_feed.Level1.Send(line("106.5", "70", "ba") + line("107.5", "80", "C"));
    EXPECT_TRUE(AwaitTrue([this] { return m_holder.LastTrade("SYM") == sLastTrade{107.5, 80}; }));
    EXPECT_FALSE(m_holder.LastTrade("OTHER"));
    m_holder.UnwatchSymbol(*request);
    GiveUpRequest(std::move(request));
}

TEST(ZantroPorts, ReadsTheLeadingDigitsOfTheStoredText)
{
    auto key = std::make_shared<CMapKey>();
    key->Values["LookupPort"] = std::string("9200abc");
    key->Values["Level1Port"] = std::uint32_t{6009};
    CZantroPorts ports(key);
    EXPECT_EQ(ports.LookupPort(), 9200);
    EXPECT_EQ(ports.Level1Port(), 6009);
}

TEST(ZantroPorts, AValueThatIsThereIsNeverOverwritten)
{
    auto key = std::make_shared<CMapKey>();
    const SettingValue bytes = std::vector<std::uint8_t>{'9', '3', '0', '0', 0, '7'}, empty = std::string();
    key->Values["LookupPort"] = bytes;
    key->Values["Level1Port"] = empty;
    CZantroPorts ports(key);
    EXPECT_EQ(ports.LookupPort(), 9300); // whatever its type, by its leading digits
    EXPECT_EQ(ports.Level1Port(), 0);
    EXPECT_EQ(key->Values.at("LookupPort"), bytes);
    EXPECT_EQ(key->Values.at("Level1Port"), empty);
}

TEST(ZantroPorts, MissingValuesAreWrittenBackWithTheirDefaults)
{
    auto key = std::make_shared<CMapKey>();
    CZantroPorts ports(key);
    EXPECT_EQ(ports.LookupPort(), 9100);
    EXPECT_EQ(ports.Level1Port(), 5009);
    EXPECT_EQ(key->Values.at("LookupPort"), SettingValue{std::string("9100")});
    EXPECT_EQ(key->Values.at("Level1Port"), SettingValue{std::string("5009")});
}

TEST(ZantroPorts, PortsThatCouldNotBeReadStayAsTheyAreStored)
{
    auto key = std::make_shared<sUnreliableKey>();
    key->Put("LookupPort", "9300");
    key->Reads = false;
    EXPECT_EQ(CZantroPorts(key).LookupPort(), 9100);
    EXPECT_EQ(key->Stored("LookupPort"), "9300");
}

TEST(ZantroPorts, AKeyThatDoesNotOpenGivesTheDefaults)
{
    auto key = std::make_shared<CMapKey>();
    key->Opens = false;
    EXPECT_EQ(CZantroPorts(key).LookupPort(), 9100);
    EXPECT_EQ(CZantroPorts(nullptr).Level1Port(), 5009);
}
