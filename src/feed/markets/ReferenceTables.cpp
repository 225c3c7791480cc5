#include "feed/markets/ReferenceTables.h"

#include "feed/markets/CsvLine.h"
#include "feed/markets/MarketCatalog.h"

#include <algorithm>
#include <charconv>
#include <set>

namespace zantroq::feed {
namespace {

constexpr std::string_view End = "!ENDMSG!,\r\n";

std::set<int> ReadIds(std::string_view text)
{
    std::set<int> ids;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at != end) {
        int id = 0;
        const auto read = std::from_chars(at, end, id);
        if (read.ptr == at)
            ++at;
        else {
            ids.insert(id);
            at = read.ptr;
        }
    }
    return ids;
}

} // namespace

std::string ListedMarketsReply()
{
    return std::string("1,LOCAL,Recordings of this machine,1,Recorded\r\n"
                       "2,NASDAQ,Nasdaq Stock Market,1,Recorded\r\n"
                       "3,NYSE,New York Stock Exchange,1,Recorded\r\n"
                       "9,SIM,Simulated markets,9,Simulated\r\n"
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
                       "0,NONE,No security type\r\n") +
           std::string(End);
}

bool FindReply(const std::map<std::string, sLISTED_SYMBOL>& listed,
               const std::vector<std::string_view>& fields, std::string& reply)
{
    const std::size_t count = fields.size();
    if (count < 6 || fields[1].empty())
        return false;
    const std::string id(fields[1]);
    const std::string_view field = fields[2], kind = fields[count - 2], ids = fields[count - 1];
    const std::string_view text(
        fields[3].data(),
        static_cast<std::size_t>(fields[count - 3].data() + fields[count - 3].size() - fields[3].data()));
    if (field != "s" && field != "d") {
        reply = id + ",E,Unknown search field; use s or d\r\n";
        return true;
    }
    if (!kind.empty() && kind != "e" && kind != "t") {
        reply = id + ",E,Unknown filter kind; use e or t or leave it empty\r\n";
        return true;
    }
    std::string wanted = UpperCase(TrimBlanks(text));
    // As in the descriptions that it is compared with.
    std::replace(wanted.begin(), wanted.end(), ',', ' ');
    if (wanted.empty()) {
        reply = id + ",E,Empty search text\r\n";
        return true;
    }
    const std::set<int> kept = ReadIds(ids);
    for (const auto& [symbol, row] : listed) {
        const bool found = field == "s" ? UpperCase(symbol).starts_with(wanted)
                                        : UpperCase(row.Description).find(wanted) != std::string::npos;
        const bool passes = kind.empty() || kept.contains(kind == "e" ? row.MarketId : row.SecurityTypeId);
        if (found && passes)
            reply += id + ',' + symbol + ',' + std::to_string(row.MarketId) + ',' +
                     std::to_string(row.SecurityTypeId) + ',' + row.Description + "\r\n";
    }
    reply += id + ',' + std::string(End);
    return true;
}

} // namespace zantroq::feed
