// The reply to one history command: the chosen points in the asked order, each line with the identifier in
// front, then the end marker. Used on the feed's thread.
#pragma once

#include "feed/protocol/FeedReply.h"
#include "feed/protocol/HistoryPoints.h"

namespace zantroq::feed {

class CHistoryReply : public IFeedReply
{
public:
    // `market` is what the points are of; kept for as long as the reply is, where nobody else keeps it.
    CHistoryReply(std::unique_ptr<IHistoryPoints> points, const sHISTORY_COMMAND& command,
                  std::shared_ptr<const IMarketSource> market = nullptr);
    bool Write(CTextBlock& block, std::size_t limit) override;

private:
    void ChooseDays();
    bool LoadNextDay();
    bool IsWanted(TFeedTime stamp) const;

    const std::shared_ptr<const IMarketSource> m_market; // outlives the points
    const std::unique_ptr<IHistoryPoints> m_points;
    const sHISTORY_COMMAND m_command;
    const std::string m_prefix;               // identifier and comma
    const bool m_filtered;                    // points have to be looked at one by one
    std::size_t m_dayBegin = 0, m_dayEnd = 0; // days still to come, by position
    std::size_t m_skip = 0;                   // oldest points of the first day that a count leaves out
    std::size_t m_skipDay = 0;
    std::size_t m_first = 0, m_last = 0; // points of the current day still to come
};

} // namespace zantroq::feed
