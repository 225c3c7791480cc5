#include "feed/markets/ReferenceTables.h"

#include <string_view>

namespace zantroq::feed {
namespace {

constexpr std::string_view End = "!ENDMSG!,\r\n";

} // namespace

std::string ListedMarketsReply()
{
    return std::string("1,LOCAL,Recordings of this machine,1,Recorded\r\n"
                       "2,NASDAQ,Nasdaq Stock Market,1,Recorded\r\n"
                       "3,NYSE,New York Stock Exchange,1,Recorded\r\n"
                       "9,SIM,Simulated markets,9,Simulated\r\n"
                       "10,SIM-N,Simulated northern exchange,9,Simulated\r\n"
                       "11,SIM-C,Simulated central exchange,9,Simulated\r\n"
                       "12,SIM-S,Simulated southern exchange,9,Simulated\r\n"
                       "0,NONE,No market,0,None\r\n") +
           std::string(End);
}

std::string SecurityTypesReply()
{
    return std::string("1,EQUITY,Equity\r\n"
                       "2,INDEX,Index\r\n"
                       "3,FUTURE,Future\r\n"
                       "4,FOREX,Foreign exchange\r\n"
                       "5,BOND,Bond\r\n"
                       "9,SIM,Simulated symbol\r\n"
                       "10,SIM-EQ,Simulated equity\r\n"
                       "11,SIM-IX,Simulated index\r\n"
                       "12,SIM-FU,Simulated future\r\n"
                       "13,SIM-BD,Simulated bond\r\n"
                       "0,NONE,No security type\r\n") +
           std::string(End);
}

} // namespace zantroq::feed
