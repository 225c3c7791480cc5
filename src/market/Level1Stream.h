// Handles the lines of the level 1 socket: finds the requests that watch the symbol of a line and merges the
// line into each. Keeps the newest line that arrived while a request was still loading, and merges it once
// the history is complete. Worker thread only; the watch table has its own lock.
#pragma once

#include "market/Level1Update.h"
#include "market/WatchTable.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zantroq {

class CLevel1Stream
{
public:
    // `removeSymbol` asks the feed to stop the updates of a symbol.
    CLevel1Stream(const CWatchTable& watches, std::function<void(std::string_view symbol)> removeSymbol);

    // Called for each trade of a watched symbol, before it is merged; for those of extended hours too. May be
    // empty.
    std::function<void(std::string_view symbol, double price, std::int64_t size)> OnTrade;

    // Called when the feed announces that the trades of a symbol are simulated. May be empty.
    std::function<void(std::string_view symbol)> OnSimulated;

    // Handles one line without its line end. Throws std::invalid_argument if the line is too short for a
    // request; the other requests of the symbol have merged it nevertheless.
    void OnLine(std::string_view line);

    // Merges the kept line, if there is one, after a reply has ended. Discards the line even if merging
    // throws.
    void ReplayPending();

private:
    void ReportTrade(std::string_view symbol, const Level1Fields& fields) const;

    const CWatchTable& m_watches;
    std::function<void(std::string_view)> m_removeSymbol;
    std::string PendingLevel1Line;
    std::vector<RequestPtr> m_requests; // requests of the current line; empty between lines
};

} // namespace zantroq
