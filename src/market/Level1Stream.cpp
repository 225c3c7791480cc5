#include "market/Level1Stream.h"

#include "market/Level1Command.h"
#include "platform/parse/LeadingNumber.h"

#include <exception>
#include <stdexcept>
#include <utility>

namespace zantroq {

namespace {

bool IsNeverActedOn(char messageType)
{
    return messageType == 'S' || messageType == 'T' || messageType == 'N';
}

std::string_view SymbolOf(std::string_view line)
{
    if (line.size() < 2)
        return {};
    line.remove_prefix(2);
    return line.substr(0, line.find(','));
}

// Empties a container at the end of the scope, also after an exception.
template<class Container> struct sEmptyAtEnd
{
    Container& Target;
    ~sEmptyAtEnd() { Target.clear(); }
};

} // namespace

CLevel1Stream::CLevel1Stream(const CWatchTable& watches, std::function<void(std::string_view)> removeSymbol)
    : m_watches(watches), m_removeSymbol(std::move(removeSymbol))
{
}

void CLevel1Stream::OnLine(std::string_view line)
{
    // The empty line after each CR LF names no symbol.
    if (line.empty())
        return;
    constexpr std::string_view Simulated = "S,SIMULATED,";
    if (OnSimulated && line.starts_with(Simulated))
        OnSimulated(line.substr(Simulated.size()));
    const char messageType = line.front();
    const std::string_view symbol = SymbolOf(line);
    if (!m_watches.Find(symbol, m_requests)) {
        if (!IsNeverActedOn(messageType))
            m_removeSymbol(symbol);
        return;
    }
    const sEmptyAtEnd<std::vector<RequestPtr>> letGo{m_requests};
    const Level1Fields fields(line);
    if (OnTrade && messageType == 'Q')
        ReportTrade(symbol, fields);
    std::exception_ptr tooShort;
    for (const RequestPtr& request : m_requests) {
        try {
            if (!request || (!request->IsComplete() && messageType != 'F'))
                PendingLevel1Line = line;
            else if (messageType == 'F')
                ApplyFundamental(*request, fields);
            else
                MergeUpdate(*request, messageType, fields);
        } catch (const std::invalid_argument&) {
            tooShort = std::current_exception();
        }
    }
    if (tooShort)
        std::rethrow_exception(tooShort);
}

void CLevel1Stream::ReportTrade(std::string_view symbol, const Level1Fields& fields) const
{
    constexpr std::string_view TradeLetters = "CEO";
    if (fields.Count() > Level1Contents &&
        fields[Level1Contents].find_first_of(TradeLetters) != std::string_view::npos)
        OnTrade(symbol, TextToDouble(fields[Level1Last]), TextToUnsigned(fields[Level1Size]));
}

void CLevel1Stream::ReplayPending()
{
    if (PendingLevel1Line.empty())
        return;
    // OnLine keeps the line again if another request of the symbol is still loading; the line counts as
    // merged nevertheless.
    const sEmptyAtEnd<std::string> forget{PendingLevel1Line};
    const std::string line = PendingLevel1Line;
    OnLine(line);
}

} // namespace zantroq
