// Each thing that the strip over the panes can say, made to happen over real sockets.
#include "ControlFixture.h"

#include "qt/conveniences/ChartConveniences.h"
#include "support/UnreliableKey.h"
#include "trends/TrendPrompts.h"

#include <QPushButton>

#include <memory>
#include <regex>
#include <string>
#include <vector>

namespace zantroq::test {
namespace {

std::string IdOf(std::string_view command)
{
    return std::string(command.substr(command.rfind(',') + 1));
}

class FeedFaults : public CControlFixture
{
protected:
    void Open()
    {
        m_control = Make();
        Open(*m_control);
    }
    void Open(CChartCtrl& control)
    {
        control.resize(700, 500);
        control.show();
    }
    void OpenOn(std::shared_ptr<ISettingsKey> feed)
    {
        sChartCtrlSetup setup;
        setup.ChartKey = m_key;
        setup.FeedKey = std::move(feed);
        setup.Box = &m_boxes;
        setup.Popups = false;
        m_control = CChartBody::MakeControl(nullptr, setup);
        Open(*m_control);
    }
    CChartConveniences& Layer() { return CChartBody::Of(*m_control).Layer(); }
    CStatusLine& Status() { return CChartBody::Of(*m_control).View().Status(); }
    std::string Said() { return Layer().Strip().Sentence().toStdString(); }
    std::string Offered()
    {
        QPushButton& button = Layer().Strip().Button();
        return button.isHidden() ? "" : button.text().toStdString();
    }
    bool AwaitSaid(const std::string& sentence)
    {
        return PumpUntil([&] { return Said() == sentence; });
    }
    bool AwaitLost()
    {
        static const std::regex lost("The feed was lost at \\d\\d:\\d\\d:\\d\\d; prices stand\\.");
        return PumpUntil([&] { return std::regex_match(Said(), lost); });
    }
    void Press() { Layer().Strip().Button().click(); }
    void DrawTicks(const char* symbol = "AAA")
    {
        m_control->SetStockSymbol(symbol);
        ASSERT_TRUE(AwaitDrawn(*m_control));
    }
    void KillFeed()
    {
        m_feed.Lookup.CloseConnection();
        m_feed.Level1.CloseConnection();
    }

