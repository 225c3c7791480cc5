// Takes the lines of the history socket: finds the request that a line names, appends its point, and ends the
// request's reply. Silent: what cannot be used is dropped. Lives on the worker thread.
#pragma once

#include "market/HistoryLine.h"
#include "market/RequestTable.h"

#include <functional>
#include <string>
#include <string_view>

namespace zantroq {

class CHistoryReply
{
public:
    // `onComplete` runs when a live request's reply has ended, after its Complete is set.
    explicit CHistoryReply(std::function<void()> onComplete);

    // One line without its end, its point stored on return. Fails with std::invalid_argument when the line
    // has too few fields for its kind; nothing has then been stored.
    void OnLine(std::string_view line);

    // The same for one of many lines: its tick may wait for those behind it, until EndOfLines at the latest.
    // What has waited enters the series before anything that comes behind it takes effect.
    void OnLineOfMany(std::string_view line);

    // No further line is at hand: stores what waits and lets go of the request of the last line. To be called
    // before the thread waits.
    void EndOfLines();

private:
    void OnDeadLine(std::string_view line);
    void OnEndLine(std::string_view marker);
    CChartHistRequest* FindRequestOf(std::string_view line);
    void StoreTicks();

    std::function<void()> m_onComplete;
    CHistoryLineParser m_parser;
    // The lines of a reply name the same request thousands of times over.
    std::string m_identifier; // of m_request, with its comma
    RequestPtr m_request;
    sTickBatch m_ticks; // of m_request; empty without one
};

} // namespace zantroq
