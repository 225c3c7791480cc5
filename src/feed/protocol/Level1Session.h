// The level 1 port's conversation with one client: lines go in, text comes out, and the watched symbols move
// with a clock that the caller reads. No socket and no thread of its own; all work is done in slices. Every
// client has a market of its own that begins at the last recorded point when it begins to watch, so that it
// always follows on the history that it was served.
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

    // Takes one line without its end, to be answered by AnswerLines.
    void OnLine(std::string_view line);
    // Takes a line that was too long to be kept.
    void OnBadLine();
    std::size_t PendingLines() const { return m_lines.size(); }
    bool HasPendingLines() const { return !m_lines.empty(); }
    // Answers the lines in their order and appends the answers to `text`, until it holds at least `limit`
    // characters or the slice is over.
    WorkProgress AnswerLines(TClock::time_point now, std::size_t limit, CWorkSlice& slice, std::string& text);

    // When the next trade is due; false while nothing moves.
    bool NextDue(TClock::time_point& due) const;
    // Appends the trades that are due, in the order of their times, until `limit` characters are appended or
    // the slice is over; the rest stays due, and the answer is More.
    WorkProgress WriteDue(TClock::time_point now, std::size_t limit, CWorkSlice& slice, std::string& text);

private:
    struct sWATCH
    {
        CLiveTrades Trades;
        TFeedTime MarketStart = 0; // market time that stands for Start
        TClock::time_point Start;
    };
    // False when the slice was over before the line could be answered.
    bool AnswerLine(std::string_view line, TClock::time_point now, CWorkSlice& slice, std::string& text);
    bool AnswerWatch(std::string_view symbol, TClock::time_point now, CWorkSlice& slice, std::string& text);
    void Watch(std::string_view symbol, const IMarketSource& market, TClock::time_point now,
               std::string& text);
    sWATCH& AddWatch(std::string_view symbol, const IMarketSource& market, TClock::time_point now,
                     std::string& text);
    LiveManner MannerOf(const IMarketSource& market) const;
    // False when the symbol's market has no further trade.
    bool DueOf(const sWATCH& watch, TClock::time_point& due) const;

    CMarketCatalog& m_catalog;
    const sLIVE_OPTIONS m_options;
    TFieldSelection m_selection;
    std::deque<std::string> m_lines;
    std::shared_ptr<const IMarketSource> m_preparing;     // of the first line, while its market is prepared
    std::map<std::string, sWATCH, std::less<>> m_watches; // by the symbol as it was asked for
};

} // namespace zantroq::feed
