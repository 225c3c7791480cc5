#include "feed/protocol/HistoryReply.h"

#include "feed/markets/TextWriter.h"

namespace zantroq::feed {

CHistoryReply::CHistoryReply(std::unique_ptr<IHistoryPoints> points, const sHISTORY_COMMAND& command,
                             std::shared_ptr<const IMarketSource> market)
    : m_market(std::move(market)),
      m_points(std::move(points)),
      m_command(command),
      m_prefix(command.Id + ','),
      m_filtered(command.Begin || command.End || command.FilterBegin > 0 || command.FilterEnd < MsPerDay - 1)
{
    ChooseDays();
}

void CHistoryReply::ChooseDays()
{
    m_dayEnd = m_points->DayCount();
    if (m_command.Days > 0 && m_dayEnd > 0) {
        const std::int64_t oldest = m_points->Day(m_dayEnd - 1) - m_command.Days + 1;
        for (m_dayBegin = m_dayEnd; m_dayBegin > 0 && m_points->Day(m_dayBegin - 1) >= oldest;)
            --m_dayBegin;
    }
    if (m_command.Datapoints > 0) {
        auto wanted = static_cast<std::uint64_t>(m_command.Datapoints);
        for (m_dayBegin = m_dayEnd; m_dayBegin > 0 && wanted > 0;) {
            const std::size_t count = m_points->CountOfDay(--m_dayBegin);
            m_skip = count > wanted ? count - wanted : 0;
            wanted -= count - m_skip;
        }
        m_skipDay = m_dayBegin;
    }
    // Days that lie outside a range altogether need not be made. A bar stamped midnight belongs to the day
    // before.
    const bool byDay = m_points->DayCount() > 1;
    while (byDay && m_command.Begin && m_dayBegin < m_dayEnd &&
           m_points->Day(m_dayBegin) + 1 < DayOf(*m_command.Begin))
        ++m_dayBegin;
    while (byDay && m_command.End && m_dayBegin < m_dayEnd &&
           m_points->Day(m_dayEnd - 1) > DayOf(*m_command.End))
        --m_dayEnd;
}

bool CHistoryReply::LoadNextDay()
{
    if (m_dayBegin == m_dayEnd)
        return false;
    const std::size_t position = m_command.OldestFirst ? m_dayBegin++ : --m_dayEnd;
    m_points->Load(position);
    m_first = position == m_skipDay ? m_skip : 0;
    m_last = m_points->Count();
    return true;
}

bool CHistoryReply::IsWanted(TFeedTime stamp) const
{
    if ((m_command.Begin && stamp < *m_command.Begin) || (m_command.End && stamp > *m_command.End))
        return false;
    const TFeedTime timeOfDay = TimeOfDay(stamp);
    return timeOfDay >= m_command.FilterBegin && timeOfDay <= m_command.FilterEnd;
}

bool CHistoryReply::Write(CTextBlock& block, std::size_t limit)
{
    while (block.Size() < limit) {
        if (m_first == m_last) {
            if (LoadNextDay())
                continue;
            block.Append(m_prefix);
            block.Append("!ENDMSG!,\r\n");
            return false;
        }
        const std::size_t point = m_command.OldestFirst ? m_first++ : --m_last;
        if (m_filtered && !IsWanted(m_points->Stamp(point)))
            continue;
        char* at = WriteText(block.Reserve(m_prefix.size() + MaxPointLine), m_prefix);
        block.Commit(m_points->Write(at, point));
    }
    return true;
}

} // namespace zantroq::feed
