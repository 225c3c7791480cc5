#include "market/HistoryReply.h"

#include "platform/parse/LeadingNumber.h"

#include <cstring>
#include <new>
#include <utility>

namespace zantroq {

namespace {

constexpr std::string_view EndMarker = "!ENDMSG!";

bool Contains(std::string_view text, std::string_view part)
{
    return text.find(part) != std::string_view::npos;
}

} // namespace

CHistoryReply::CHistoryReply(std::function<void()> onComplete) : m_onComplete(std::move(onComplete)) {}

void CHistoryReply::OnLine(std::string_view line)
{
    OnLineOfMany(line);
    StoreTicks();
}

void CHistoryReply::OnLineOfMany(std::string_view line)
{
    if (line.empty() || line.front() == 'E' || line.front() == 'S')
        return;
    CChartHistRequest* const request = FindRequestOf(line);
    if (!request)
        return;
    if (!request->IsAlive()) {
        OnDeadLine(line);
        return;
    }
    const HistoryFields fields(line);
    const std::string_view second = fields[1];
    if (!second.empty() && (second.front() == '!' || second.front() == 'E')) {
        OnEndLine(fields);
        return;
    }
    if (request->GetPriceFormat() == 0)
        request->SetPriceFormat(PriceFormatOf(fields[2]));
    const int kind = line.front() - '0';
    if (IsTickKind(kind)) {
        m_parser.ParseTick(fields, request->HasExtendedTrades(), m_ticks);
        if (m_ticks.Full())
            StoreTicks();
    } else if (const sHIST_POINT* bar = m_parser.ParseBar(kind, fields)) {
        StoreTicks();
        request->AppendPoint(*bar);
    }
}

void CHistoryReply::OnDeadLine(std::string_view line)
{
    if (!Contains(line, EndMarker))
        return;
    StoreTicks();
    EndReply(*m_request);
    EndOfLines();
}

// An error line does not end the request: the chart stays in its loading state.
void CHistoryReply::OnEndLine(const HistoryFields& fields)
{
    if (!Contains(fields[1], EndMarker)) {
        if (OnRefused)
            OnRefused(m_request->Handle(), fields.Count() > 2 ? fields[2] : std::string_view());
        return;
    }
    StoreTicks();
    const bool complete = EndReply(*m_request);
    EndOfLines();
    if (complete && m_onComplete)
        m_onComplete();
}

CChartHistRequest* CHistoryReply::FindRequestOf(std::string_view line)
{
    if (m_request && line.size() >= m_identifier.size() &&
        std::memcmp(line.data(), m_identifier.data(), m_identifier.size()) == 0)
        return m_request.get();
    const std::size_t comma = line.find(',');
    if (comma == std::string_view::npos || comma == 0)
        return nullptr;
    StoreTicks();
    m_identifier.assign(line.substr(0, comma + 1));
    m_request = FindRequest(TextToInt(line.substr(1, comma - 1)));
    return m_request.get();
}

void CHistoryReply::StoreTicks()
{
    if (m_ticks.Count == 0)
        return;
    try {
        m_request->AppendTicks(m_ticks);
    } catch (const std::bad_alloc&) {
        // Ticks that did not fit are lost; those that fitted are stored.
    }
    m_ticks.Count = 0;
}

void CHistoryReply::EndOfLines()
{
    StoreTicks();
    m_request.reset();
}

} // namespace zantroq
