// What the level 1 port says to one client: lines go in, text comes out, and the watched symbols move with a
// clock that the caller reads. No socket and no thread of its own. Every client has a market of its own that
// begins at the last recorded point when it begins to watch, so that it always follows on the history that it
// was served.
#pragma once

#include "feed/markets/MarketCatalog.h"
#include "feed/protocol/LiveTrades.h"

#include <chrono>
#include <map>
#include <string>
#include <string_view>

namespace zantroq::feed {

struct sLIVE_OPTIONS
{
    bool SimulateAll = false; // recorded symbols get invented trades too
    bool ReplayTicks =
        false;        // recorded symbols with ticks have their newest day played again, unless SimulateAll
    double Speed = 1; // market seconds a second
};

class CLevel1Session
{
public:
    using TClock = std::chrono::steady_clock;

    CLevel1Session(CMarketCatalog& catalog, const sLIVE_OPTIONS& options)
        : m_catalog(catalog), m_options(options), m_selection(AllQuoteFields())
    {
    }

    // One line without its end; what is to be said is appended to `text`.
    void OnLine(std::string_view line, TClock::time_point now, std::string& text);

    // When the next trade is due; false while nothing moves.
    bool NextDue(TClock::time_point& due) const;
    // Appends all trades that are due, in the order of their times, at most `limit` characters; the rest
    // stays due.
    void WriteDue(TClock::time_point now, std::size_t limit, std::string& text);

private:
    struct sWATCH
    {
        CLiveTrades Trades;
        TFeedTime MarketStart = 0; // market time that stands for Start
        TClock::time_point Start;
    };
    void Watch(std::string_view symbol, TClock::time_point now, std::string& text);
    LiveManner MannerOf(const IMarketSource& market) const;
    // False when the symbol's market has no further trade.
    bool DueOf(const sWATCH& watch, TClock::time_point& due) const;

    CMarketCatalog& m_catalog;
    const sLIVE_OPTIONS m_options;
    TFieldSelection m_selection;
    std::map<std::string, sWATCH, std::less<>> m_watches; // by the symbol as it was asked for
};

} // namespace zantroq::feed
