// The level 1 dialogue, without sockets and with a clock that the test sets.
#include "feed/protocol/Level1Session.h"

#include "TemporaryFolder.h"
#include "feed/markets/CsvLine.h"

#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>

namespace zantroq::feed {
namespace {

using namespace std::chrono_literals;

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::string_view rest = text, line;
    while (TakeLine(rest, line))
        lines.emplace_back(line);
    return lines;
}

std::vector<std::string> Fields(const std::string& line)
{
    std::vector<std::string_view> views;
    SplitAtCommas(line, views);
    return {views.begin(), views.end()};
}

constexpr std::string_view AllFields =
    "S,SELECT UPDATE FIELDS,,Symbol,Total Volume,Most Recent Trade Size,High,Low,Bid,Ask,Bid Size,Ask "
    "Size,Most Recent Trade "
    "TimeMS,Open Interest,Open,Close,Most Recent Trade Date,Most Recent Trade,Fraction Display "
    "Code,TickID,Most Recent Trade "
    "Market Center,Bid Market Center,Ask Market Center,Message Contents,Most Recent Trade Conditions";

// The fields of a summary about its day.
constexpr std::string_view DayFields = "S,SELECT UPDATE FIELDS,Symbol,Most Recent Trade Date,Most Recent "
                                       "Trade TimeMS,Most Recent Trade,Open,High,"
                                       "Low,Close,Total Volume,Open Interest";

} // namespace

class Level1Session : public testing::Test
{
protected:
    Level1Session()
    {
        m_folder.Write("DY.daily.csv",
                       "date,open,high,low,close,volume,open_interest\n"
                       "2014-01-02,10,11,9,10.5,1000,3\n2014-01-03,10.50,12.00,10.00,11.00,2000,5\n");
        m_folder.Write("MN.minute.csv",
                       "time,open,high,low,close,volume\n2014-01-03 09:31:00,20,21,19,20.5,100\n"
                       "2014-01-03 09:32:00,20.5,22,20,21.50,50\n");
        m_folder.Write("TK.tick.csv", "time,last,size,total_volume,bid,ask,tick_id,basis\n"
                                      "2014-01-03 10:00:00.000,5.00,100,100,4.99,5.01,1,C\n"
                                      "2014-01-03 10:00:01.000,5.10,200,300,5.09,5.11,2,C\n"
                                      "2014-01-03 10:00:03.000,5.05,300,600,5.04,5.06,3,E\n");
        m_catalog.AddFolder(m_folder.Path());
    }

    std::string Say(CLevel1Session& session, std::string_view line)
    {
        std::string text;
        CWorkSlice slice = CWorkSlice::Unlimited();
        session.OnLine(line);
        session.AnswerLines(m_now, 10'000'000, slice, text);
        return text;
    }

    std::vector<std::string> Trades(CLevel1Session& session, CLevel1Session::TClock::duration wait)
    {
        std::string text;
        m_now += wait;
        CWorkSlice slice = CWorkSlice::Unlimited();
        session.WriteDue(m_now, 10'000'000, slice, text);
        return Lines(text);
    }

    CTemporaryFolder m_folder;
    std::vector<std::string> m_notices;
    CMarketCatalog m_catalog{1, [this](const std::string& notice) { m_notices.push_back(notice); }};
    CLevel1Session::TClock::time_point m_now{};
};

TEST_F(Level1Session, AWatchGivesTheFundamentalLineAndThenTheSummary)
{
    CLevel1Session session(m_catalog, {});
    Say(session, AllFields);
    const auto lines = Lines(Say(session, "wDY"));
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_TRUE(lines[0].starts_with("F,DY,"));
    EXPECT_EQ(lines[1], "P,DY,2000,0,12.00,10.00,,,0,0,16:00:00.000,5,10.50,10.5,01/03/2014,11.00,12,0,1,1,1,"
                        "Cohlcv,01,");
}

