#include "feed/protocol/LookupSession.h"

#include "feed/markets/CsvLine.h"
#include "feed/markets/ReferenceTables.h"
#include "feed/protocol/FindAnswer.h"
#include "feed/protocol/HistoryAnswer.h"

namespace zantroq::feed {

std::string ProtocolReply(std::string_view line)
{
    constexpr std::size_t LongestName = 200;
    constexpr std::string_view protocol = "S,SET PROTOCOL,", name = "S,SET CLIENT NAME,";
    // There is only one protocol, so every request for another is answered with it.
    if (line.starts_with(protocol))
        return "S,CURRENT PROTOCOL,5.0\r\n";
    if (line.starts_with(name))
        return "S,CLIENT NAME," + std::string(line.substr(name.size(), LongestName)) + "\r\n";
    return {};
}

void CLookupSession::OnLine(std::string_view line)
{
    if (line.empty())
        return;
    if (std::string reply = ProtocolReply(line); !reply.empty()) {
        Reply(std::move(reply));
        return;
    }
    std::vector<std::string_view> fields;
    SplitAtCommas(line, fields);
    sHISTORY_COMMAND command;
    const CommandReading reading = ReadHistoryCommand(fields, command);
    if (reading == CommandReading::Command)
        m_replies.push_back(std::make_unique<CHistoryAnswer>(m_catalog, command));
    else if (reading == CommandReading::Malformed)
        OnBadLine();
    else if (fields[0] == "FIND")
        OnFind(fields);
    else if (TrimBlanks(line) == "SLM" || line.starts_with("SLM,"))
        Reply(ListedMarketsReply());
    else if (TrimBlanks(line) == "SST" || line.starts_with("SST,"))
        Reply(SecurityTypesReply());
    else if (line.starts_with("S,SELECT UPDATE FIELDS"))
        Reply("S,UPDATE FIELDS ARE SELECTED ON THE LEVEL 1 PORT\r\n");
    else
        OnBadLine();
}

void CLookupSession::OnFind(const std::vector<std::string_view>& fields)
{
    if (auto answer = AnswerFind(m_catalog.Listed(), fields))
        m_replies.push_back(std::move(answer));
    else
        OnBadLine();
}

WorkProgress CLookupSession::Write(CTextBlock& block, std::size_t limit, CWorkSlice& slice)
{
    while (!m_replies.empty()) {
        const WorkProgress progress = m_replies.front()->Write(block, limit, slice);
        if (progress != WorkProgress::Ended)
            return progress;
        m_replies.pop_front();
        if (block.Size() >= limit || slice.IsOver())
            break;
    }
    return m_replies.empty() ? WorkProgress::Ended : WorkProgress::More;
}

} // namespace zantroq::feed
