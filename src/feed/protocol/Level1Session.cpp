#include "feed/protocol/Level1Session.h"

#include "feed/markets/CsvLine.h"
#include "feed/protocol/LookupSession.h"

#include <algorithm>

namespace zantroq::feed {
namespace {

// More than any client shows at once.
constexpr std::size_t MaxWatches = 2000;

// Milliseconds, some thirty years: at a speed of next to nothing a wait is longer than a clock can count.
constexpr double LongestWait = 1e12;

} // namespace

void CLevel1Session::OnLine(std::string_view line, TClock::time_point now, std::string& text)
{
    if (line.empty())
        return;
    if (const std::string reply = ProtocolReply(line); !reply.empty()) {
        text += reply;
        return;
    }
    constexpr std::string_view select = "S,SELECT UPDATE FIELDS,";
    if (line.starts_with(select)) {
        if (ReadFieldSelection(line.substr(select.size()), m_selection))
            text += "S,CURRENT UPDATE FIELDNAMES" + FieldNamesText(m_selection) + "\r\n";
        else
            text += SyntaxError;
        return;
    }
    const std::string_view symbol = TrimBlanks(line.substr(1));
    const bool isSymbol =
        !symbol.empty() && symbol.size() <= MaxSymbolLength && symbol.find(',') == std::string_view::npos;
    if (line[0] == 'w' && isSymbol)
        Watch(symbol, now, text);
    else if (line[0] == 'r' && !symbol.empty()) {
        if (const auto watch = m_watches.find(symbol); watch != m_watches.end())
            m_watches.erase(watch);
    } else
        text += SyntaxError;
}

LiveManner CLevel1Session::MannerOf(const IMarketSource& market) const
{
    if (market.IsSimulated() || m_options.SimulateAll)
        return LiveManner::Invented;
    return m_options.ReplayTicks && !market.TickDays().empty() ? LiveManner::Replayed : LiveManner::Silent;
}

void CLevel1Session::Watch(std::string_view symbol, TClock::time_point now, std::string& text)
{
    const IMarketSource* const market = m_catalog.Find(symbol);
    if (!market) {
        text += "N,";
        text += symbol;
        text += ",Unknown symbol\r\n";
        return;
    }
    auto watch = m_watches.find(symbol);
    if (watch == m_watches.end() && m_watches.size() >= MaxWatches) {
        text += "N,";
        text += symbol;
        text += ",Too many symbols are watched\r\n";
        return;
    }
    if (watch == m_watches.end()) {
        const LiveManner manner = MannerOf(*market);
        CLiveTrades trades(*market, UpperCase(symbol), m_catalog.Seed(), manner);
        watch = m_watches.try_emplace(std::string(symbol), sWATCH{std::move(trades), 0, {}}).first;
        sWATCH& made = watch->second;
        made.Start = now;
        // The first trade comes a moment after the watch, however long the market was closed.
        if (TFeedTime first = 0; made.Trades.NextTime(first))
            made.MarketStart = first - 250;
        if (manner != LiveManner::Silent) {
            m_catalog.NotifySimulated(symbol, manner == LiveManner::Invented
                                                  ? "live trades"
                                                  : "live trades replayed from a recording");
            text += "S,SIMULATED,";
            text += symbol;
            text += "\r\n";
        }
    }
    const auto& listed = m_catalog.Listed();
    const auto row = listed.contains(std::string(symbol)) ? listed.find(std::string(symbol))
                                                          : listed.find(UpperCase(symbol));
    const sLIVE_QUOTE& quote = watch->second.Trades.Quote();
    AppendFundamentalLine(symbol, quote, row == listed.end() ? nullptr : &row->second, text);
    AppendQuoteLine('P', symbol, quote, m_selection, text);
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

void CLevel1Session::WriteDue(TClock::time_point now, std::size_t limit, std::string& text)
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
            return;
        next->second.Trades.Advance();
        AppendQuoteLine('Q', next->first, next->second.Trades.Quote(), m_selection, text);
    }
}

} // namespace zantroq::feed
