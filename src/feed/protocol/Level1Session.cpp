#include "feed/protocol/Level1Session.h"

#include "feed/markets/CsvLine.h"
#include "feed/protocol/LookupSession.h"

#include <algorithm>

namespace zantroq::feed {
namespace {

// More than any client shows at once.
constexpr std::size_t MaxWatches = 2000;

// In milliseconds, about thirty years: at a speed near zero the wait would exceed the range of the clock.
constexpr double LongestWait = 1e12;

} // namespace

void CLevel1Session::OnLine(std::string_view line)
{
    if (!line.empty())
        m_lines.emplace_back(line);
}

void CLevel1Session::OnBadLine()
{
    // A line of one blank is answered as an error.
    m_lines.emplace_back(" ");
}

WorkProgress CLevel1Session::AnswerLines(TClock::time_point now, std::size_t limit, CWorkSlice& slice,
                                         std::string& text)
{
    while (!m_lines.empty() && text.size() < limit) {
        if (!AnswerLine(m_lines.front(), now, slice, text))
            return WorkProgress::More;
        m_lines.pop_front();
        if (slice.IsOver())
            break;
    }
    return m_lines.empty() ? WorkProgress::Ended : WorkProgress::More;
}

bool CLevel1Session::AnswerLine(std::string_view line, TClock::time_point now, CWorkSlice& slice,
                                std::string& text)
{
    if (const std::string reply = ProtocolReply(line); !reply.empty()) {
        text += reply;
        return true;
    }
    constexpr std::string_view select = "S,SELECT UPDATE FIELDS,";
    if (line.starts_with(select)) {
        if (ReadFieldSelection(line.substr(select.size()), m_selection))
            text += "S,CURRENT UPDATE FIELDNAMES" + FieldNamesText(m_selection) + "\r\n";
        else
            text += SyntaxError;
        return true;
    }
    const std::string_view symbol = TrimBlanks(line.substr(1));
    const bool isSymbol =
        !symbol.empty() && symbol.size() <= MaxSymbolLength && symbol.find(',') == std::string_view::npos;
    if (line[0] == 'w' && isSymbol)
        return AnswerWatch(symbol, now, slice, text);
    if (line[0] == 'r' && !symbol.empty()) {
        if (const auto watch = m_watches.find(symbol); watch != m_watches.end())
            m_watches.erase(watch);
    } else
        text += SyntaxError;
    return true;
}

bool CLevel1Session::AnswerWatch(std::string_view symbol, TClock::time_point now, CWorkSlice& slice,
                                 std::string& text)
{
    if (!m_preparing)
        m_preparing = m_catalog.Share(symbol);
    if (!m_preparing) {
        text += "N,";
        text += symbol;
        text += ",Unknown symbol\r\n";
        return true;
    }
    if (!m_preparing->Prepare(slice))
        return false;
    Watch(symbol, *m_preparing, now, text);
    m_preparing.reset();
    // This step generated or read the newest day of ticks.
    slice.IsOver(CWorkSlice::LargeStep);
    return true;
}

LiveManner CLevel1Session::MannerOf(const IMarketSource& market) const
{
    if (market.IsSimulated() || m_options.SimulateAll)
        return LiveManner::Invented;
    return m_options.ReplayTicks && !market.TickDays().empty() ? LiveManner::Replayed : LiveManner::Silent;
}

void CLevel1Session::Watch(std::string_view symbol, const IMarketSource& market, TClock::time_point now,
                           std::string& text)
{
    const auto known = m_watches.find(symbol);
    if (known == m_watches.end() && m_watches.size() >= MaxWatches) {
        text += "N,";
        text += symbol;
        text += ",Too many symbols are watched\r\n";
        return;
    }
    const sWATCH& watch = known == m_watches.end() ? AddWatch(symbol, market, now, text) : known->second;
    const auto listed = m_catalog.ListedRow(symbol);
    const sLIVE_QUOTE& quote = watch.Trades.Quote();
    AppendFundamentalLine(symbol, quote, listed ? &*listed : nullptr, text);
    AppendQuoteLine('P', symbol, quote, m_selection, text);
}

CLevel1Session::sWATCH& CLevel1Session::AddWatch(std::string_view symbol, const IMarketSource& market,
                                                 TClock::time_point now, std::string& text)
{
    const LiveManner manner = MannerOf(market);
    CLiveTrades trades(market, UpperCase(symbol), m_catalog.Seed(), manner);
    sWATCH& watch =
        m_watches.try_emplace(std::string(symbol), sWATCH{std::move(trades), 0, {}}).first->second;
    watch.Start = now;
    // The first trade comes 250 ms after the watch began, however long the market was closed.
    if (TFeedTime first = 0; watch.Trades.NextTime(first))
        watch.MarketStart = first - 250;
    if (manner != LiveManner::Silent) {
        m_catalog.NotifySimulated(
            symbol, manner == LiveManner::Invented ? "live trades" : "live trades replayed from a recording");
        text += "S,SIMULATED,";
        text += symbol;
        text += "\r\n";
    }
    return watch;
}

bool CLevel1Session::DueOf(const sWATCH& watch, TClock::time_point& due) const
{
    TFeedTime time = 0;
    if (!watch.Trades.NextTime(time))
        return false;
    const double wait = static_cast<double>(time - watch.MarketStart) / m_options.Speed;
    due = watch.Start + std::chrono::duration_cast<TClock::duration>(
                            std::chrono::duration<double, std::milli>(std::min(wait, LongestWait)));
    return true;
}

bool CLevel1Session::NextDue(TClock::time_point& due) const
{
    bool any = false;
    for (const auto& [symbol, watch] : m_watches) {
        TClock::time_point candidate;
        if (!DueOf(watch, candidate) || (any && candidate >= due))
            continue;
        due = candidate;
        any = true;
    }
    return any;
}

WorkProgress CLevel1Session::WriteDue(TClock::time_point now, std::size_t limit, CWorkSlice& slice,
                                      std::string& text)
{
    const std::size_t start = text.size();
    while (text.size() - start < limit) {
        decltype(m_watches)::value_type* next = nullptr;
        TClock::time_point earliest = now;
        for (auto& entry : m_watches) {
            TClock::time_point due;
            if (DueOf(entry.second, due) && due <= earliest && (!next || due < earliest)) {
                next = &entry;
                earliest = due;
            }
        }
        if (!next)
            return WorkProgress::Ended;
        next->second.Trades.Advance();
        AppendQuoteLine('Q', next->first, next->second.Trades.Quote(), m_selection, text);
        // Finding the next trade examines every watch.
        if (slice.IsOver(1 + static_cast<std::uint32_t>(m_watches.size() / 64)))
            break;
    }
    return WorkProgress::More;
}

} // namespace zantroq::feed
