#include "feed/protocol/HistoryAnswer.h"

#include "feed/protocol/HistoryReplyWriter.h"

namespace zantroq::feed {

WorkProgress CHistoryAnswer::Write(CTextBlock& block, std::size_t limit, CWorkSlice& slice)
{
    if (!m_reply) {
        if (!m_market && m_command.Symbol.size() <= MaxSymbolLength)
            m_market = m_catalog.Share(m_command.Symbol);
        if (m_market && !m_market->Prepare(slice))
            return WorkProgress::More;
        Begin();
    }
    return m_reply->Write(block, limit, slice);
}

void CHistoryAnswer::Begin()
{
    if (m_command.Symbol.size() > MaxSymbolLength) {
        Refuse("The symbol is longer than " + std::to_string(MaxSymbolLength) + " bytes");
        return;
    }
    if (!m_market) {
        Refuse("Unknown symbol " + m_command.Symbol);
        return;
    }
    std::string reason;
    auto points = MakeHistoryPoints(*m_market, m_command, reason);
    if (!points) {
        Refuse(reason);
        return;
    }
    if (m_market->IsSimulated())
        m_catalog.NotifySimulated(m_command.Symbol, "history");
    m_reply = std::make_unique<CHistoryReplyWriter>(std::move(points), m_command, m_market);
}

void CHistoryAnswer::Refuse(const std::string& reason)
{
    m_reply = std::make_unique<CTextReply>(m_command.Id + ",E," + reason + ",\r\n");
}

} // namespace zantroq::feed