    std::unique_ptr<CChartCtrl> m_control;
};

} // namespace

TEST_F(FeedFaults, AFeedThatStandsNeedsNoStrip)
{
    Open();
    DrawTicks();
    Layer().Look();
    EXPECT_EQ(Said(), "");
    EXPECT_FALSE(Status().Stale());
}

TEST_F(FeedFaults, AMissingFeedIsNamedByItsPort)
{
    const std::uint16_t port = RefusingPort();
    OpenOn(MakePortKey(port, RefusingPort()));
    EXPECT_TRUE(AwaitSaid("There is no feed on 127.0.0.1:" + std::to_string(port) + '.')) << Said();
    EXPECT_EQ(Offered(), "Retry");
}

TEST_F(FeedFaults, TheHostsRecordedMarketTakesThePlaceOfAMissingFeed)
{
    OpenOn(MakePortKey(RefusingPort(), RefusingPort()));
    Layer().OfferRecordedMarket([this] { CChartBody::Of(*m_control).UseFeed(m_feed.Key()); });
    m_control->SetStockSymbol("AAA");
    ASSERT_TRUE(PumpUntil([this] { return Offered() == "Use the recorded market"; }));
    Press();
    EXPECT_TRUE(AwaitDrawn(*m_control));
    EXPECT_TRUE(AwaitSaid(""));
    EXPECT_EQ(Points(*m_control), 30);
}

TEST_F(FeedFaults, AFeedKilledAmongLiveTradesIsSaidAndThePriceTurnsGrey)
{
    Open();
    DrawTicks();
    ASSERT_TRUE(m_feed.Level1.Send(TradeLine("AAA", 1)));
    ASSERT_TRUE(PumpUntil([this] { return Points(*m_control) == 31; }));
    KillFeed();
    ASSERT_TRUE(AwaitLost()) << Said();
    EXPECT_EQ(Offered(), "Reconnect");
    EXPECT_TRUE(Status().Stale());
    EXPECT_EQ(Points(*m_control), 31) << "prices stand";
}

TEST_F(FeedFaults, OnePortOfTheTwoIsEnoughToLoseTheFeed)
{
    Open();
    DrawTicks();
    m_feed.Level1.CloseConnection();
    EXPECT_TRUE(AwaitLost()) << Said();
}

TEST_F(FeedFaults, ReconnectWatchesAgainAndAsksAgain)
{
    Open();
    DrawTicks();
    KillFeed();
    ASSERT_TRUE(AwaitLost());
    Press();
    ASSERT_TRUE(AwaitSaid("")) << Said();
    EXPECT_FALSE(Status().Stale());
    ASSERT_TRUE(AwaitDrawn(*m_control));
    EXPECT_EQ(Points(*m_control), 30);
    EXPECT_EQ(m_feed.Lookup.Connections(), 2);
    const std::string asked = m_feed.Lookup.Received();
    EXPECT_NE(asked.find("HTX,AAA,"), asked.rfind("HTX,AAA,")) << asked;
    const std::string watched = m_feed.Level1.Received();
    EXPECT_NE(watched.find("wAAA"), watched.rfind("wAAA")) << watched;
    ASSERT_TRUE(m_feed.Level1.Send(TradeLine("AAA", 1)));
    EXPECT_TRUE(PumpUntil([this] { return Points(*m_control) == 31; })) << "the market is live again";
}

TEST_F(FeedFaults, AFeedKilledInTheMiddleOfALoadLeavesNoHalfOfIt)
{
    m_feed.Lookup.SetResponder([this](std::string_view command) {
        const std::string whole = ThirtyTicks(command);
        return m_feed.Lookup.Connections() > 1 ? whole : whole.substr(0, whole.size() / 2);
    });
    Open();
    m_control->SetStockSymbol("AAA");
    ASSERT_TRUE(PumpUntil([this] { return Window(*m_control).Series()->GetCount(FieldTime) > 5; }));
    KillFeed();
    ASSERT_TRUE(AwaitLost());
    EXPECT_EQ(Window(*m_control).Loading(), 1);
    Press();
    ASSERT_TRUE(AwaitDrawn(*m_control));
    EXPECT_EQ(Points(*m_control), 30);
    EXPECT_TRUE(AwaitSaid(""));
}

TEST_F(FeedFaults, AFeedThatComesBackIsFoundByItselfWhereThatIsOn)
{
    Open();
    DrawTicks();
    double now = 100;
    Layer().Clock = [&now] { return now; };
    m_control->setProperty("ReconnectByItself", true);
    KillFeed();
    ASSERT_TRUE(AwaitLost());
    EXPECT_EQ(m_feed.Lookup.Connections(), 1);
    now += 1;
    EXPECT_TRUE(AwaitSaid("")) << Said();
    EXPECT_EQ(m_feed.Lookup.Connections(), 2);
    EXPECT_TRUE(AwaitDrawn(*m_control));
}

TEST_F(FeedFaults, AnAttemptInVainKeepsTheSentenceAndTheTime)
{
    auto feed = std::make_unique<CScriptedFeed>();
    feed->Lookup.SetResponder(ThirtyTicks);
    OpenOn(feed->Key());
    DrawTicks();
    feed.reset();
    ASSERT_TRUE(AwaitLost());
    const std::string said = Said();
    Press();
    Layer().Look();
    EXPECT_EQ(Said(), said);
    EXPECT_TRUE(Status().Stale());
    EXPECT_TRUE(Window(*m_control).CompleteAndDrawn()) << "the chart stands";
}

TEST_F(FeedFaults, APortThatAcceptsAndNeverAnswersIsSaidToBeSilent)
{
    Open();
    double now = 100;
    Layer().Clock = [&now] { return now; };
    m_control->SetStockSymbol("SLOW");
    ASSERT_TRUE(m_feed.Lookup.AwaitReceived("HTX,SLOW,"));
    Layer().Look();
    EXPECT_EQ(Said(), "");
    now += 10;
    Layer().Look();
    EXPECT_EQ(Said(), "The feed on 127.0.0.1:" + std::to_string(m_feed.Lookup.Port()) +
                          " has not answered for 10 seconds.");
    EXPECT_EQ(Offered(), "Retry");
    Press();
    EXPECT_TRUE(PumpUntil([this] { return m_feed.Lookup.Connections() == 2; }));
}

TEST_F(FeedFaults, ASymbolThatTheFeedDoesNotKnowIsSaid)
{
    m_feed.Lookup.SetResponder([](std::string_view command) {
        return command.starts_with("H") ? IdOf(command) + ",E,Unknown symbol NOSUCH,\r\n" : std::string();
    });
    Open();
    m_control->SetStockSymbol("NOSUCH");
    EXPECT_TRUE(AwaitSaid("The feed knows no NOSUCH.")) << Said();
    EXPECT_EQ(Offered(), "");
}

TEST_F(FeedFaults, ASymbolWithDaysAloneOffersThem)
{
    m_feed.Lookup.SetResponder([](std::string_view command) -> std::string {
        if (!command.starts_with("H"))
            return {};
        const std::string id = IdOf(command);
        if (!command.starts_with("HDX,GOOG,"))
            return id + ",E,No ticks are recorded for GOOG,\r\n";
        return id + ",2014-01-02 00:00:00,12,9,10,11,1000,0,\r\n" + id +
               ",2014-01-03 00:00:00,13,10,11,12,1000,0,\r\n" + id + ",!ENDMSG!,\r\n";
    });
    Open();
    m_control->SetStockSymbol("GOOG");
    ASSERT_TRUE(AwaitSaid("GOOG has no ticks here, it has days.")) << Said();
    EXPECT_EQ(Offered(), "Show daily");
    Press();
    ASSERT_TRUE(AwaitDrawn(*m_control));
    EXPECT_EQ(Window(*m_control).Settings().Request.DataType, DailyData);
    EXPECT_EQ(Points(*m_control), 2);
    EXPECT_TRUE(AwaitSaid("")) << Said();
}

TEST_F(FeedFaults, SettingsThatTheFileDoesNotTakeAreSaid)
{
    const auto key = std::make_shared<sUnreliableKey>();
    m_key = key;
    Open();
    DrawTicks();
    key->Writes = false;
    Window(*m_control).OnCommand(CommandGrid);
    EXPECT_TRUE(AwaitSaid("The settings could not be kept: the settings file cannot be written.")) << Said();
    key->Writes = true;
    EXPECT_TRUE(AwaitSaid("")) << Said();
}

TEST_F(FeedFaults, TrendlinesOutliveANewConnection)
{
    Open();
    DrawTicks();
    CChartDlg& window = Window(*m_control);
    window.OnCommand(DrawSloping);
    window.OnChartMouseDown(FirstPaneControl, MouseLeft, 0, 200, 100);
    window.OnChartMouseMove(FirstPaneControl, MouseNone, 0, 400, 60);
    window.OnChartMouseDown(FirstPaneControl, MouseLeft, 0, 400, 60);
    window.OnChartMouseDown(FirstPaneControl, MouseRight, 0, 400, 60);
    const auto before = window.Trends().Records();
    ASSERT_EQ(before.size(), 1U);
    KillFeed();
    ASSERT_TRUE(AwaitLost());
    Press();
    ASSERT_TRUE(AwaitDrawn(*m_control));
    const auto after = window.Trends().Records();
    ASSERT_EQ(after.size(), 1U);
    EXPECT_EQ(after[0].StartIndex, before[0].StartIndex);
    EXPECT_EQ(after[0].EndValue, before[0].EndValue);
    const CPaneData& data = window.Pane(0).PaneGroups(2).PaneData();
    EXPECT_GT(data.PointCount(after[0].Series[0]), 0) << "the line is drawn again";
}

TEST_F(FeedFaults, WithTheConveniencesOffALostFeedLooksLikeAQuietMarket)
{
    m_control = Make();
    m_control->setProperty("Conveniences", false);
    Open(*m_control);
    DrawTicks();
    Layer().SetReconnectByItself(true);
    double now = 100;
    Layer().Clock = [&now] { return now; };
    KillFeed();
    ASSERT_TRUE(PumpUntil([] { return !ManagerThreadHolder().FeedStatus().Connected(); }));
    for (; now < 110; ++now)
        Layer().Look();
    EXPECT_EQ(Said(), "");
    EXPECT_FALSE(Status().Stale());
    EXPECT_EQ(m_feed.Lookup.Connections(), 1);
}

TEST_F(FeedFaults, SwitchedOffInTheMiddleTheStripGoes)
{
    Open();
    DrawTicks();
    KillFeed();
    ASSERT_TRUE(AwaitLost());
    m_control->setProperty("Conveniences", false);
    EXPECT_EQ(Said(), "");
    EXPECT_FALSE(Status().Stale());
}

TEST_F(FeedFaults, AnOutsideFeedThatSimulatesIsSaidToDoSo)
{
    m_feed.Level1.SetResponder([](std::string_view line) {
        return line.starts_with("wAAA") ? std::string("S,SIMULATED,AAA\r\n") : std::string();
    });
    Open();
    DrawTicks();
    EXPECT_TRUE(AwaitSaid("AAA: simulated live trades, not a genuine market.")) << Said();
    DrawTicks("BBB");
    EXPECT_TRUE(AwaitSaid("")) << Said();
}

TEST_F(FeedFaults, AHostThatTellsOfSimulationItselfGetsTheSymbolOnce)
{
    m_feed.Level1.SetResponder([](std::string_view line) {
        return line.starts_with("wAAA") ? std::string("S,SIMULATED,AAA\r\n") : std::string();
    });
    Open();
    std::vector<std::string> told;
    Layer().OnSimulated = [&told](const QString& symbol) { told.push_back(symbol.toStdString()); };
    DrawTicks();
    ASSERT_TRUE(PumpUntil([&told] { return !told.empty(); }));
    Layer().Look();
    EXPECT_EQ(told, std::vector<std::string>{"AAA"});
    EXPECT_EQ(Said(), "");
}

TEST_F(FeedFaults, AHostsSymbolCountsWithoutTheBlanksAroundIt)
{
    Open();
    DrawTicks(" AAA ");
    EXPECT_EQ(Window(*m_control).CurrentSymbol(), "AAA");
    EXPECT_NE(m_feed.Lookup.Received().find("HTX,AAA,"), std::string::npos);
}

TEST_F(FeedFaults, ABoxesSymbolCountsWithoutTheBlanksAroundIt)
{
    Open();
    CSymbolBox& box = CChartBody::Of(*m_control).View().Bars().Symbol();
    box.TypeText(" aaa ");
    box.OnEnter();
    ASSERT_TRUE(AwaitDrawn(*m_control));
    EXPECT_EQ(Window(*m_control).CurrentSymbol(), "AAA");
    EXPECT_EQ(box.Text(), "AAA");
}

} // namespace zantroq::test
