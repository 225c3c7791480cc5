#include "search/FindReply.h"

#include "platform/parse/LeadingNumber.h"

#include <algorithm>

namespace zantroq {

namespace {

constexpr std::string_view EndMark = "!ENDMSG!", EndLine = "!ENDMSG!,\r\n";

std::string OneLine(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return text;
}

std::string_view TakeField(std::string_view& rest)
{
    const std::size_t comma = rest.find(',');
    const std::string_view field = rest.substr(0, comma);
    rest.remove_prefix(comma == std::string_view::npos ? rest.size() : comma + 1);
    return field;
}

// "E,<message>". A symbol named E is followed by two numbers, which no message begins with.
bool IsError(std::string_view line)
{
    if (TakeField(line) != "E")
        return false;
    std::uint64_t number = 0;
    const bool market = PlainInteger(TakeField(line), number);
    return !market || !PlainInteger(TakeField(line), number);
}

} // namespace

std::string FindCommand(int id, const std::string& field, const std::string& text,
                        const std::string& filterKind, const std::string& filterIds)
{
    return "FIND," + std::to_string(id) + ',' + OneLine(field) + ',' + OneLine(text) + ',' +
           OneLine(filterKind) + ',' + OneLine(filterIds) + "\r\n";
}

bool CFindReply::Take(std::string_view bytes)
{
    while (!m_ended && !bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        AppendToLine(bytes.substr(0, end));
        if (end == std::string_view::npos)
            break;
        bytes.remove_prefix(end + 1);
        std::string line;
        line.swap(m_line);
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        m_ended = !m_dropping && !OnLine(line);
        m_dropping = false;
    }
    return !m_ended;
}

void CFindReply::AppendToLine(std::string_view part)
{
    constexpr std::size_t MaxWithReturn = MaxLine + 1;
    m_dropping = m_dropping || m_line.size() + part.size() > MaxWithReturn;
    if (m_dropping)
        m_line.clear();
    else
        m_line.append(part);
}

bool CFindReply::OnLine(std::string_view line)
{
    if (line.starts_with("E,")) // a feed that does not know FIND answers without identifier
        return EndByError(line);
    if (!line.starts_with(m_prefix))
        return true;
    line.remove_prefix(m_prefix.size());
    if (line.starts_with(EndMark)) {
        m_events.OnResultLine(EndLine);
        return false;
    }
    if (IsError(line))
        return EndByError(line);
    m_events.OnResultLine(std::string(line) + "\r\n");
    return true;
}

bool CFindReply::EndByError(std::string_view line)
{
    m_events.OnErrorLine(std::string(line) + "\r\n");
    m_events.OnErrorLine(EndLine);
    return false;
}

} // namespace zantroq
