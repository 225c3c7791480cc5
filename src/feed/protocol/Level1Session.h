// The dialogue of the level 1 port with one client: takes the client's lines and returns text to send. Has no
// socket and no thread; all work is done in slices, and the caller passes the time. Each client has its own
// market, which starts at the last recorded point when the client begins to watch, so that live trades always
// follow the history that this client received.
#pragma once

#include "feed/markets/MarketCatalog.h"
#include "feed/protocol/LiveTrades.h"

#include <chrono>
#include <deque>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace zantroq::feed {

struct sLIVE_OPTIONS
{
    bool SimulateAll = false; // recorded symbols get simulated trades too
    // Replays the newest day of a recorded symbol that has ticks; SimulateAll takes precedence.
    bool ReplayTicks = false;
    double Speed = 1; // market seconds per second
};

class CLevel1Session
{
public:
    using TClock = std::chrono::steady_clock;

    CLevel1Session(CMarketCatalog& catalog, const sLIVE_OPTIONS& options)
        : m_catalog(catalog), m_options(options), m_selection(AllQuoteFields())
    {
    }

    // Queues one line, without its line end, for AnswerLines.
    void OnLine(std::string_view line);
    // Queues the error for a line that was too long.
    void OnBadLine();
    std::size_t PendingLines() const { return m_lines.size(); }
    bool HasPendingLines() const { return !m_lines.empty(); }
    // Answers the queued lines in order and appends the answers to `text`, until `text` holds at least
    // `limit` characters or the slice is over.
    WorkProgress AnswerLines(TClock::time_point now, std::size_t limit, CWorkSlice& slice, std::string& text);

    // Sets `due` to the time of the next trade. Returns false if no trade is planned.
    bool NextDue(TClock::time_point& due) const;
    // Appends the due trades in time order, until `limit` characters are appended or the slice is over. Then
    // the rest stays due and the result is More.
    WorkProgress WriteDue(TClock::time_point now, std::size_t limit, CWorkSlice& slice, std::string& text);

private:
    struct sWATCH
    {
        CLiveTrades Trades;
        TFeedTime MarketStart = 0; // market time at Start
        TClock::time_point Start;
    };
    // Returns false if the slice ended before the line was answered.
    bool AnswerLine(std::string_view line, TClock::time_point now, CWorkSlice& slice, std::string& text);
    bool AnswerWatch(std::string_view symbol, TClock::time_point now, CWorkSlice& slice, std::string& text);
    void Watch(std::string_view symbol, const IMarketSource& market, TClock::time_point now,
               std::string& text);
    sWATCH& AddWatch(std::string_view symbol, const IMarketSource& market, TClock::time_point now,
                     std::string& text);
    LiveManner MannerOf(const IMarketSource& market) const;
    // Returns false if the market of the symbol has no further trade.
    bool DueOf(const sWATCH& watch, TClock::time_point& due) const;

    CMarketCatalog& m_catalog;
    const sLIVE_OPTIONS m_options;
    TFieldSelection m_selection;
    std::deque<std::string> m_lines;
    std::shared_ptr<const IMarketSource> m_preparing; // market of the first line, while it is being prepared
    std::map<std::string, sWATCH, std::less<>> m_watches; // key: the symbol as the client wrote it
};

} // namespace zantroq::feed
