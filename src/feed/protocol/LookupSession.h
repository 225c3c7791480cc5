// What the lookup port says to one client: lines go in, replies come out. No socket and no thread of its own.
#pragma once

#include "feed/markets/MarketCatalog.h"
#include "feed/protocol/FeedReply.h"

#include <deque>
#include <memory>
#include <string_view>

namespace zantroq::feed {

inline constexpr std::string_view SyntaxError = "E,!SYNTAX_ERROR!,,\r\n";

struct sHISTORY_COMMAND;

class CLookupSession
{
public:
    explicit CLookupSession(CMarketCatalog& catalog) : m_catalog(catalog) {}

    // One line without its end. Empty lines are nothing.
    void OnLine(std::string_view line);
    // A line too long to be kept, or otherwise no command.
    void OnBadLine() { Reply(std::string(SyntaxError)); }

    std::size_t PendingReplies() const { return m_replies.size(); }
    // Appends what is to be sent next, until the block holds at least `limit` characters or nothing is left.
    void Write(CTextBlock& block, std::size_t limit);

private:
    void Reply(std::string text) { m_replies.push_back(std::make_unique<CTextReply>(std::move(text))); }
    void OnHistoryCommand(const sHISTORY_COMMAND& command);

    CMarketCatalog& m_catalog;
    std::deque<std::unique_ptr<IFeedReply>> m_replies;
};

// The answer to "S,SET PROTOCOL,..." and "S,SET CLIENT NAME,...", which both ports take; empty for any other
// line.
std::string ProtocolReply(std::string_view line);

} // namespace zantroq::feed
