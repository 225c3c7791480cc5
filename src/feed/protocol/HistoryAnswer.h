// The whole answer to one history command: finds the market, has it prepared, and writes either the points or
// the line that says why there are none. Nothing of this is done before the first call of Write, so a command
// that waits for those before it costs next to nothing. Used on the feed's thread.
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
    // Sets m_reply, to the error line where nothing can be served.
    void Begin();
    void Refuse(const std::string& reason);

    CMarketCatalog& m_catalog;
    const sHISTORY_COMMAND m_command;
    std::shared_ptr<const IMarketSource> m_market; // kept while it is prepared, whatever the catalog drops
    std::unique_ptr<IFeedReply> m_reply;
};

} // namespace zantroq::feed
