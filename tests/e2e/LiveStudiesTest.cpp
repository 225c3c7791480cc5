// All ten studies of the whole program with live trades, from the feed's lines to the state file, compared
// bit for bit with the slow plain definition.
#include "ScriptedChart.h"
#include "StudyStates.h"

#include <array>

namespace zantroq::test {
namespace {

struct sTrade
{
    double Price;
    int Size;
};

// Prices in quarters that rise, fall and repeat, and irregular sizes; every ninth size is 0.
sTrade TradeAt(int k)
{
    return {100 + (k * 37 % 23) * 0.25 + (k * k % 17 - 8) * 0.5, k % 9 == 0 ? 0 : 100 + k * 53 % 907};
}

struct sMinute
{
    double Open, High, Low, Close;
    int Volume;
};

sMinute MinuteAt(int k)
{
    const double open = TradeAt(k).Price, close = TradeAt(k + 1).Price;
    return {open, std::max(open, close) + (k % 5) * 0.25, std::min(open, close) - (k % 3) * 0.5, close,
            100 + k * 71 % 1009};
}

std::string TickOf(const std::string& id, int k)
{
    char text[200];
    std::snprintf(text, sizeof text, "%s,2014-01-02 09:%02d:%02d.000,%.2f,%d,%d,101.20,101.30,%d,C\r\n",
                  id.c_str(), 30 + k / 60, k % 60, TradeAt(k).Price, TradeAt(k).Size, 5000 + k, k);
    return text;
}

std::string MinuteOf(const std::string& id, int k)
{
    const sMinute bar = MinuteAt(k);
    char text[200];
    std::snprintf(text, sizeof text, "%s,2014-01-02 %02d:%02d:00,%.2f,%.2f,%.2f,%.2f,%d,%d\r\n", id.c_str(),
                  10 + k / 60, k % 60, bar.High, bar.Low, bar.Open, bar.Close, 5000 + k, bar.Volume);
    return text;
}

std::string LiveTrade(int k, const sTrade& trade, int hour, int minute, int second)
{
    char text[240];
    std::snprintf(
        text, sizeof text,
        "Q,X,9000,%d,110,90,101,102,1,1,%02d:%02d:%02d.000,0,100,99,01/02/2014,%.2f,14,%d,1,1,1,C,01\r\n",
        trade.Size, hour, minute, second, trade.Price, 100000 + k);
    return text;
}

const std::vector<int> AllTen{0, 1, 2, 3, 4, 5, 6, 7, 8, 9};

// The expected panes, updated by the plain definition.
class CTwins
{
public:
    explicit CTwins(int dataType) { m_settings.Request.DataType = dataType; }
    CBarSeries Series;

