// The dialogue of the lookup port with one client: takes the client's lines and returns replies. Has no
// socket and no thread. OnLine only reads a command; Write does the work of answering it, in slices. Feed
// thread only.
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

    // Takes one line without its line end. An empty line is ignored.
    void OnLine(std::string_view line);
    // Takes a line that is too long or not a command.
    void OnBadLine() { Reply(std::string(SyntaxError)); }

    std::size_t PendingReplies() const { return m_replies.size(); }
    // Appends the next part of the replies, until the block holds at least `limit` characters, the slice is
    // over or all replies are written.
    WorkProgress Write(CTextBlock& block, std::size_t limit, CWorkSlice& slice);
    // Drops all pending replies.
    void DropReplies() { m_replies.clear(); }

private:
    void Reply(std::string text) { m_replies.push_back(std::make_unique<CTextReply>(std::move(text))); }
    void OnFind(const std::vector<std::string_view>& fields);

    CMarketCatalog& m_catalog;
    std::deque<std::unique_ptr<IFeedReply>> m_replies;
};

// The answer to "S,SET PROTOCOL,..." and "S,SET CLIENT NAME,...", which both ports accept; empty for any
// other line.
std::string ProtocolReply(std::string_view line);

} // namespace zantroq::feed
