#include "feed/protocol/HistoryReplyWriter.h"

#include "feed/markets/TextWriter.h"

namespace zantroq::feed {

CHistoryReplyWriter::CHistoryReplyWriter(std::unique_ptr<IHistoryPoints> points,
                                         const sHISTORY_COMMAND& command,
                                         std::shared_ptr<const IMarketSource> market)
    : m_market(std::move(market)),
      m_points(std::move(points)),
      m_command(command),
      m_prefix(command.Id + ','),
      m_filtered(command.Begin || command.End || command.FilterBegin > 0 || command.FilterEnd < MsPerDay - 1),
      m_wanted(static_cast<std::uint64_t>(command.Datapoints))
{
}

bool CHistoryReplyWriter::ChooseDays(CWorkSlice& slice)
{
    if (m_chosen)
        return true;
    if (!m_points->Prepare(slice))
        return false;
    if (m_dayEnd == 0)
        m_dayBegin = m_dayEnd = m_points->DayCount();
    if (m_command.Datapoints > 0) {
        if (!ChooseByCount(slice))
            return false;
    } else
        ChooseByDays();
    DropDaysOutsideRange();
    m_chosen = true;
    return true;
}

bool CHistoryReplyWriter::ChooseByCount(CWorkSlice& slice)
{
    while (m_dayBegin > 0 && m_wanted > 0) {
        std::size_t count = 0;
        if (!m_points->CountDay(m_dayBegin - 1, slice, count))
            return false;
        m_skipDay = --m_dayBegin;
        m_skip = count > m_wanted ? count - m_wanted : 0;
        m_wanted -= count - m_skip;
        if (slice.IsOver(CWorkSlice::LargeStep))
            return false;
    }
    return true;
}

void CHistoryReplyWriter::ChooseByDays()
{
    m_dayBegin = 0;
    if (m_command.Days == 0 || m_dayEnd == 0)
        return;
    const std::int64_t oldest = m_points->Day(m_dayEnd - 1) - m_command.Days + 1;
    for (m_dayBegin = m_dayEnd; m_dayBegin > 0 && m_points->Day(m_dayBegin - 1) >= oldest;)
        --m_dayBegin;
}

void CHistoryReplyWriter::DropDaysOutsideRange()
{
    // A bar stamped midnight belongs to the day before. Longer bars are all loaded as one day.
    if (m_points->DayCount() <= 1)
        return;
    while (m_command.Begin && m_dayBegin < m_dayEnd &&
           m_points->Day(m_dayBegin) + 1 < DayOf(*m_command.Begin))
        ++m_dayBegin;
    while (m_command.End && m_dayBegin < m_dayEnd && m_points->Day(m_dayEnd - 1) > DayOf(*m_command.End))
        --m_dayEnd;
}

bool CHistoryReplyWriter::LoadNextDay(CWorkSlice& slice)
{
    const std::size_t position = m_command.OldestFirst ? m_dayBegin : m_dayEnd - 1;
    if (!m_points->Load(position, slice))
        return false;
    if (m_command.OldestFirst)
        ++m_dayBegin;
    else
        --m_dayEnd;
    m_first = position == m_skipDay ? m_skip : 0;
    m_last = m_points->Count();
    return true;
}

bool CHistoryReplyWriter::IsWanted(TFeedTime stamp) const
{
    if ((m_command.Begin && stamp < *m_command.Begin) || (m_command.End && stamp > *m_command.End))
        return false;
    const TFeedTime timeOfDay = TimeOfDay(stamp);
    return timeOfDay >= m_command.FilterBegin && timeOfDay <= m_command.FilterEnd;
}

WorkProgress CHistoryReplyWriter::Write(CTextBlock& block, std::size_t limit, CWorkSlice& slice)
{
    if (!ChooseDays(slice))
        return WorkProgress::More;
    while (block.Size() < limit) {
        if (!WriteStep(block, slice))
            return WorkProgress::Ended;
        if (slice.IsOver())
            break;
    }
    return WorkProgress::More;
}

bool CHistoryReplyWriter::WriteStep(CTextBlock& block, CWorkSlice& slice)
{
    if (m_first != m_last) {
        WritePoint(block);
        return true;
    }
    if (m_dayBegin != m_dayEnd) {
        if (LoadNextDay(slice))
            slice.IsOver(CWorkSlice::LargeStep);
        return true;
    }
    block.Append(m_prefix);
    block.Append("!ENDMSG!,\r\n");
    return false;
}

void CHistoryReplyWriter::WritePoint(CTextBlock& block)
{
    const std::size_t point = m_command.OldestFirst ? m_first++ : --m_last;
    if (m_filtered && !IsWanted(m_points->Stamp(point)))
        return;
    char* const at = WriteText(block.Reserve(m_prefix.size() + MaxPointLine), m_prefix);
    block.Commit(m_points->Write(at, point));
}

} // namespace zantroq::feed
