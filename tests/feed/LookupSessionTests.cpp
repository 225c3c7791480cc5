// The dialogue of the lookup port, without sockets. Expected replies are computed by hand from the small
// recordings below.
#include "feed/protocol/LookupSession.h"

#include "TemporaryFolder.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/stat.h>

namespace zantroq::feed {
namespace {

constexpr std::string_view Ticks = "time,last,size,total_volume,bid,ask,tick_id,basis\n"
                                   "2014-01-02 09:30:00.000,10.00,100,100,9.99,10.01,1,C\n"
                                   "2014-01-02 09:30:59.999,10.50,200,300,10.49,10.51,2,C\n"
                                   "2014-01-02 09:31:00.000,10.20,50,350,10.19,10.21,3,C\n"
                                   "2014-01-03 09:30:05.500,11.00,10,10,10.99,11.01,1,C\n"
                                   "2014-01-06 15:59:59.900,12.00,20,20,11.99,12.01,1,C\n"
                                   "2014-01-06 16:00:00.700,12.50,30,50,12.49,12.51,2,E\n";
constexpr std::string_view Minutes = "time,open,high,low,close,volume\n"
                                     "2014-01-02 09:31:00,1.0,1.5,0.9,1.2,10\n"
                                     "2014-01-02 09:32:00,1.2,1.3,1.1,1.3,20\n"
                                     "2014-01-02 09:35:00,1.3,1.4,1.2,1.25,5\n"
                                     "2014-01-02 09:36:00,1.25,1.9,1.2,1.8,7\n"
                                     "2014-01-03 00:00:00,1.8,1.8,1.7,1.7,3\n" // the last minute of 2 January
                                     "2014-01-03 09:31:00,2.0,2.5,1.9,2.2,40\n";
constexpr std::string_view Days = "date,open,high,low,close,volume,open_interest\n"
                                  "2013-12-30,1,5,1,2,10,7\n"   // Monday
                                  "2013-12-31,2,6,2,3,20,8\n"   // Tuesday
                                  "2014-01-02,3,4,0.5,4,30,9\n" // Thursday of the same week
                                  "2014-01-06,4,8,4,7,40,1\n";  // Monday

void WriteAll(CLookupSession& session, CTextBlock& block, std::size_t limit)
{
    CWorkSlice slice = CWorkSlice::Unlimited();
    session.Write(block, limit, slice);
}

} // namespace

class LookupSession : public testing::Test
{
protected:
    LookupSession()
    {
        m_folder.Write("TK.tick.csv", Ticks);
        m_folder.Write("MN.minute.csv", Minutes);
        m_folder.Write("DY.daily.csv", Days);
        m_folder.Write(
            "symbols.csv",
            "symbol,market_id,security_type_id,description\nDY,2,1,\"Daily, Inc.\"\nTK,3,5,Tick Tock\n");
        m_catalog.AddFolder(m_folder.Path());
    }

    std::string Ask(std::string_view line)
    {
        CLookupSession session(m_catalog);
        session.OnLine(line);
        CTextBlock block;
        WriteAll(session, block, 1'000'000);
        EXPECT_EQ(session.PendingReplies(), 0u);
        return std::string(block.Text());
    }

