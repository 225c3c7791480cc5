// Handles the lines of the history socket: finds the request that a line names, appends the point, and ends
// the reply. Lines that cannot be used are dropped silently. Worker thread only.
#pragma once

#include "market/HistoryFields.h"
#include "market/HistoryLine.h"
#include "market/RequestTable.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace zantroq {

class CHistoryReply
{
public:
    // `onComplete` is called when the reply of a live request has ended, after its Complete flag is set.
    explicit CHistoryReply(std::function<void()> onComplete);

    // Called when the feed answers a live request with an error line; `reason` is in the feed's words.
    std::function<void(std::int32_t handle, std::string_view reason)> OnRefused;

    // Handles one line without its line end; its point is stored on return. Throws std::invalid_argument and
    // stores nothing if the line has too few fields for its kind.
    void OnLine(std::string_view line);

    // The same for one of many lines: its tick may be stored later, but not later than EndOfLines. Delayed
    // ticks are stored before any later line takes effect.
    void OnLineOfMany(std::string_view line);

    // Must be called when no more lines are available, before the thread waits: stores delayed ticks and
    // releases the request of the last line.
    void EndOfLines();

private:
    void OnDeadLine(std::string_view line);
    void OnEndLine(const HistoryFields& fields);
    CChartHistRequest* FindRequestOf(std::string_view line);
    void StoreTicks();

    std::function<void()> m_onComplete;
    CHistoryLineParser m_parser;
    // Cached, because a reply names the same request on thousands of lines.
    std::string m_identifier; // identifier of m_request, with its comma
    RequestPtr m_request;
    sTickBatch m_ticks; // delayed ticks of m_request; empty without a request
};

} // namespace zantroq
