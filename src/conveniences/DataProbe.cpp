#include "conveniences/DataProbe.h"

#include "market/ChartHistRequest.h"
#include "market/RequestTable.h"

#include <algorithm>
#include <utility>

namespace zantroq {

CDataProbe::CDataProbe(IChartFeed& feed, RefusalCheck isRefused)
    : m_feed(feed), m_isRefused(std::move(isRefused))
{
}

CDataProbe::~CDataProbe()
{
    Forget();
}

void CDataProbe::Ask(const std::string& symbol, int dataType)
{
    if (symbol == m_symbol && dataType == m_dataType)
        return;
    Forget();
    m_symbol = symbol;
    m_dataType = dataType;
    Send(m_questions[TickData], TicksByDatapoints);
    Send(m_questions[MinuteData], IntervalsByDatapoints);
    Send(m_questions[DailyData], DailyByDatapoints);
}

void CDataProbe::Send(sQuestion& question, int kind)
{
    question.Request = std::make_unique<CChartHistRequest>();
    CChartHistRequest& request = *question.Request;
    request.SetSymbol(m_symbol);
    request.SetRequestKind(kind);
    request.SetDatapoints(1);
    request.SetIntervalSeconds(60);
    request.SetDataDirection("1");
    m_feed.SendHistoryRequest(request);
}

void CDataProbe::Forget()
{
    m_symbol.clear();
    for (sQuestion& question : m_questions) {
        question.Known = Answer::Open;
        if (question.Request)
            m_feed.Release(std::move(question.Request));
    }
}

void CDataProbe::Look(sQuestion& question)
{
    if (!question.Request)
        return;
    const CChartHistRequest& request = *question.Request;
    if (request.IsComplete())
        question.Known = request.GetCount(FieldTime) > 0 ? Answer::Has : Answer::HasNot;
    else if (m_isRefused(request))
        question.Known = Answer::HasNot;
    else
        return;
    if (!request.IsComplete())
        EndReply(*question.Request); // a refusal is the whole answer
    m_feed.Release(std::move(question.Request));
}

ProbeState CDataProbe::State()
{
    if (m_symbol.empty())
        return ProbeState::Open;
    for (sQuestion& question : m_questions)
        Look(question);
    const auto knows = [this](Answer answer) {
        return std::ranges::any_of(m_questions,
                                   [&](const sQuestion& question) { return question.Known == answer; });
    };
    if (knows(Answer::Open))
        return ProbeState::Open;
    if (!knows(Answer::Has))
        return ProbeState::Nothing;
    const auto type = static_cast<std::size_t>(std::min<int>(m_dataType, DailyData));
    if (m_questions[type].Known == Answer::Has) {
        m_foundType = m_dataType;
        return ProbeState::Found;
    }
    for (m_foundType = TickData; m_questions[static_cast<std::size_t>(m_foundType)].Known != Answer::Has;)
        ++m_foundType;
    return ProbeState::Found;
}

} // namespace zantroq
