#include "market/HistoryCommand.h"

#include "market/ChartHistRequest.h"
#include "market/Level1Command.h"

#include <gtest/gtest.h>

using namespace zantroq;

namespace {

class CCommand
{
public:
    explicit CCommand(int kind)
    {
        Request.SetSymbol("SYM");
        Request.SetRequestKind(kind);
        Request.SetDataDirection("1");
        Request.SetDatapoints(100);
        Request.SetIntervalSeconds(60);
        Request.SetDays(5);
    }
    CCommand& Range()
    {
        Request.SetBeginDate("20140102");
        Request.SetBeginTime("093000");
        Request.SetEndDate("20140103");
        Request.SetEndTime("160000");
        return *this;
    }
    CCommand& Filter()
    {
        Request.SetBeginFilterTime("100000");
        Request.SetEndFilterTime("150000");
        return *this;
    }
    // The command with the request's handle spelled as H.
    std::string Text() const
    {
        std::string text = HistoryCommand(Request);
        const std::string handle = std::to_string(Request.Handle()) + "\n";
        EXPECT_EQ(text.substr(text.size() - handle.size()), handle);
        return text.substr(0, text.size() - handle.size()) + "H\n";
    }

    CChartHistRequest Request;
};

} // namespace

TEST(HistoryCommand, EachKindHasItsTemplate)
{
    EXPECT_EQ(CCommand(0).Text(), "HTX,SYM,100,1,0H\n");
    EXPECT_EQ(CCommand(1).Filter().Text(), "HTD,SYM,5,,100000,150000,1,1H\n");
    EXPECT_EQ(CCommand(2).Range().Filter().Text(),
              "HTT,SYM,20140102 093000,20140103 160000,,100000,150000,1,2H\n");
    EXPECT_EQ(CCommand(3).Text(), "HIX,SYM,60,100,1,3H\n");
    EXPECT_EQ(CCommand(4).Filter().Text(), "HID,SYM,60,5,,100000,150000,1,4H\n");
    EXPECT_EQ(CCommand(5).Range().Filter().Text(),
              "HIT,SYM,60,20140102 093000,20140103 160000,,100000,150000,1,5H\n");
    EXPECT_EQ(CCommand(6).Text(), "HDX,SYM,100,1,6H\n");
    EXPECT_EQ(CCommand(7).Range().Text(), "HDT,SYM,20140102,20140103,,1,7H\n");
    EXPECT_EQ(CCommand(8).Text(), "HWX,SYM,100,1,8H\n");
    EXPECT_EQ(CCommand(9).Text(), "HMX,SYM,100,1,9H\n");
}

TEST(HistoryCommand, AFilterThatIsOffLeavesItsFieldsEmpty)
{
    EXPECT_EQ(CCommand(4).Text(), "HID,SYM,60,5,,,,1,4H\n");
    EXPECT_EQ(CCommand(2).Range().Text(), "HTT,SYM,20140102 093000,20140103 160000,,,,1,2H\n");
}

TEST(HistoryCommand, DailyRangesCarryNoTimeOfDay)
{
    EXPECT_EQ(CCommand(7).Range().Filter().Text(), "HDT,SYM,20140102,20140103,,1,7H\n");
}

TEST(HistoryCommand, EveryRequestStatesTheProtocolAgain)
{
    const CCommand command(0);
    EXPECT_EQ(HistoryRequestText(command.Request), "S,SET PROTOCOL,5.0\n" + HistoryCommand(command.Request));
}

TEST(HistoryCommand, AnUnknownKindSendsTheProtocolLineAlone)
{
    for (const int kind : {-1, 10, 99})
        EXPECT_EQ(HistoryRequestText(CCommand(kind).Request), "S,SET PROTOCOL,5.0\n");
}

TEST(Level1Command, SetUpSelectsTheFieldsBehindAnEmptyOne)
{
    EXPECT_EQ(Level1SetupText(),
              "S,SET CLIENT NAME,Zantroq Chart\n"
              "S,SET PROTOCOL,5.0\n"
              "S,SELECT UPDATE FIELDS,,Symbol,Total Volume,Most Recent Trade Size,High,Low,Bid,Ask,Bid Size,"
              "Ask Size,Most Recent Trade TimeMS,Open Interest,Open,Close,Most Recent Trade Date,"
              "Most Recent Trade,Fraction Display Code,TickID,Most Recent Trade Market Center,"
              "Bid Market Center,Ask Market Center,Message Contents,Most Recent Trade Conditions\n");
}

TEST(Level1Command, WatchAndRemoveNameTheSymbol)
{
    EXPECT_EQ(WatchCommand("SYM"), "wSYM\r\n");
    EXPECT_EQ(RemoveCommand("SYM"), "rSYM\r\n");
}
