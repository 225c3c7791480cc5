// The lookup port's conversation with one client: lines go in, replies come out. No socket and no thread of
// its own. A line is only looked at when it comes in; the work of answering it is done by Write, in slices.
#pragma once

#include "feed/markets/MarketCatalog.h"
#include "feed/protocol/FeedReply.h"

#include <deque>
#include <memory>
#include <string_view>
#include <vector>

namespace zantroq::feed {

inline constexpr std::string_view SyntaxError = "E,!SYNTAX_ERROR!,,\r\n";

class CLookupSession
{
public:
    explicit CLookupSession(CMarketCatalog& catalog) : m_catalog(catalog) {}

    // One line without its end. Empty lines are passed over.
    void OnLine(std::string_view line);
    // A line that is too long or no command.
    void OnBadLine() { Reply(std::string(SyntaxError)); }

    std::size_t PendingReplies() const { return m_replies.size(); }
    // Appends what is to be sent next, until the block holds at least `limit` characters, the slice is over
    // or all replies are written.
    WorkProgress Write(CTextBlock& block, std::size_t limit, CWorkSlice& slice);
    // Forgets all pending replies.
    void DropReplies() { m_replies.clear(); }

private:
    void Reply(std::string text) { m_replies.push_back(std::make_unique<CTextReply>(std::move(text))); }
    void OnFind(const std::vector<std::string_view>& fields);

    CMarketCatalog& m_catalog;
    std::deque<std::unique_ptr<IFeedReply>> m_replies;
};

// The answer to "S,SET PROTOCOL,..." and "S,SET CLIENT NAME,...", which both ports take; empty for any other
// line.
std::string ProtocolReply(std::string_view line);

} // namespace zantroq::feed
