// Writes the reply to one history command: the chosen points in the requested order, each line with the
// identifier in front, then the end marker. Used on the feed's thread.
#pragma once

#include "feed/protocol/FeedReply.h"
#include "feed/protocol/HistoryPoints.h"

namespace zantroq::feed {

class CHistoryReplyWriter : public IFeedReply
{
public:
    // `market` is the source of the points; the reply keeps it alive.
    CHistoryReplyWriter(std::unique_ptr<IHistoryPoints> points, const sHISTORY_COMMAND& command,
                        std::shared_ptr<const IMarketSource> market = nullptr);
    WorkProgress Write(CTextBlock& block, std::size_t limit, CWorkSlice& slice) override;

private:
    // Each returns false when the slice was over first and goes on at the next call.
    bool ChooseDays(CWorkSlice& slice);
    bool ChooseByCount(CWorkSlice& slice);
    bool LoadNextDay(CWorkSlice& slice);
    void ChooseByDays();
    void DropDaysOutsideRange();
    // The next point, or the next day's load or the end marker where there is none. False at the end of the
    // reply.
    bool WriteStep(CTextBlock& block, CWorkSlice& slice);
    void WritePoint(CTextBlock& block);
    bool IsWanted(TFeedTime stamp) const;

    const std::shared_ptr<const IMarketSource> m_market; // outlives the points
    const std::unique_ptr<IHistoryPoints> m_points;
    const sHISTORY_COMMAND m_command;
    const std::string m_prefix;               // identifier and comma
    const bool m_filtered;                    // points have to be looked at one by one
    bool m_chosen = false;                    // whether the days below are known
    std::uint64_t m_wanted = 0;               // points that the days chosen so far still lack
    std::size_t m_dayBegin = 0, m_dayEnd = 0; // days still to come, by position
    std::size_t m_skip = 0;                   // oldest points of the first day that a count leaves out
    std::size_t m_skipDay = 0;
    std::size_t m_first = 0, m_last = 0; // points of the current day still to come
};

} // namespace zantroq::feed
