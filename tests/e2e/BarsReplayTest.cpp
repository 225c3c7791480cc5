// Symbol box, type and interval boxes, keys over panes, and the status bar.
#include "ScriptedChart.h"

namespace zantroq::test {
namespace {

const std::string DailyX = "type daily\nsymbol X\ndraw\nwait complete\n";

class BarsReplay : public CScriptedChart
{
protected:
    int Asked(const char* text) const
    {
        return static_cast<int>(QString::fromStdString(m_scripted.Lookup.Received()).count(text));
    }
    bool DrawEnabled(const std::string& steps)
    {
        return After(steps).at("commands").at("32780").at("enabled");
    }
};

} // namespace

TEST_F(BarsReplay, AnEmptySymbolIsRefusedByTheButtonAndLeavesDrawChartOff)
{
    EXPECT_FALSE(DrawEnabled(""));
    EXPECT_TRUE(DrawEnabled("symbol x"));
    EXPECT_FALSE(DrawEnabled("symbol x\nsymbol \"\""));
    const json state = After("draw");
    EXPECT_EQ(
        state.at("boxes"),
        json::array({{{"caption", "Warning"}, {"text", "Empty Symbol is not allowed"}, {"answer", "ok"}}}));
    EXPECT_EQ(state.at("status"), "Ready...");
    EXPECT_EQ(state.at("loading"), 0);
    EXPECT_EQ(Asked("H"), 0);
}

TEST_F(BarsReplay, ACommaInTheFirstSymbolIsSaidAndTheTitleStays)
{
    const std::string title = After("").at("title");
    const json state = After("symbol A,B\ndraw");
    EXPECT_EQ(state.at("status"), "Symbols cannot contain any commas.");
    EXPECT_EQ(state.at("title"), title);
    EXPECT_EQ(Asked("H"), 0);
}

TEST_F(BarsReplay, ACommaInALaterSymbolHasDroppedTheChartAlready)
{
    Serve(40, DayLine);
    const json state = After(DailyX + "symbol A,B\ndraw\nwait 600");
    EXPECT_EQ(state.at("status"), "Symbols cannot contain any commas.");
    EXPECT_EQ(state.at("title"), "X - Chart");
    EXPECT_EQ(state.at("range").at("count"), 0);
    EXPECT_TRUE(m_scripted.Level1.AwaitReceived("wX\r\nrX\r\n"));
    EXPECT_EQ(Asked("HDX,"), 1);
}

TEST_F(BarsReplay, TypedTextIsUpperCaseAndAtMostThirtyCharacters)
{
    Serve(1, DayLine);
    const json state = After("type daily\nsymbol abcdefghijklmnopqrstuvwxyz01234\ndraw\nwait complete");
    EXPECT_EQ(state.at("symbol"), "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123");
    EXPECT_EQ(Asked("HDX,ABCDEFGHIJKLMNOPQRSTUVWXYZ0123,"), 1);
}

TEST_F(BarsReplay, TheLastTwentySymbolsAreKeptNewestFirst)
{
    std::string script;
    for (int k = 1; k <= 21; ++k)
        script += "symbol S" + std::to_string(k) + "\ndraw\n";
    After(script + "symbol S5\ndraw");
    EXPECT_EQ(Stored("SQ0"), "S5");
    EXPECT_EQ(Stored("SQ1"), "S21");
    EXPECT_EQ(Stored("SQ19"), "S2");
    EXPECT_EQ(Stored("SQ20"), "(missing)");
}

TEST_F(BarsReplay, ACharacterOverAPaneReplacesTheSymbol)
{
    Serve(1, DayLine);
    const auto symbol = [this](const std::string& keys) {
        return After("type daily\nsymbol OLD\n" + keys + "draw\nwait complete").at("symbol");
    };
    EXPECT_EQ(symbol("key 342 0x4d\n"), "M");
    EXPECT_EQ(symbol("key 341 65\nkey 341 66\n"), "B") << "each one replaces the text";
    EXPECT_EQ(symbol("key 341 0x6f\n"), "O");
    EXPECT_EQ(symbol("key 341 0x30\n"), "0");
    for (const char* const code : {"0x1f", "0x70", "0xb9", "0xbb", "13"})
        EXPECT_EQ(symbol("key 341 " + std::string(code) + "\n"), "OLD") << code;
    EXPECT_TRUE(DrawEnabled("key 341 65")) << "as after typing";
}

TEST_F(BarsReplay, ATypeChosenWithoutASymbolIsKeptAndAsksForNothing)
{
    const json state = After("type minute\ninterval 15");
    EXPECT_EQ(Stored("RequestDataType"), "1");
    EXPECT_EQ(Stored("RequestIntervalIndex"), "6") << "the seventh of the list, from 0";
    EXPECT_EQ(state.at("intervalMinutes"), 15);
    EXPECT_EQ(state.at("status"), "Ready...");
    EXPECT_EQ(Asked("H"), 0);
}

TEST_F(BarsReplay, ATypeOrIntervalChosenWithASymbolDrawsAnew)
{
    Serve(5, MinuteLine);
    const json state = After("symbol X\ntype minute\nwait complete\ninterval 60\nwait complete");
    EXPECT_EQ(state.at("caption"), "60 - Minute");
    EXPECT_EQ(state.at("statusParts").at(1), "60 - X");
    EXPECT_EQ(Asked("HIX,X,60,"), 1);
    EXPECT_EQ(Asked("HIX,X,3600,"), 1);
}

TEST_F(BarsReplay, TheCaptionNamesTypeAndMinutes)
{
    Serve(5, DayLine);
    const json state = After(DailyX);
    EXPECT_EQ(state.at("caption"), "Daily");
    EXPECT_EQ(state.at("title"), "X - Chart");
    EXPECT_EQ(state.at("statusParts").at(1), "X");
}

TEST_F(BarsReplay, TheLastTradeStandsInTheStatusBarUnlessItIsSwitchedOff)
{
    Serve(5, DayLine); // the last close is 105, its volume 1004
    const std::string last = After(DailyX + "wait 600").at("statusParts").at(2);
    EXPECT_EQ(last, "105.0000 x 1004");
    EXPECT_EQ(After("set \"Show Level 1\" 0\n" + DailyX + "wait 600").at("statusParts").at(2), "");
}

TEST_F(BarsReplay, AChoiceDuringALoadIsNotHeldBack)
{
    Serve(3, DayLine, false);
    const json state = After("type daily\nsymbol X\ndraw\nwait 500\ntype weekly\nwait 700");
    EXPECT_EQ(state.at("dataType"), 3);
    EXPECT_EQ(state.at("status"), "Retrieving Week Data (3 Weeks Received)");
    EXPECT_EQ(Asked("HWX,X,"), 1);
}

} // namespace zantroq::test