TEST_F(Level1Session, ASummaryIsOfTheDayOfTheNewestRecords)
{
    m_folder.Write("NEW.daily.csv", "date,open,high,low,close,volume,open_interest\n"
                                    "2014-01-02,100,110,90,105,1000,5\n2014-01-03,105,111,95,106,2000,6\n");
    m_folder.Write("NEW.tick.csv", "time,last,size,total_volume,bid,ask,tick_id,basis\n"
                                   "2014-01-06 09:30:00.000,200,10,10,199,201,1,C\n"
                                   "2014-01-06 09:30:01.000,203,10,20,202,204,2,C\n"
                                   "2014-01-06 09:30:02.000,201,10,30,200,202,3,C\n");
    m_folder.Write("NEWM.daily.csv", "date,open,high,low,close,volume\n2014-01-03,5,6,4,5.5,100\n");
    m_folder.Write("NEWM.minute.csv", "time,open,high,low,close,volume\n2014-01-06 09:31:00,7,9,6,8,30\n"
                                      "2014-01-06 09:32:00,8,8.5,7,7.5,40\n");
    m_catalog.AddFolder(m_folder.Path());
    CLevel1Session session(m_catalog, {});
    Say(session, DayFields);
    // Date, time, last, open, high, low, close before, volume, open interest.
    EXPECT_EQ(Lines(Say(session, "wNEW"))[1], "P,NEW,01/06/2014,09:30:02.000,201.00,200,203,200,106,30,0,");
    EXPECT_EQ(Lines(Say(session, "wNEWM"))[1], "P,NEWM,01/06/2014,09:32:00.000,7.50,7,9,6,5.5,70,0,");
}

TEST_F(Level1Session, AMinuteStampedMidnightStandsInTheDayThatItCloses)
{
    m_folder.Write("MID.minute.csv", "time,open,high,low,close,volume\n2014-01-02 23:59:00,10,11,9,10,5\n"
                                     "2014-01-03 00:00:00,10,12,9.5,11,7\n");
    m_catalog.AddFolder(m_folder.Path());
    CLevel1Session session(m_catalog, {});
    Say(session, DayFields);
    EXPECT_EQ(Lines(Say(session, "wMID"))[1], "P,MID,01/02/2014,23:59:59.999,11.00,10,12,9,,12,0,");
}

TEST_F(Level1Session, RecordedTicksOfTheDayStayInItsValuesWhenTradesGoOn)
{
    m_folder.Write("ON.daily.csv", "date,open,high,low,close,volume\n2014-01-03,5,6,4,5.5,100\n");
    m_folder.Write("ON.tick.csv", "time,last,size,basis\n2014-01-06 09:30:00,7.00,30,C\n"
                                  "2014-01-06 09:31:00,99.00,40,C\n2014-01-06 09:32:00,8.00,50,C\n");
    m_catalog.AddFolder(m_folder.Path());
    CLevel1Session session(m_catalog, {.SimulateAll = true});
    Say(session, DayFields);
    EXPECT_EQ(Lines(Say(session, "wON"))[2], "P,ON,01/06/2014,09:32:00.000,8.00,7.00,99.00,7.00,5.5,120,0,");
    const auto lines = Trades(session, 30s);
    ASSERT_FALSE(lines.empty());
    for (const auto& line : lines) {
        const auto fields = Fields(line);
        EXPECT_EQ(fields[2], "01/06/2014");
        EXPECT_EQ(fields[5], "7.00");
        EXPECT_EQ(fields[6], "99.00");
        EXPECT_LE(std::atof(fields[7].c_str()), 7);
        EXPECT_EQ(fields[8], "5.5");
        EXPECT_GE(std::atoi(fields[9].c_str()), 120);
    }
}