    void Draw(const json& state)
    {
        for (const int kind : AllTen)
            m_panes[static_cast<std::size_t>(kind)].Draw(kind, Series, m_settings, ViewOf(state), m_states);
    }
    void Update(const json& state, int newPoints)
    {
        for (const int kind : AllTen)
            m_panes[static_cast<std::size_t>(kind)].Update(kind, Series, m_settings, ViewOf(state), m_states,
                                                           newPoints);
    }
    void ExpectShown(const json& state) const
    {
        ASSERT_EQ(state.at("panes").size(), 11u);
        ASSERT_EQ(state.at("range").at("count").get<int>(), Series.Count());
        for (const int kind : AllTen) {
            SCOPED_TRACE("study " + std::to_string(kind));
            const json& pane = state.at("panes").at(static_cast<std::size_t>(kind) + 1);
            ASSERT_EQ(pane.at("study"), kind);
            ExpectPane(pane, m_panes[static_cast<std::size_t>(kind)]);
            EXPECT_TRUE(SameBits(pane.at("axes").at("x").at("viewLow"),
                                 m_panes[static_cast<std::size_t>(kind)].xLow));
            EXPECT_TRUE(SameBits(pane.at("axes").at("x").at("viewHigh"),
                                 m_panes[static_cast<std::size_t>(kind)].xHigh));
        }
    }

private:
    sChartSettings m_settings;
    plain::sStates m_states;
    std::array<plain::sPane, 10> m_panes;
};

class LiveStudies : public CScriptedChart
{
protected:
    // Runs steps with waits; after the n-th state file (0.json and so on), the market sends its n-th text.
    void PlayWithMarket(const std::string& steps, const std::vector<std::string>& texts)
    {
        std::string script = steps + "snapshot 0.json\n";
        for (std::size_t n = 1; n <= texts.size(); ++n)
            script += "wait 2200\nsnapshot " + std::to_string(n) + ".json\n";
        std::thread market([&] {
            for (std::size_t n = 0; n < texts.size(); ++n) {
                if (!AwaitTrue([&] { return QFile::exists(Path(QString::number(n) + ".json")); }))
                    return;
                m_scripted.Level1.Send(texts[n]);
            }
        });
        After(script);
        market.join();
    }
};

} // namespace

// The window full from the start, never full, and filled up by the trades.
class LiveTickStudies : public LiveStudies, public testing::WithParamInterface<int>
{
};

TEST_P(LiveTickStudies, TradesContinueEveryStudyByThePlainDefinition)
{
    constexpr std::array<int, 3> groups{7, 1, 12};
    const int history = GetParam();
    Serve(history, TickOf);
    std::vector<std::string> texts;
    int k = history;
    for (const int group : groups) {
        texts.emplace_back();
        for (int i = 0; i < group; ++i, ++k)
            texts.back() += LiveTrade(k, TradeAt(k), 10, k / 60, k % 60);
    }
    PlayWithMarket("resize 900 1400\n" + StackSteps(AllTen) + "type tick\nsymbol X\ndraw\nwait complete\n",
                   texts);

    CTwins twins(0);
    for (k = 0; k < history; ++k)
        twins.Series.AddTick(TradeAt(k).Price, TradeAt(k).Size);
    twins.Draw(State("0.json"));
    twins.ExpectShown(State("0.json"));
    for (std::size_t n = 0; n < groups.size(); ++n) {
        SCOPED_TRACE("after group " + std::to_string(n + 1));
        const json state = State(QString::number(n + 1) + ".json");
        for (int i = 0; i < groups[n]; ++i, ++k)
            twins.Series.AddTick(TradeAt(k).Price, TradeAt(k).Size);
        twins.Update(state, groups[n]);
        ASSERT_NO_FATAL_FAILURE(twins.ExpectShown(state));
    }
}

INSTANTIATE_TEST_SUITE_P(History, LiveTickStudies, testing::Values(200, 45, 112));

TEST_F(LiveStudies, ABarThatGrowsLeavesThemAsTheyAreAndANewOneDrawsThemAnew)
{
    constexpr int history = 200; // the last bar ends at 13:19
    Serve(history, MinuteOf);
    const sTrade within{96.25, 40}, next{131.5, 70}, later{90, 300};
    PlayWithMarket(
        "resize 900 1400\n" + StackSteps(AllTen) + "type minute\nsymbol X\ndraw\nwait complete\n",
        {LiveTrade(1, within, 13, 18, 30), LiveTrade(2, next, 13, 19, 5) + LiveTrade(3, later, 13, 20, 1)});

    CTwins twins(1);
    for (int k = 0; k < history; ++k) {
        const sMinute bar = MinuteAt(k);
        twins.Series.Add(bar.Open, bar.High, bar.Low, bar.Close, bar.Volume);
    }
    const json before = State("0.json"), grown = State("1.json"), after = State("2.json");
    twins.Draw(before);
    twins.ExpectShown(before);
    EXPECT_NE(grown.at("panes").at(0), before.at("panes").at(0)) << "the price pane follows";
    for (std::size_t pane = 1; pane <= 10; ++pane)
        EXPECT_EQ(grown.at("panes").at(pane), before.at("panes").at(pane));

    CBarSeries& series = twins.Series;
    series.HighPrices.back() = std::max(series.HighPrices.back(), within.Price);
    series.LowPrices.back() = std::min(series.LowPrices.back(), within.Price);
    series.ClosePrices.back() = within.Price;
    series.Volumes.back() += within.Size;
    for (const sTrade& trade : {next, later})
        series.AddTick(trade.Price, trade.Size);
    twins.Draw(after);
    twins.ExpectShown(after);
}

} // namespace zantroq::test
