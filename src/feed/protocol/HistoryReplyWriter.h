// Writes the reply to one history command: the selected points in the requested order, each line with the
// identifier first, then the end marker. Feed thread only.
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
    // Each returns false if the slice ended before the work did; the next call continues.
    bool ChooseDays(CWorkSlice& slice);
    bool ChooseByCount(CWorkSlice& slice);
    bool LoadNextDay(CWorkSlice& slice);
    void ChooseByDays();
    void DropDaysOutsideRange();
    // Writes the next point; without one, loads the next day; without one, writes the end marker and returns
    // false.
    bool WriteStep(CTextBlock& block, CWorkSlice& slice);
    void WritePoint(CTextBlock& block);
    bool IsWanted(TFeedTime stamp) const;

    const std::shared_ptr<const IMarketSource> m_market; // outlives the points
    const std::unique_ptr<IHistoryPoints> m_points;
    const sHISTORY_COMMAND m_command;
    const std::string m_prefix;               // identifier and comma
    const bool m_filtered;                    // each point must be tested on its own
    bool m_chosen = false;                    // the days below are selected
    std::uint64_t m_wanted = 0;               // points missing after the days selected so far
    std::size_t m_dayBegin = 0, m_dayEnd = 0; // positions of the days not written yet
    std::size_t m_skip = 0;                   // oldest points of day m_skipDay that the count excludes
    std::size_t m_skipDay = 0;
    std::size_t m_first = 0, m_last = 0; // points of the current day not written yet
};

} // namespace zantroq::feed
