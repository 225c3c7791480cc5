#include "feed/protocol/LookupSession.h"

#include "feed/markets/CsvLine.h"
#include "feed/markets/ReferenceTables.h"
#include "feed/protocol/HistoryReply.h"

namespace zantroq::feed {

std::string ProtocolReply(std::string_view line)
{
    constexpr std::size_t LongestName = 200;
    constexpr std::string_view protocol = "S,SET PROTOCOL,", name = "S,SET CLIENT NAME,";
    // There is one protocol; whichever was asked for, this is the one that is spoken.
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
    std::string found;
    if (reading == CommandReading::Command)
        OnHistoryCommand(command);
    else if (reading == CommandReading::Malformed)
        OnBadLine();
    else if (fields[0] == "FIND" && FindReply(m_catalog.Listed(), fields, found))
        Reply(std::move(found));
    else if (TrimBlanks(line) == "SLM" || line.starts_with("SLM,"))
        Reply(ListedMarketsReply());
    else if (TrimBlanks(line) == "SST" || line.starts_with("SST,"))
        Reply(SecurityTypesReply());
    else if (line.starts_with("S,SELECT UPDATE FIELDS"))
        Reply("S,UPDATE FIELDS ARE SELECTED ON THE LEVEL 1 PORT\r\n");
    else
        OnBadLine();
}

void CLookupSession::OnHistoryCommand(const sHISTORY_COMMAND& command)
{
    const bool isSymbol = command.Symbol.size() <= MaxSymbolLength;
    const auto market = isSymbol ? m_catalog.Share(command.Symbol) : nullptr;
    std::string reason = isSymbol ? "Unknown symbol " + command.Symbol
                                  : "The symbol is longer than " + std::to_string(MaxSymbolLength) + " bytes";
    auto points = market ? MakeHistoryPoints(*market, command, reason) : nullptr;
    if (!points) {
        Reply(command.Id + ",E," + reason + ",\r\n");
        return;
    }
    if (market->IsSimulated())
        m_catalog.NotifySimulated(command.Symbol, "history");
    m_replies.push_back(std::make_unique<CHistoryReply>(std::move(points), command, market));
}

void CLookupSession::Write(CTextBlock& block, std::size_t limit)
{
    while (!m_replies.empty() && block.Size() < limit)
        if (!m_replies.front()->Write(block, limit))
            m_replies.pop_front();
}

} // namespace zantroq::feed
