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

    // One line without its end. Fails with std::invalid_argument when the line has too few fields for its
    // kind; nothing has then been stored.
    void OnLine(std::string_view line);

    // No further line is at hand: lets go of the request of the last one. To be called before the thread
    // waits.
    void EndOfLines();

private:
    void OnDeadLine(std::string_view line);
    void OnEndLine(std::string_view marker);
    CChartHistRequest* FindRequestOf(std::string_view line);

    std::function<void()> m_onComplete;
    CHistoryLineParser m_parser;
    // The lines of a reply name the same request thousands of times over.
    std::string m_identifier; // of m_request, with its comma
    RequestPtr m_request;
};

} // namespace zantroq
