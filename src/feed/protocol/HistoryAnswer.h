// The complete answer to one history command: finds the market, prepares it, and writes either the points or
// one error line. All work starts at the first call of Write, so a queued command costs little. Feed thread
// only.
#pragma once

#include "feed/markets/MarketCatalog.h"
#include "feed/protocol/FeedReply.h"
#include "feed/protocol/HistoryCommandReader.h"

namespace zantroq::feed {

class CHistoryAnswer : public IFeedReply
{
public:
    // The catalog must outlive the answer.
    CHistoryAnswer(CMarketCatalog& catalog, sHISTORY_COMMAND command)
        : m_catalog(catalog), m_command(std::move(command))
    {
    }
    WorkProgress Write(CTextBlock& block, std::size_t limit, CWorkSlice& slice) override;

private:
    // Sets m_reply to the points or, if they cannot be served, to the error line.
    void Begin();
    void Refuse(const std::string& reason);

    CMarketCatalog& m_catalog;
    const sHISTORY_COMMAND m_command;
    std::shared_ptr<const IMarketSource> m_market; // stays alive even if the catalog drops it
    std::unique_ptr<IFeedReply> m_reply;
};

} // namespace zantroq::feed