// A second chart of a symbol with live trades is served like the first.
TEST_F(Level1Session, ASummaryInBetweenTellsOfTheWholeDay)
{
    CLevel1Session session(m_catalog, {.SimulateAll = true});
    Say(session, "S,SELECT UPDATE FIELDS,Symbol,Message Contents");
    Say(session, "wDY");
    EXPECT_FALSE(Trades(session, 30s).empty());
    EXPECT_EQ(Lines(Say(session, "wDY"))[1], "P,DY,Cbaohlcv,");
}

TEST_F(Level1Session, TheFundamentalLineCarriesCodeAndDecimalsAt39And40)
{
    CLevel1Session session(m_catalog, {});
    auto fields = Fields(Lines(Say(session, "wDY"))[0]);
    ASSERT_GT(fields.size(), 40u);
    EXPECT_EQ(fields[39], "12");
    EXPECT_EQ(fields[40], "2");
    fields = Fields(Lines(Say(session, "wSIM.BOND"))[1]);
    ASSERT_EQ(fields[0], "F");
    EXPECT_EQ(fields[39], "5"); // 32nds
    EXPECT_EQ(fields[40], "5");
}

TEST_F(Level1Session, NoDescriptionMakesALineTooLongForItsReaders)
{
    CTemporaryFolder second;
    second.Write("symbols.csv",
                 "symbol,market_id,security_type_id,description\nDY,2,1," + std::string(50'000, 'x') + "\n");
    m_catalog.AddFolder(second.Path());
    CLevel1Session session(m_catalog, {});
    const auto lines = Lines(Say(session, "wDY"));
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_LT(lines[0].size(), 4095u);
    EXPECT_EQ(Fields(lines[0])[40], "2");
}

TEST_F(Level1Session, FieldsComeInTheOrderAskedForWithTheSymbolFirst)
{
    CLevel1Session session(m_catalog, {});
    EXPECT_EQ(Say(session, "S,SELECT UPDATE FIELDS,,Symbol,Close,No Such Field,High"),
              "S,CURRENT UPDATE FIELDNAMES,Symbol,Close,High\r\n");
    EXPECT_EQ(Lines(Say(session, "wDY"))[1], "P,DY,10.5,12.00,");
    Say(session, "S,SELECT UPDATE FIELDS,Low");
    EXPECT_EQ(Lines(Say(session, "wDY"))[1], "P,DY,10.00,");
    EXPECT_EQ(Say(session, "S,SELECT UPDATE FIELDS,nothing known"), "E,!SYNTAX_ERROR!,,\r\n");
    EXPECT_EQ(Lines(Say(session, "wDY"))[1], "P,DY,10.00,");
}

TEST_F(Level1Session, TheSymbolComesBackAsItWasAskedFor)
{
    CLevel1Session session(m_catalog, {});
    EXPECT_TRUE(Say(session, "wdy").starts_with("F,dy,"));
}

TEST_F(Level1Session, UnknownSymbolsAndLinesAreAnswered)
{
    CLevel1Session session(m_catalog, {});
    EXPECT_EQ(Say(session, "wNIX"), "N,NIX,Unknown symbol\r\n");
    EXPECT_EQ(Say(session, "nonsense"), "E,!SYNTAX_ERROR!,,\r\n");
    EXPECT_EQ(Say(session, "w"), "E,!SYNTAX_ERROR!,,\r\n");
    EXPECT_EQ(Say(session, "w" + std::string(5000, 'x')), "E,!SYNTAX_ERROR!,,\r\n");
    EXPECT_EQ(Say(session, ""), "");
    // A client that drops a symbol it was never sent expects no answer, or the two would never stop.
    EXPECT_EQ(Say(session, "r!SYNTAX_ERROR!"), "");
    EXPECT_EQ(Say(session, "S,SET PROTOCOL,5.0"), "S,CURRENT PROTOCOL,5.0\r\n");
}

TEST_F(Level1Session, ARecordedSymbolIsSilentUnlessAsked)
{
    CLevel1Session session(m_catalog, {});
    Say(session, "wDY");
    CLevel1Session::TClock::time_point due;
    EXPECT_FALSE(session.NextDue(due));
    EXPECT_TRUE(Trades(session, 1h).empty());
    EXPECT_TRUE(m_notices.empty());
}

TEST_F(Level1Session, SimulatedTradesGoOnFromTheLastMinuteOfTheSameDay)
{
    CLevel1Session session(m_catalog, {.SimulateAll = true});
    Say(session, AllFields);
    EXPECT_TRUE(Say(session, "wMN").starts_with("S,SIMULATED,MN\r\nF,MN,"));
    const auto lines = Trades(session, 60s);
    ASSERT_GT(lines.size(), 30u);
    std::int64_t volume = 150;
    double high = 22, low = 19;
    std::string time = "09:32:00.000";
    bool quote = false;
    for (const auto& line : lines) {
        const auto fields = Fields(line);
        ASSERT_EQ(fields.size(), 24u); // type, 22 fields, and nothing after the last comma
        EXPECT_EQ(fields[0], "Q");
        EXPECT_EQ(fields[1], "MN");
        EXPECT_EQ(fields[14], "01/03/2014");
        EXPECT_GE(fields[10], time);
        time = fields[10];
        const std::string& contents = fields[21];
        const double price = std::atof(fields[15].c_str());
        if (contents == "ba") {
            quote = true;
            EXPECT_EQ(std::atoll(fields[2].c_str()), volume);
            continue;
        }
        volume += std::atoll(fields[3].c_str());
        EXPECT_EQ(std::atoll(fields[2].c_str()), volume);
        if (contents[0] == 'C') {
            high = std::max(high, price);
            low = std::min(low, price);
        }
        EXPECT_EQ(std::atof(fields[4].c_str()), high);
        EXPECT_EQ(std::atof(fields[5].c_str()), low);
        EXPECT_EQ(fields[12], "20");
        EXPECT_LT(std::abs(price - 21.5), 3);
    }
    EXPECT_TRUE(quote);
    EXPECT_GT(time, "09:32:50.000");
    ASSERT_EQ(m_notices.size(), 1u);
    EXPECT_NE(m_notices[0].find("simulated live trades"), std::string::npos);
}

TEST_F(Level1Session, AfterDailyBarsTradesBeginOnTheNextWeekdayMorning)
{
    CLevel1Session session(m_catalog, {.SimulateAll = true});
    Say(session, AllFields);
    Say(session, "wDY");
    std::vector<std::string> first;
    for (const auto& line : Trades(session, 30s))
        if (first.empty() && Fields(line)[21] != "ba")
            first = Fields(line);
    ASSERT_FALSE(first.empty());
    EXPECT_EQ(first[14], "01/06/2014"); // the 3rd was a Friday
    EXPECT_TRUE(first[10].starts_with("09:30:"));
    EXPECT_EQ(first[2], first[3]);   // the volume of a new day
    EXPECT_EQ(first[12], first[15]); // and open
    EXPECT_EQ(first[13], "11.00");   // the previous close
}

TEST_F(Level1Session, TheSameSeedGivesTheSameTradesAndSpeedOnlyTheirPace)
{
    CLevel1Session slow(m_catalog, {.SimulateAll = true}),
        fast(m_catalog, {.SimulateAll = true, .Speed = 10});
    Say(slow, "wMN");
    Say(fast, "wMN");
    const auto quick = Trades(fast, 10s);
    const auto plain = Trades(slow, 90s); // 100 seconds since its watch
    ASSERT_GT(plain.size(), 50u);
    EXPECT_EQ(quick, plain);
}

// Regression: a wait longer than the clock can represent became a time in the past, and all trades came at
// once.
TEST_F(Level1Session, TheSlowestSpeedWaitsForEver)
{
    for (const double speed : {1e-9, 1e-13, 1e-300, 5e-324}) {
        CLevel1Session session(m_catalog, {.SimulateAll = true, .Speed = speed});
        Say(session, "wMN");
        std::string text;
        CWorkSlice slice = CWorkSlice::Unlimited();
        session.WriteDue(m_now + 24h, 100'000, slice, text);
        EXPECT_TRUE(text.empty()) << speed;
        CLevel1Session::TClock::time_point due;
        ASSERT_TRUE(session.NextDue(due));
        EXPECT_GT(due, m_now + 24h) << speed;
    }
}

TEST_F(Level1Session, TheBlockLimitLosesNoTrade)
{
    CLevel1Session whole(m_catalog, {.SimulateAll = true}), pieces(m_catalog, {.SimulateAll = true});
    for (auto* session : {&whole, &pieces})
        for (const char* symbol : {"wMN", "wDY", "wSIM.WILD"})
            Say(*session, symbol);
    const auto expected = Trades(whole, 60s);
    std::string text;
    CWorkSlice slice = CWorkSlice::Unlimited();
    for (int i = 0; i < 10'000; ++i)
        pieces.WriteDue(m_now, 1, slice, text);
    EXPECT_EQ(Lines(text), expected);
}

TEST_F(Level1Session, ARemovedSymbolIsSilentAndBeginsAnewWhenWatchedAgain)
{
    CLevel1Session session(m_catalog, {.SimulateAll = true});
    Say(session, "wMN");
    const auto first = Trades(session, 10s);
    EXPECT_FALSE(Say(session, "wMN").empty());
    const auto on = Trades(session, 10s);
    EXPECT_NE(on, first);
    EXPECT_EQ(Say(session, "rMN"), "");
    EXPECT_TRUE(Trades(session, 10s).empty());
    Say(session, "wMN");
    EXPECT_EQ(Trades(session, 10s), first);
}

TEST_F(Level1Session, RecordedTicksAreReplayedBehindTheLastPoint)
{
    CLevel1Session session(m_catalog, {.ReplayTicks = true, .Speed = 1});
    Say(session, "S,SELECT UPDATE FIELDS,Symbol,Most Recent Trade Date,Most Recent Trade TimeMS,Most Recent "
                 "Trade,Most Recent "
                 "Trade Size,Message Contents,Total Volume");
    Say(session, "wTK");
    const auto lines = Trades(session, 1h);
    ASSERT_EQ(lines.size(), 3u);
    // The recording's last point is at 10:00:03.000; its ticks lie 1 and 2 seconds apart.
    EXPECT_EQ(lines[0], "Q,TK,01/03/2014,10:00:03.001,5.00,100,Cbav,700,");
    EXPECT_EQ(lines[1], "Q,TK,01/03/2014,10:00:04.001,5.10,200,Cbav,900,");
    EXPECT_EQ(lines[2], "Q,TK,01/03/2014,10:00:06.001,5.05,300,Ebav,1200,");
    EXPECT_EQ(m_notices.size(), 1u);
}

constexpr std::string_view TicksWithQuotes = "time,last,size,total_volume,bid,ask,tick_id,basis\n"
                                             "2014-01-06 09:30:00.000,200.00,10,10,199.50,200.50,7,C\n"
                                             "2014-01-06 09:30:01.000,201.00,30,40,200.50,201.50,8,C\n"
                                             "2014-01-06 09:30:02.000,999.00,50,90,200.75,201.25,9,X\n";

TEST_F(Level1Session, ARowThatIsNoTradeIsNotThePriceOfTheMarket)
{
    m_folder.Write("QU.tick.csv", TicksWithQuotes);
    m_catalog.AddFolder(m_folder.Path());
    for (const bool simulate : {false, true}) {
        CLevel1Session session(m_catalog, {.SimulateAll = simulate});
        Say(session, "S,SELECT UPDATE FIELDS,Symbol,Most Recent Trade TimeMS,Most Recent Trade,High,Total "
                     "Volume,TickID,Message Contents");
        EXPECT_EQ(Lines(Say(session, "wQU")).back(), "P,QU,09:30:01.000,201.00,201.00,40,8,Cbaohlv,");
        for (const auto& line : Trades(session, 60s)) {
            EXPECT_LT(std::abs(std::atof(Fields(line)[3].c_str()) - 201), 5) << line;
            EXPECT_GT(Fields(line)[2], "09:30:00.999") << line;
        }
    }
}

TEST_F(Level1Session, AReplayedRowThatIsNoTradeChangesBidAndAskAlone)
{
    m_folder.Write("QU.tick.csv", TicksWithQuotes);
    m_catalog.AddFolder(m_folder.Path());
    CLevel1Session session(m_catalog, {.ReplayTicks = true});
    Say(session, "S,SELECT UPDATE FIELDS,Symbol,Most Recent Trade TimeMS,Most Recent Trade,Most Recent Trade "
                 "Size,Total Volume,TickID,Bid,Ask,Message Contents");
    Say(session, "wQU");
    const auto lines = Trades(session, 1h);
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[1], "Q,QU,09:30:03.001,201.00,30,80,10,200.50,201.50,Cbav,");
    EXPECT_EQ(lines[2], "Q,QU,09:30:03.001,201.00,30,80,10,200.75,201.25,ba,");
}

// There is no price to start with, and nothing to continue.
TEST_F(Level1Session, ASymbolThatWasNeverTradedHasNoPrice)
{
    m_folder.Write("NO.tick.csv", "time,last,size,bid,ask,basis\n2014-01-06 09:30:00,5.00,10,4.90,5.10,X\n");
    m_catalog.AddFolder(m_folder.Path());
    CLevel1Session session(m_catalog, {.SimulateAll = true});
    Say(session, DayFields);
    EXPECT_EQ(Lines(Say(session, "wNO")).back(), "P,NO,01/06/2014,09:30:00.000,,,,,,0,0,");
    EXPECT_TRUE(Trades(session, 60s).empty());
}

TEST_F(Level1Session, QuotesOfARecordingAreRecordedOnesOrEmpty)
{
    m_folder.Write("QU.tick.csv", TicksWithQuotes);
    m_folder.Write("QM.tick.csv", TicksWithQuotes);
    m_folder.Write("QM.minute.csv",
                   "time,open,high,low,close,volume\n2014-01-06 09:40:00,200,202,199,202,9\n");
    m_catalog.AddFolder(m_folder.Path());
    const std::string fields =
        "S,SELECT UPDATE FIELDS,Symbol,Most Recent Trade,Most Recent Trade Size,Bid,Bid "
        "Size,Ask,Ask Size,Message Contents";
    for (const bool replay : {false, true}) {
        CLevel1Session session(m_catalog, {.ReplayTicks = replay});
        Say(session, fields);
        EXPECT_EQ(Lines(Say(session, "wQU")).back(), "P,QU,201.00,30,200.75,0,201.25,0,Cbaohlv,");
        // Newer minutes contain no quotes.
        EXPECT_EQ(Lines(Say(session, "wQM")).back(), "P,QM,202.00,0,,0,,0,Cohlv,");
        EXPECT_EQ(Lines(Say(session, "wDY")).back(), "P,DY,11.00,0,,0,,0,Cohlcv,");
    }
    // Simulated quotes are announced as simulated.
    CLevel1Session session(m_catalog, {.SimulateAll = true});
    Say(session, fields);
    const auto lines = Lines(Say(session, "wDY"));
    EXPECT_EQ(lines.front(), "S,SIMULATED,DY");
    EXPECT_EQ(lines.back(), "P,DY,11.00,0,10.99,100,11.01,100,Cbaohlcv,");
}

// The replay continues after the last point, which is on Friday; the day after it begins with extended
// trades.
TEST_F(Level1Session, ADayOpensWithItsFirstRegularTrade)
{
    m_folder.Write("EX.tick.csv", "time,last,size,basis\n2014-01-03 00:00:00,10.00,1,E\n"
                                  "2014-01-03 06:00:00,11.00,2,O\n2014-01-03 12:00:00,9.00,4,C\n"
                                  "2014-01-03 18:00:00,9.50,8,C\n2014-01-03 23:59:59.999,30.00,16,E\n");
    m_catalog.AddFolder(m_folder.Path());
    CLevel1Session session(m_catalog, {.ReplayTicks = true});
    Say(session, "S,SELECT UPDATE FIELDS,Symbol,Most Recent Trade Date,Most Recent "
                 "Trade,Open,High,Low,Close,Total Volume,TickID,Message Contents");
    Say(session, "wEX");
    const auto lines = Trades(session, 48h);
    ASSERT_EQ(lines.size(), 5u);
    // Friday's last regular price is the previous close; its open, high and low do not apply to the new day.
    EXPECT_EQ(lines[0], "Q,EX,01/04/2014,10.00,,,,9.50,1,1,Ebav,");
    EXPECT_EQ(lines[1], "Q,EX,01/04/2014,11.00,,,,9.50,3,2,Obav,");
    EXPECT_EQ(lines[2], "Q,EX,01/04/2014,9.00,9.00,9.00,9.00,9.50,7,3,Cbaohlv,");
    EXPECT_EQ(lines[3], "Q,EX,01/04/2014,9.50,9.00,9.50,9.00,9.50,15,4,Cbahv,");
    EXPECT_EQ(lines[4], "Q,EX,01/04/2014,30.00,9.00,9.50,9.00,9.50,31,5,Ebav,");
}

// A daily chart without extended trades ignores such a summary.
TEST_F(Level1Session, ASummaryBeforeTheFirstRegularTradeIsAnExtendedOne)
{
    m_folder.Write("EX.daily.csv", "date,open,high,low,close,volume\n2014-01-03,5,6,4,5.5,100\n");
    m_folder.Write("EX.tick.csv", "time,last,size,basis\n2014-01-06 08:00:00,7.00,30,E\n");
    m_catalog.AddFolder(m_folder.Path());
    CLevel1Session session(m_catalog, {});
    Say(session, DayFields);
    EXPECT_EQ(Lines(Say(session, "wEX")).back(), "P,EX,01/06/2014,08:00:00.000,7.00,,,,5.5,30,0,");
    Say(session, "S,SELECT UPDATE FIELDS,Symbol,Message Contents");
    EXPECT_EQ(Lines(Say(session, "wEX")).back(), "P,EX,Ebacv,");
}

TEST_F(Level1Session, AClientWatchesABoundedNumberOfSymbols)
{
    m_folder.Write("ABCDEFGHIJK.daily.csv", "date,open,high,low,close\n2014-01-02,1,1,1,1\n");
    m_catalog.AddFolder(m_folder.Path());
    // One market under 2,048 spellings, each a separate watch.
    const auto spelling = [](unsigned bits) {
        std::string symbol = "abcdefghijk";
        for (std::size_t i = 0; i < symbol.size(); ++i)
            if ((bits >> i) % 2 == 1)
                symbol[i] = static_cast<char>(symbol[i] - 'a' + 'A');
        return symbol;
    };
    CLevel1Session session(m_catalog, {});
    for (unsigned i = 0; i < 2000; ++i)
        ASSERT_TRUE(Say(session, "w" + spelling(i)).starts_with("F,"));
    const std::string next = spelling(2000);
    EXPECT_EQ(Say(session, "w" + next), "N," + next + ",Too many symbols are watched\r\n");
    // A symbol that is already watched does not count again.
    EXPECT_TRUE(Say(session, "w" + spelling(7)).starts_with("F,"));
    Say(session, "r" + spelling(7));
    EXPECT_TRUE(Say(session, "w" + next).starts_with("F,"));
}

TEST_F(Level1Session, SimulatedTradesKeepToTheSessionsOfWeekdays)
{
    for (const std::string symbol : {"MN", "SIM.CALM", "SIM.WILD"}) {
        CLevel1Session session(m_catalog, {.SimulateAll = true, .Speed = 1000});
        Say(session, "S,SELECT UPDATE FIELDS,Symbol,Most Recent Trade Date,Most Recent Trade TimeMS,Total "
                     "Volume,Open,Message Contents,Most Recent Trade");
        Say(session, "w" + symbol);
        std::vector<std::string> dates;
        std::string last, price;
        int openings = 0, moves = 0;
        for (const auto& line : Trades(session, 60s)) { // 60,000 seconds of open market
            const auto fields = Fields(line);
            if (dates.empty() || dates.back() != fields[2]) {
                dates.push_back(fields[2]);
                // The next session follows at once.
                if (dates.size() > 1) {
                    EXPECT_TRUE(fields[3].starts_with("09:30:0")) << line;
                    EXPECT_TRUE(last.starts_with("15:59:5")) << last;
                    EXPECT_LE(std::atoi(fields[4].c_str()), 500);
                }
                moves = 0;
            }
            EXPECT_GE(fields[3], "09:30:00.000") << line;
            EXPECT_LT(fields[3], "16:00:00.000") << line;
            openings += fields[6].starts_with("Cbaohl");
            moves += fields[7] != price;
            price = fields[7];
            last = fields[3];
        }
        // The recording ends on a Friday at 09:32, the simulations on a Wednesday at 13:00.
        const bool recorded = symbol == "MN";
        EXPECT_EQ(dates, recorded ? (std::vector<std::string>{"01/03/2014", "01/06/2014", "01/07/2014"})
                                  : (std::vector<std::string>{"06/12/2024", "06/13/2024", "06/14/2024",
                                                              "06/17/2024"}));
        EXPECT_EQ(openings, recorded ? 2 : 3);
        EXPECT_GT(moves, 1000);
    }
}

TEST_F(Level1Session, SimulatedTradesOfOnePriceForEverNeverMove)
{
    CLevel1Session session(m_catalog, {.SimulateAll = true, .Speed = 1000});
    Say(session, "S,SELECT UPDATE FIELDS,Symbol,Most Recent Trade");
    Say(session, "wSIM.FLAT");
    for (const auto& line : Trades(session, 60s))
        EXPECT_EQ(line, "Q,SIM.FLAT,20.00,");
}

// Regression: a block of 3,000 watches of new simulated symbols blocked the feed for all others until it was
// done.
TEST_F(Level1Session, LinesAreAnsweredInSlices)
{
    CLevel1Session whole(m_catalog, {}), pieces(m_catalog, {});
    std::string expected, text;
    for (const char* line : {"wSIM.N1", "wNIX", "wDY", "rDY", "wSIM.GAPS", "x"})
        expected += Say(whole, line);
    for (const char* line : {"wSIM.N2", "wNIX", "wDY", "rDY", "wSIM.GAPS", "x"})
        pieces.OnLine(line);
    CWorkSlice first = CWorkSlice::OfSteps(10);
    EXPECT_EQ(pieces.AnswerLines(m_now, 10'000'000, first, text), WorkProgress::More);
    EXPECT_EQ(text, "") << "the market is not made yet";
    EXPECT_EQ(pieces.PendingLines(), 6u);
    std::size_t slices = 0;
    for (WorkProgress progress = WorkProgress::More; progress == WorkProgress::More; ++slices) {
        CWorkSlice slice = CWorkSlice::OfSteps(100);
        progress = pieces.AnswerLines(m_now, 10'000'000, slice, text);
    }
    EXPECT_GT(slices, 20u);
    EXPECT_EQ(Lines(text).size(), Lines(expected).size());
    EXPECT_EQ(pieces.PendingLines(), 0u);
}

} // namespace zantroq::feed
