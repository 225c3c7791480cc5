// Takes the lines of the level 1 socket: finds the requests that watch a line's symbol and merges the line
// into each. Keeps the newest line that came while a request was still loading, to be replayed when its
// history stands. Lives on the worker thread, except for the watch table, which has a lock of its own.
#pragma once

#include "market/WatchTable.h"

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

    // One line without its end. Fails with std::invalid_argument when the line is too short for what a
    // request reads of it; the other requests of the symbol have taken it all the same.
    void OnLine(std::string_view line);

    // A reply has ended: takes the kept line, if there is one, and forgets it, also when it fails.
    void ReplayPending();

private:
    const CWatchTable& m_watches;
    std::function<void(std::string_view)> m_removeSymbol;
    std::string PendingLevel1Line;
    std::vector<RequestPtr> m_requests; // of the line in hand; empty between lines
};

} // namespace zantroq