    CTemporaryFolder m_folder;
    std::vector<std::string> m_notices;
    CMarketCatalog m_catalog{1, [this](const std::string& notice) { m_notices.push_back(notice); }};
};

TEST_F(LookupSession, ServesTheNewestTicksOldestFirst)
{
    EXPECT_EQ(Ask("HTX,TK,3,1,0123456"), "0123456,2014-01-03 09:30:05.500,11.00,10,10,10.99,11.01,1,C\r\n"
                                         "0123456,2014-01-06 15:59:59.900,12.00,20,20,11.99,12.01,1,C\r\n"
                                         "0123456,2014-01-06 16:00:00.700,12.50,30,50,12.49,12.51,2,E\r\n"
                                         "0123456,!ENDMSG!,\r\n");
}

TEST_F(LookupSession, DirectionZeroIsNewestFirst)
{
    EXPECT_EQ(Ask("HTX,TK,2,0,0-5"), "0-5,2014-01-06 16:00:00.700,12.50,30,50,12.49,12.51,2,E\r\n"
                                     "0-5,2014-01-06 15:59:59.900,12.00,20,20,11.99,12.01,1,C\r\n"
                                     "0-5,!ENDMSG!,\r\n");
}

TEST_F(LookupSession, ACountThatCutsADayLeavesOutItsOldestPoints)
{
    const std::string reply = Ask("HTX,TK,4,0,0");
    EXPECT_NE(reply.find("2014-01-02 09:31:00.000"), std::string::npos);
    EXPECT_EQ(reply.find("2014-01-02 09:30"), std::string::npos);
}

TEST_F(LookupSession, ACountOfZeroAsksForAll)
{
    const std::string reply = Ask("HTX,TK,0,1,0");
    EXPECT_EQ(std::count(reply.begin(), reply.end(), '\n'), 7);
    EXPECT_EQ(Ask("HTX,TK,1000000,1,0"), reply);
}

TEST_F(LookupSession, OneDayIsTheNewestDayAlone)
{
    EXPECT_EQ(Ask("HTD,TK,1,,,,1,1"), "1,2014-01-06 15:59:59.900,12.00,20,20,11.99,12.01,1,C\r\n"
                                      "1,2014-01-06 16:00:00.700,12.50,30,50,12.49,12.51,2,E\r\n"
                                      "1,!ENDMSG!,\r\n");
}

TEST_F(LookupSession, DaysAreCalendarDays)
{
    // From Monday the 6th, three days back are the 4th to the 6th, four reach the 3rd.
    EXPECT_EQ(Ask("HTD,TK,3,,,,1,1"), Ask("HTD,TK,1,,,,1,1"));
    EXPECT_NE(Ask("HTD,TK,4,,,,1,1").find("2014-01-03"), std::string::npos);
    EXPECT_EQ(Ask("HTD,TK,4,,,,1,1").find("2014-01-02"), std::string::npos);
}

TEST_F(LookupSession, TheTimeOfDayFilterIncludesBothEnds)
{
    // 16:00:00.700 is still within the second 16:00:00.
    EXPECT_NE(Ask("HTD,TK,1,,093000,160000,1,1").find("16:00:00.700"), std::string::npos);
    EXPECT_EQ(Ask("HTD,TK,1,,093000,155959,1,1"),
              "1,2014-01-06 15:59:59.900,12.00,20,20,11.99,12.01,1,C\r\n1,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("HTD,TK,1,,160000,,1,1"),
              "1,2014-01-06 16:00:00.700,12.50,30,50,12.49,12.51,2,E\r\n1,!ENDMSG!,\r\n");
}

TEST_F(LookupSession, ARangeIncludesBothEnds)
{
    EXPECT_EQ(Ask("HTT,TK,20140102 093100,20140103 093005,,,,1,2"),
              "2,2014-01-02 09:31:00.000,10.20,50,350,10.19,10.21,3,C\r\n"
              "2,2014-01-03 09:30:05.500,11.00,10,10,10.99,11.01,1,C\r\n"
              "2,!ENDMSG!,\r\n");
}

// Regression: the end of a whole second was a second too early on days before 1970.
TEST_F(LookupSession, ARangeBefore1970IncludesBothEnds)
{
    CTemporaryFolder second;
    second.Write("OLD.tick.csv", "time,last\n1960-03-01 09:29:59.999,1\n1960-03-01 09:30:00,2\n"
                                 "1960-03-01 16:00:00,3\n1960-03-01 16:00:00.999,4\n1960-03-01 16:00:01,5\n");
    m_catalog.AddFolder(second.Path());
    EXPECT_EQ(Ask("HTT,OLD,19600301 093000,19600301 160000,,,,1,2"),
              "2,1960-03-01 09:30:00.000,2,0,0,2,2,0,C\r\n2,1960-03-01 16:00:00.000,3,0,0,3,3,0,C\r\n"
              "2,1960-03-01 16:00:00.999,4,0,0,4,4,0,C\r\n2,!ENDMSG!,\r\n");
    // Any number of days: the calendar has fewer days than a 64-bit number.
    EXPECT_EQ(Ask("HTD,OLD,9223372036854775807,,,,1,1"), Ask("HTX,OLD,0,1,1"));
}

TEST_F(LookupSession, ARangeWithoutEndsIsOpen)
{
    EXPECT_EQ(Ask("HTT,TK, , ,,,,1,0"), Ask("HTX,TK,0,1,0"));
    EXPECT_EQ(Ask("HTT,TK,20140106 , ,,,,1,0"), Ask("HTX,TK,2,1,0"));
    // A date without a time as the end takes the whole of its day.
    EXPECT_NE(Ask("HTT,TK, ,20140102 ,,,,1,0").find("09:31:00.000"), std::string::npos);
    EXPECT_EQ(Ask("HTT,TK, ,20140102 ,,,,1,0").find("2014-01-03"), std::string::npos);
}

TEST_F(LookupSession, AnEmptySelectionIsAnsweredByTheEndAlone)
{
    EXPECT_EQ(Ask("HTT,TK,20150101 000000,20150102 000000,,,,1,2"), "2,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("HTT,TK,20140106 000000,20140102 000000,,,,1,2"), "2,!ENDMSG!,\r\n");
}

TEST_F(LookupSession, IntervalsAreBuiltFromTicksAndStampedWithTheirEnds)
{
    // The trade at 09:31:00 opens the bar that ends at 09:32:00.
    EXPECT_EQ(Ask("HIT,TK,60,20140102 000000,20140102 235959,,,,1,5"),
              "5,2014-01-02 09:31:00,10.50,10.00,10.00,10.50,300,300\r\n"
              "5,2014-01-02 09:32:00,10.20,10.20,10.20,10.20,350,50\r\n"
              "5,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("HIX,TK,1,1,1,3"),
              "3,2014-01-06 16:00:01,12.50,12.50,12.50,12.50,50,30\r\n3,!ENDMSG!,\r\n");
}

TEST_F(LookupSession, IntervalsAreBuiltFromMinutes)
{
    // 09:31 to 09:35 join; 09:36 opens the next five; the minute stamped midnight closes 2 January.
    EXPECT_EQ(Ask("HIX,MN,300,0,1,3"), "3,2014-01-02 09:35:00,1.5,0.9,1.0,1.25,35,35\r\n"
                                       "3,2014-01-02 09:40:00,1.9,1.2,1.25,1.8,42,7\r\n"
                                       "3,2014-01-03 00:00:00,1.8,1.7,1.8,1.7,45,3\r\n"
                                       "3,2014-01-03 09:35:00,2.5,1.9,2.0,2.2,40,40\r\n"
                                       "3,!ENDMSG!,\r\n");
}

TEST_F(LookupSession, RecordedMinutesAreServedAsTheyAre)
{
    EXPECT_EQ(Ask("HIX,MN,60,2,1,3"), "3,2014-01-03 00:00:00,1.8,1.7,1.8,1.7,45,3\r\n"
                                      "3,2014-01-03 09:31:00,2.5,1.9,2.0,2.2,40,40\r\n"
                                      "3,!ENDMSG!,\r\n");
}

TEST_F(LookupSession, IntervalsByDaysWithAFilter)
{
    EXPECT_EQ(Ask("HID,MN,60,2,,093200,093500,1,4"), "4,2014-01-02 09:32:00,1.3,1.1,1.2,1.3,30,20\r\n"
                                                     "4,2014-01-02 09:35:00,1.4,1.2,1.3,1.25,35,5\r\n"
                                                     "4,!ENDMSG!,\r\n");
    // The minute stamped midnight belongs to 2 January and not to the newest day.
    EXPECT_EQ(Ask("HID,MN,60,1,,,,1,4"), "4,2014-01-03 09:31:00,2.5,1.9,2.0,2.2,40,40\r\n4,!ENDMSG!,\r\n");
}

TEST_F(LookupSession, ServesDaysByCountAndByRange)
{
    EXPECT_EQ(Ask("HDX,DY,2,1,6"),
              "6,2014-01-02,4,0.5,3,4,30,9\r\n6,2014-01-06,8,4,4,7,40,1\r\n6,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("HDT,DY,20131231,20140102,,0,7"),
              "7,2014-01-02,4,0.5,3,4,30,9\r\n7,2013-12-31,6,2,2,3,20,8\r\n7,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("HDT,DY,,20131230,,1,7"), "7,2013-12-30,5,1,1,2,10,7\r\n7,!ENDMSG!,\r\n");
}

TEST_F(LookupSession, DaysAreBuiltFromMinutesOrTicks)
{
    EXPECT_EQ(Ask("HDX,MN,0,1,6"),
              "6,2014-01-02,1.9,0.9,1.0,1.7,45,0\r\n6,2014-01-03,2.5,1.9,2.0,2.2,40,0\r\n6,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("HDX,TK,0,1,6"),
              "6,2014-01-02,10.50,10.00,10.00,10.20,350,0\r\n6,2014-01-03,11.00,11.00,11.00,11.00,10,0\r\n"
              "6,2014-01-06,12.50,12.00,12.00,12.50,50,0\r\n6,!ENDMSG!,\r\n");
}

TEST_F(LookupSession, WeeksAndMonthsAreStampedWithTheirLastTradingDay)
{
    EXPECT_EQ(Ask("HWX,DY,0,1,8"),
              "8,2014-01-02,6,0.5,1,4,60,9\r\n8,2014-01-06,8,4,4,7,40,1\r\n8,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("HMX,DY,0,1,9"),
              "9,2013-12-31,6,1,1,3,30,8\r\n9,2014-01-06,8,0.5,3,7,70,1\r\n9,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("HMX,DY,1,1,9"), "9,2014-01-06,8,0.5,3,7,70,1\r\n9,!ENDMSG!,\r\n");
}

TEST_F(LookupSession, WhatCannotBeServedIsAnErrorUnderItsIdentifier)
{
    EXPECT_EQ(Ask("HTX,DY,10,1,01"), "01,E,No ticks are recorded for DY,\r\n");
    EXPECT_EQ(Ask("HIX,DY,60,10,1,31"), "31,E,No ticks or minutes are recorded for DY,\r\n");
    EXPECT_EQ(Ask("HIX,MN,90,10,1,31"),
              "31,E,No ticks are recorded for MN and minutes build whole minutes only,\r\n");
    EXPECT_EQ(Ask("HDX,NIX,10,1,61"), "61,E,Unknown symbol NIX,\r\n");
    for (const char* seconds : {"0", "86401", "9223372036854775807"})
        EXPECT_EQ(Ask(std::string("HIX,TK,") + seconds + ",5,1,31"),
                  std::string("31,E,An interval of ") + seconds +
                      " seconds cannot be served; use 1 to 86400,\r\n");
    EXPECT_TRUE(Ask("HIX,TK,86400,5,1,31").ends_with("31,!ENDMSG!,\r\n"));
}

TEST_F(LookupSession, MalformedAndUnknownLinesAreSyntaxErrors)
{
    for (const char* line :
         {"HTX", "HTX,TK", "HTX,TK,5,1", "HTX,TK,5,1,", "HTX,TK,x,1,0", "HTX,TK,-1,1,0", "HTX,TK,5,2,0",
          "HTX,,5,1,0", "HIX,TK,-1,5,1,0", "HIX,TK,,5,1,0", "HIX,TK,1m,5,1,0", "HTT,TK,2014,,,,,1,0",
          "HTD,TK,1,,9,,1,0", "HTX,TK,5,1,0,more", "htx,TK,5,1,0", "nonsense",
          "HTX,TK,99999999999999999999,1,0", "FIND,1,s", "\x01\xff"})
        EXPECT_EQ(Ask(line), "E,!SYNTAX_ERROR!,,\r\n") << line;
    EXPECT_EQ(Ask(""), "");
}

TEST_F(LookupSession, ExtraCommasBehindTheIdentifierAreAllowed)
{
    EXPECT_EQ(Ask("HDX,DY,1,1,6,,,"), Ask("HDX,DY,1,1,6"));
}

TEST_F(LookupSession, LowerCaseFindsTheSymbol)
{
    EXPECT_EQ(Ask("HDX,dy,1,1,6"), Ask("HDX,DY,1,1,6"));
}

TEST_F(LookupSession, TheThreeProtocolLinesAreAnswered)
{
    EXPECT_EQ(Ask("S,SET PROTOCOL,5.0"), "S,CURRENT PROTOCOL,5.0\r\n");
    EXPECT_TRUE(Ask("S,SET CLIENT NAME,Zantroq Chart").starts_with("S,"));
    EXPECT_TRUE(Ask("S,SELECT UPDATE FIELDS,,Symbol").starts_with("S,"));
}

TEST_F(LookupSession, ReferenceTablesAreRowsAndAnEndMark)
{
    for (const char* command : {"SLM", "SST"}) {
        const std::string reply = Ask(command);
        EXPECT_TRUE(reply.ends_with("\r\n!ENDMSG!,\r\n"));
        EXPECT_NE(reply.find("\r\n9,SIM,"), std::string::npos);
        // Readers lose the last row, so it names nothing.
        EXPECT_NE(reply.find("\r\n0,NONE,"), std::string::npos);
    }
    EXPECT_TRUE(Ask("SLM").starts_with("1,LOCAL,Recordings of this machine,1,Recorded\r\n"));
    EXPECT_TRUE(Ask("SST").starts_with("1,EQUITY,Equity\r\n"));
}

TEST_F(LookupSession, FindLooksThroughSymbolsAndDescriptions)
{
    EXPECT_EQ(Ask("FIND,7,s,d,,"), "7,DY,2,1,Daily  Inc.\r\n7,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("FIND,7,d,TOCK,,"), "7,TK,3,5,Tick Tock\r\n7,!ENDMSG!,\r\n");
    // Not listed in symbols.csv: the symbol is the description.
    EXPECT_EQ(Ask("FIND,7,s,MN,,"), "7,MN,1,1,MN\r\n7,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("FIND,7,d,no such thing,,"), "7,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("FIND,7,d,daily  inc,,"), Ask("FIND,7,s,DY,,"));
}

// The kind and the ids are the last two fields, however many commas the text contains.
TEST_F(LookupSession, FindTakesTextsWithCommas)
{
    EXPECT_EQ(Ask("FIND,7,d,Daily, Inc,,"), Ask("FIND,7,s,DY,,"));
    EXPECT_EQ(Ask("FIND,7,d,y,b,,"), "7,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("FIND,7,d,Daily, Inc,e,2 3"), Ask("FIND,7,s,DY,,"));
    EXPECT_EQ(Ask("FIND,7,d,Daily, Inc,e,3"), "7,!ENDMSG!,\r\n");
}

TEST_F(LookupSession, FindLooksThroughNamedSymbolsAndThoseWithRecords)
{
    CTemporaryFolder first, second;
    first.Write("symbols.csv", "symbol,market_id,security_type_id,description\nXA,2,1,Later\nXB,2,1,\n"
                               "SIM.XC,9,9,Invented\n");
    first.Write("XD.daily.csv", "date,open,high,low,close\n");
    first.Write("XE.tick.csv", "time,last\nnever,1\n");
    first.Write("XF.minute.csv", "");
    m_catalog.AddFolder(first.Path());
    EXPECT_EQ(Ask("FIND,7,s,X,,"), "7,XA,2,1,Later\r\n7,XB,2,1,XB\r\n7,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("FIND,7,s,SIM.X,,"), "7,SIM.XC,9,9,Invented\r\n7,!ENDMSG!,\r\n");
    const std::string folder = first.Path().string() + "/";
    EXPECT_EQ(
        m_notices,
        (std::vector<std::string>{
            folder + "XD.daily.csv: no rows; the file is not used",
            folder +
                "XE.tick.csv:2: time is not a date of the form YYYY-MM-DD or a time behind one: \"never\"",
            folder + "XE.tick.csv: 1 row skipped",
            folder + "XE.tick.csv: no usable rows; the file is not used",
            folder + "XF.minute.csv: the file is empty and not used"}));
    for (const char* symbol : {"XA", "XD"})
        second.Write(symbol + std::string(".daily.csv"), "date,open,high,low,close\n2020-01-01,1,1,1,1\n");
    m_catalog.AddFolder(second.Path());
    EXPECT_EQ(Ask("FIND,7,s,X,,"), "7,XA,2,1,Later\r\n7,XB,2,1,XB\r\n7,XD,1,1,XD\r\n7,!ENDMSG!,\r\n");
}

TEST_F(LookupSession, AFileWithoutUsableRowsReplacesNothing)
{
    CTemporaryFolder second;
    second.Write("DY.daily.csv", "date,open,high,low,close\n2020-01-01,1,x,1,1\n");
    second.Write("TK.tick.csv", "no header\n");
    m_catalog.AddFolder(second.Path());
    EXPECT_TRUE(Ask("HDX,DY,1,1,6").starts_with("6,2014-01-06,"));
    EXPECT_TRUE(Ask("HTX,TK,1,1,0").starts_with("0,2014-01-06 "));
}

TEST_F(LookupSession, FindKeepsToMarketsOrSecurityTypes)
{
    EXPECT_EQ(Ask("FIND,7,d,i,e,3 4"), "7,TK,3,5,Tick Tock\r\n7,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("FIND,7,d,i,t,1"), "7,DY,2,1,Daily  Inc.\r\n7,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("FIND,7,d,i,t,200"), "7,!ENDMSG!,\r\n");
}

TEST_F(LookupSession, AWrongFindIsAnErrorUnderItsIdentifier)
{
    EXPECT_TRUE(Ask("FIND,7,x,a,,").starts_with("7,E,"));
    EXPECT_TRUE(Ask("FIND,7,s,a,q,1").starts_with("7,E,"));
    EXPECT_TRUE(Ask("FIND,7,s,,,").starts_with("7,E,"));
    EXPECT_TRUE(Ask("FIND,7,s,a,e,2;3").starts_with("7,E,"));
    EXPECT_EQ(Ask("FIND,,s,a,,"), "E,!SYNTAX_ERROR!,,\r\n");
}

TEST_F(LookupSession, FindKnowsTheCaseOfAllLetters)
{
    CTemporaryFolder second;
    second.Write("symbols.csv", "symbol,market_id,security_type_id,description\n"
                                "ENERGO,2,1,Энергосбыт\nBRAU,2,1,Straßenbrauerei\n");
    m_catalog.AddFolder(second.Path());
    EXPECT_EQ(Ask("FIND,7,d,ЭНЕРГО,,"), "7,ENERGO,2,1,Энергосбыт\r\n7,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("FIND,7,d,STRASSEN,,"), "7,BRAU,2,1,Straßenbrauerei\r\n7,!ENDMSG!,\r\n");
}

TEST_F(LookupSession, FindHasThousandsOfSimulatedSymbols)
{
    const std::string reply = Ask("FIND,7,d,(SIMULATED),,");
    EXPECT_GT(std::count(reply.begin(), reply.end(), '\n'), 5'000);
    EXPECT_NE(reply.find("\r\n7,SIM.ALDC,"), std::string::npos);
    ASSERT_TRUE(m_catalog.Find("SIM.ALDC"));
    EXPECT_TRUE(m_catalog.Find("SIM.ALDC")->IsSimulated());
}

TEST_F(LookupSession, TheRowOfALaterFolderHolds)
{
    CTemporaryFolder second;
    second.Write("symbols.csv", "symbol,market_id,security_type_id,description\nTK,1,1,First\nTK,1,1,Tock\n");
    second.Write("DY.daily.csv", "date,open,high,low,close\n2020-01-01,1,1,1,1\n");
    m_catalog.AddFolder(second.Path());
    EXPECT_EQ(Ask("FIND,7,s,TK,,"), "7,TK,1,1,Tock\r\n7,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("FIND,7,s,DY,,"), "7,DY,2,1,Daily  Inc.\r\n7,!ENDMSG!,\r\n")
        << "a recording renames nothing";
}

// Whatever the size of the pieces and the number of calls.
TEST_F(LookupSession, FindIsTheSameInPieces)
{
    const std::string whole = Ask("FIND,7,d,brewing,e,10 11");
    ASSERT_GT(whole.size(), 1'000u);
    CLookupSession session(m_catalog);
    session.OnLine("FIND,7,d,brewing,e,10 11");
    std::string joined;
    while (session.PendingReplies() > 0) {
        CTextBlock piece;
        WriteAll(session, piece, 1);
        joined += piece.Text();
    }
    EXPECT_EQ(joined, whole);
}

// A search without results also returns when the slice ends.
TEST_F(LookupSession, ASliceAlsoEndsASearchThatFindsNothing)
{
    CLookupSession session(m_catalog);
    session.OnLine("FIND,7,d,no such thing,,");
    CTextBlock block;
    std::size_t slices = 0;
    for (WorkProgress progress = WorkProgress::More; progress == WorkProgress::More; ++slices) {
        ASSERT_EQ(block.Size(), 0u);
        CWorkSlice slice = CWorkSlice::OfSteps(1);
        progress = session.Write(block, 1'000'000, slice);
    }
    EXPECT_EQ(block.Text(), "7,!ENDMSG!,\r\n");
    EXPECT_GT(slices, 5u) << "5,208 symbols in steps of 1,024";
}

TEST_F(LookupSession, RepliesKeepTheOrderOfTheirCommandsWhateverTheBlockSize)
{
    CLookupSession whole(m_catalog), pieces(m_catalog);
    for (CLookupSession* session : {&whole, &pieces})
        for (const char* line : {"HTX,TK,0,1,01", "bad", "HWX,DY,0,0,82", "HTD,TK,0,,,,0,13"})
            session->OnLine(line);
    CTextBlock block;
    WriteAll(whole, block, 1'000'000);
    std::string joined;
    while (pieces.PendingReplies() > 0) {
        CTextBlock piece;
        WriteAll(pieces, piece, 1);
        joined += piece.Text();
    }
    EXPECT_EQ(joined, block.Text());
}

// Regression: a reply without lines never returned when the slice ended, so one client's request blocked all
// others.
TEST_F(LookupSession, ASliceAlsoEndsAReplyThatYieldsNoLine)
{
    CLookupSession session(m_catalog);
    session.OnLine("HID,SIM.GAPS,7,9999999,,030000,030001,1,1");
    CTextBlock block;
    std::size_t slices = 0;
    for (WorkProgress progress = WorkProgress::More; progress == WorkProgress::More; ++slices) {
        ASSERT_EQ(block.Size(), 0u);
        CWorkSlice slice = CWorkSlice::OfSteps(100);
        progress = session.Write(block, 1'000'000, slice);
    }
    EXPECT_EQ(block.Text(), "1,!ENDMSG!,\r\n");
    EXPECT_GT(slices, 50u) << "making the market, building and passing over the bars are all cut";
}

TEST_F(LookupSession, RepliesAreTheSameHoweverOftenTheyAreCut)
{
    for (const char* line :
         {"HTX,TK,4,1,01", "HTX,TK,5,0,01", "HIX,TK,60,3,1,31", "HIX,MN,300,3,0,31", "HID,TK,1,2,,,,1,4",
          "HIT,TK,60,20140102 093100,20140106 155900,,,,1,5", "HDX,DY,3,1,6", "HWX,DY,0,1,8", "HMX,DY,1,1,9",
          "HWX,SIM.GAPS,300,1,8", "HDX,NIX,1,1,6", "HTX,DY,1,1,0", "FIND,7,d,brewing,e,10 11"}) {
        CLookupSession session(m_catalog);
        session.OnLine(line);
        std::string text;
        while (session.PendingReplies() > 0) {
            CTextBlock piece;
            CWorkSlice slice = CWorkSlice::OfSteps(1);
            session.Write(piece, 1'000'000, slice);
            text += piece.Text();
        }
        EXPECT_EQ(text, Ask(line)) << line;
    }
}

TEST_F(LookupSession, DroppedRepliesAreForgotten)
{
    CLookupSession session(m_catalog);
    session.OnLine("HTX,TK,0,1,01");
    session.OnLine("HTX,TK,0,1,02");
    session.DropReplies();
    CTextBlock block;
    WriteAll(session, block, 1'000'000);
    EXPECT_EQ(block.Size(), 0u);
    EXPECT_EQ(session.PendingReplies(), 0u);
}

TEST_F(LookupSession, SimulatedHistoryIsToldOnce)
{
    Ask("HDX,SIM.CALM,5,1,6");
    Ask("HTX,sim.calm,5,1,0");
    Ask("HDX,DY,5,1,6");
    ASSERT_EQ(m_notices.size(), 1u);
    EXPECT_NE(m_notices[0].find("SIM.CALM: simulated"), std::string::npos);
}

// Every name that begins with "SIM." is a market, so a client can request any number of them.
TEST_F(LookupSession, UnlistedSimulatedMarketsAreKeptInABoundedNumber)
{
    const std::string before = Ask("HTX,SIM.Q0,20,1,0");
    const std::weak_ptr<const IMarketSource> dropped = m_catalog.Share("SIM.Q0");
    const std::weak_ptr<const IMarketSource> used = m_catalog.Share("SIM.Q1");
    const auto inUse = m_catalog.Share("SIM.Q2");
    const std::weak_ptr<const IMarketSource> listed = m_catalog.Share("SIM.WILD"),
                                             recorded = m_catalog.Share("DY");
    for (std::size_t i = 0; i < 2 * CMarketCatalog::MaxUnnamed; ++i) {
        ASSERT_TRUE(m_catalog.Find("SIM.N" + std::to_string(i)));
        ASSERT_TRUE(m_catalog.Find("sim.q1"));
    }
    EXPECT_TRUE(dropped.expired());
    EXPECT_FALSE(used.expired());
    EXPECT_EQ(inUse.use_count(), 1) << "held by its user alone";
    EXPECT_FALSE(listed.expired());
    EXPECT_FALSE(recorded.expired());
    EXPECT_EQ(Ask("HTX,SIM.Q0,20,1,0"), before);
    // A market made again is announced again.
    ASSERT_EQ(m_notices.size(), 2u);
    EXPECT_EQ(m_notices[0], m_notices[1]);
}

TEST_F(LookupSession, AReplyKeepsItsMarketUntilItsEnd)
{
    const std::string whole = Ask("HTX,SIM.Q0,5000,1,0");
    CLookupSession session(m_catalog);
    session.OnLine("HTX,SIM.Q0,5000,1,0");
    CTextBlock piece;
    WriteAll(session, piece, 1);
    std::string text(piece.Text());
    for (std::size_t i = 0; i <= CMarketCatalog::MaxUnnamed; ++i)
        ASSERT_TRUE(m_catalog.Find("SIM.N" + std::to_string(i)));
    piece.Clear();
    WriteAll(session, piece, 10'000'000);
    EXPECT_EQ(text.append(piece.Text()), whole);
}

TEST_F(LookupSession, ATooLongSymbolIsNone)
{
    const std::string longest = "SIM." + std::string(96, 'X');
    EXPECT_TRUE(Ask("HDX," + longest + ",1,1,6").ends_with("6,!ENDMSG!,\r\n"));
    EXPECT_EQ(Ask("HDX," + longest + "X,1,1,6"), "6,E,The symbol is longer than 100 bytes,\r\n");
    m_notices.clear();
    CTemporaryFolder second;
    second.Write(std::string(101, 'A') + ".daily.csv", Days);
    m_catalog.AddFolder(second.Path());
    ASSERT_EQ(m_notices.size(), 1u);
    EXPECT_TRUE(m_notices[0].ends_with(
        ": a symbol of more than 100 bytes cannot be asked for; the file is not used"));
}

// A client may send bytes that are not text, and a notice goes to a terminal.
TEST_F(LookupSession, NoticesHoldNoRawBytesOfAClient)
{
    Ask("HDX,SIM.\x1b[31m\xff\x01,1,1,6");
    Ask("HDX,SIM." + std::string(90, 'x') + ",1,1,6");
    ASSERT_EQ(m_notices.size(), 2u);
    EXPECT_EQ(m_notices[0], "SIM.?[31M??: simulated history, not a genuine market (seed 1)");
    EXPECT_EQ(m_notices[1],
              "SIM." + std::string(36, 'X') + "...: simulated history, not a genuine market (seed 1)");
}

TEST_F(LookupSession, ALaterFolderReplacesARecordingOfTheSameKindAlone)
{
    CTemporaryFolder second;
    second.Write("DY.daily.csv", "date,open,high,low,close\n2020-01-01,1,1,1,1\n");
    second.Write("DY.minute.csv", "time,open,high,low,close\n2020-01-01 10:00:00,1,1,1,1\n");
    second.Write("SIM.X.daily.csv", "date,open,high,low,close\n2020-01-01,1,1,1,1\n");
    second.Write("A,B.daily.csv", "date,open,high,low,close\n2020-01-01,1,1,1,1\n");
    m_catalog.AddFolder(second.Path());
    EXPECT_EQ(Ask("HDX,DY,0,1,6"), "6,2020-01-01,1,1,1,1,0,0\r\n6,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("HIX,DY,60,0,1,3"), "3,2020-01-01 10:00:00,1,1,1,1,0,0\r\n3,!ENDMSG!,\r\n");
    ASSERT_EQ(m_notices.size(), 2u);
    EXPECT_NE(m_notices[0].find("A,B.daily.csv: a symbol with a comma"), std::string::npos);
    EXPECT_NE(m_notices[1].find("SIM.X.daily.csv"), std::string::npos);
}

// A pipe would block the feed until somebody writes to it, and a folder cannot be read.
TEST_F(LookupSession, WhatIsNoPlainFileIsNoRecording)
{
    CTemporaryFolder second;
    std::filesystem::create_directory(second.Path() / "DIR.daily.csv");
    ASSERT_EQ(mkfifo((second.Path() / "PIPE.tick.csv").c_str(), 0600), 0);
    std::filesystem::create_directory(second.Path() / "symbols.csv");
    second.Write("LAST.daily.csv", "date,open,high,low,close\n2020-01-01,1,1,1,1\n");
    m_catalog.AddFolder(second.Path());
    const std::string tail = ": cannot be read; the file is not used";
    EXPECT_EQ(m_notices, (std::vector<std::string>{(second.Path() / "DIR.daily.csv").string() + tail,
                                                   (second.Path() / "PIPE.tick.csv").string() + tail,
                                                   (second.Path() / "symbols.csv").string() + tail}));
    EXPECT_EQ(Ask("HDX,LAST,0,1,6"), "6,2020-01-01,1,1,1,1,0,0\r\n6,!ENDMSG!,\r\n");
}

// Every line on the page about recordings is served as shown.
TEST_F(LookupSession, TheExamplesOfTheDocumentationHold)
{
    std::ifstream file(ZANTROQ_DOCS "/recordings.md");
    std::stringstream page;
    page << file.rdbuf();
    const auto example = [&](const std::string& line) {
        EXPECT_NE(page.str().find("\n" + line + "\n"), std::string::npos) << line;
        return line;
    };
    m_folder.Write("ACME.tick.csv",
                   "time,last,size,total_volume,bid,ask,tick_id,basis\n" +
                       example("2014-01-02 09:30:01.250,101.25,100,5000,101.20,101.30,77,C"));
    m_folder.Write("ACME.minute.csv", "time,open,high,low,close,volume\n" +
                                          example("2014-01-02 09:31:00,101.25,101.50,101.00,101.40,7500"));
    m_folder.Write("ACME.daily.csv", "date,open,high,low,close,volume,open_interest\n" +
                                         example("2014-01-02,100.0,104.06,95.96,100.34,22351900,0") +
                                         "\n2014-01-03,1,12x,1,1,1,0\n");
    m_folder.Write("symbols.csv", example("symbol,market_id,security_type_id,description") + "\n" +
                                      example("ACME,2,1,\"Acme Rockets, Inc.\""));
    m_catalog.AddFolder(m_folder.Path());
    EXPECT_EQ(Ask("HTX,ACME,1,1,0123456"),
              example("0123456,2014-01-02 09:30:01.250,101.25,100,5000,101.20,101.30,77,C") +
                  "\r\n0123456,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("HIX,ACME,60,1,1,3123456"),
              example("3123456,2014-01-02 09:31:00,101.50,101.00,101.25,101.40,7500,7500") +
                  "\r\n3123456,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("HDX,ACME,1,1,6123456"),
              example("6123456,2014-01-02,104.06,95.96,100.0,100.34,22351900,0") +
                  "\r\n6123456,!ENDMSG!,\r\n");
    EXPECT_EQ(Ask("FIND,1,s,ACME,,"), "1,ACME,2,1,Acme Rockets  Inc.\r\n1,!ENDMSG!,\r\n");
    example("zantroq-feed: data/ACME.daily.csv:3: high is not a price: \"12x\"");
    ASSERT_EQ(m_notices.size(), 2u);
    EXPECT_EQ(m_notices[0],
              (m_folder.Path() / "ACME.daily.csv").string() + ":3: high is not a price: \"12x\"");
    EXPECT_EQ(m_notices[1], (m_folder.Path() / "ACME.daily.csv").string() + ": 1 row skipped");
}

} // namespace zantroq::feed
