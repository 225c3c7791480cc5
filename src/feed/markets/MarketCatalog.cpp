#include "feed/markets/MarketCatalog.h"

#include "feed/markets/CsvLine.h"
#include "feed/markets/RecordedMarket.h"
#include "feed/markets/Recording.h"
#include "feed/markets/ReferenceTables.h"
#include "feed/markets/SimulatedMarket.h"
#include "feed/markets/SimulatedSymbols.h"

#include <algorithm>

namespace zantroq::feed {
namespace {

struct sENDING
{
    std::string_view Text;
    RecordingKind Kind;
};
constexpr sENDING Endings[] = {{".tick.csv", RecordingKind::Ticks},
                               {".minute.csv", RecordingKind::Minutes},
                               {".daily.csv", RecordingKind::Daily}};

void Tell(const CMarketCatalog::TNotice& notice, const std::string& file, const sRECORDING_REPORT& report)
{
    for (const std::string& problem : report.Problems)
        notice(problem);
    if (!report.Unusable.empty())
        notice(report.Unusable);
    if (report.SkippedRows > 0)
        notice(file + ": " + std::to_string(report.SkippedRows) +
               (report.SkippedRows == 1 ? " row" : " rows") + " skipped");
}

bool IsNamedSimulation(std::string_view symbol)
{
    const auto named = NamedSimulations();
    return std::any_of(named.begin(), named.end(),
                       [&](const sSIMULATION& simulation) { return simulation.Name == symbol; });
}

} // namespace

CMarketCatalog::CMarketCatalog(std::uint64_t seed, TNotice notice)
    : m_seed(seed), m_notice(notice ? std::move(notice) : [](const std::string&) {})
{
    std::vector<sLISTED_SYMBOL> simulated = SimulatedSymbols();
    for (const sSIMULATION& simulation : NamedSimulations())
        simulated.push_back({std::string(simulation.Name), SimulatedMarketId, SimulatedSecurityTypeId,
                             std::string(simulation.Description)});
    List(std::move(simulated), ListRank::Simulated);
}

void CMarketCatalog::AddFolder(const std::filesystem::path& folder)
{
    std::error_code error;
    std::vector<std::filesystem::path> files;
    for (std::filesystem::directory_iterator i(folder, error), end; !error && i != end; i.increment(error))
        files.push_back(i->path());
    if (error)
        m_notice(folder.string() + ": cannot be read: " + error.message());
    // The order in which a folder lists its files is nobody's promise.
    std::sort(files.begin(), files.end());
    std::vector<sLISTED_SYMBOL> recorded;
    for (const auto& file : files)
        if (std::string symbol = AddRecording(file); !symbol.empty())
            recorded.push_back({symbol, UnknownMarketId, UnknownSecurityTypeId, symbol});
    if (!recorded.empty())
        List(std::move(recorded), ListRank::Recorded);
    if (std::filesystem::exists(folder / "symbols.csv", error))
        AddSymbols(folder / "symbols.csv");
}

void CMarketCatalog::List(std::vector<sLISTED_SYMBOL> rows, ListRank rank)
{
    m_listed = std::make_shared<const CSymbolIndex>(*m_listed, std::move(rows), rank);
}

std::string CMarketCatalog::AddRecording(const std::filesystem::path& path)
{
    const std::string name = path.filename().string();
    for (const sENDING& ending : Endings) {
        if (!name.ends_with(ending.Text) || name.size() == ending.Text.size())
            continue;
        const std::string symbol = name.substr(0, name.size() - ending.Text.size());
        const std::string file = path.string();
        if (symbol.starts_with(SimulatedPrefix)) {
            m_notice(file +
                     ": names that begin with \"SIM.\" are for simulated symbols; the file is not used");
            return {};
        }
        if (symbol.find(',') != std::string::npos) {
            m_notice(file + ": a symbol with a comma cannot be asked for; the file is not used");
            return {};
        }
        if (symbol.size() > MaxSymbolLength) {
            m_notice(file + ": a symbol of more than " + std::to_string(MaxSymbolLength) +
                     " bytes cannot be asked for; the file is not used");
            return {};
        }
        CFileLines lines;
        if (!lines.Open(path)) {
            m_notice(file + ": cannot be read; the file is not used");
            return {};
        }
        sRECORDING_REPORT report;
        sRECORDS read;
        if (ending.Kind == RecordingKind::Ticks)
            read.Ticks = ReadTicks(lines, file, report);
        else
            (ending.Kind == RecordingKind::Minutes ? read.Minutes : read.Daily) =
                ReadBars(ending.Kind, lines, file, report);
        Tell(m_notice, file, report);
        if (read.IsEmpty()) {
            if (report.Unusable.empty())
                m_notice(file + (report.SkippedRows > 0 ? ": no usable rows" : ": no rows") +
                         "; the file is not used");
            return {};
        }
        sRECORDS& records = m_records[symbol];
        if (ending.Kind == RecordingKind::Ticks)
            records.Ticks = std::move(read.Ticks);
        else if (ending.Kind == RecordingKind::Minutes)
            records.Minutes = std::move(read.Minutes);
        else
            records.Daily = std::move(read.Daily);
        return symbol;
    }
    return {};
}

void CMarketCatalog::AddSymbols(const std::filesystem::path& path)
{
    CFileLines lines;
    if (!lines.Open(path)) {
        m_notice(path.string() + ": cannot be read; the file is not used");
        return;
    }
    sRECORDING_REPORT report;
    List(ReadSymbols(lines, path.string(), report), ListRank::Named);
    Tell(m_notice, path.string(), report);
}

std::shared_ptr<const IMarketSource> CMarketCatalog::Share(std::string_view symbol)
{
    if (const auto made = m_markets.find(symbol); made != m_markets.end()) {
        const auto market = made->second;
        const auto used = std::find(m_unnamed.begin(), m_unnamed.end(), symbol);
        if (used != m_unnamed.end())
            m_unnamed.splice(m_unnamed.begin(), m_unnamed, used);
        return market;
    }
    if (const auto read = m_records.find(symbol); read != m_records.end()) {
        sRECORDS records = std::move(read->second);
        m_records.erase(read);
        auto& market = m_markets[std::string(symbol)];
        market = std::make_shared<CRecordedMarket>(std::move(records.Ticks), std::move(records.Minutes),
                                                   std::move(records.Daily));
        return market;
    }
    const std::string upper = UpperCase(symbol);
    if (upper != symbol)
        return Share(upper);
    if (!symbol.starts_with(SimulatedPrefix) || symbol.size() == SimulatedPrefix.size() ||
        symbol.size() > MaxSymbolLength)
        return nullptr;
    const auto market = std::make_shared<const CSimulatedMarket>(symbol, m_seed);
    m_markets[upper] = market;
    if (!IsNamedSimulation(upper)) {
        m_unnamed.push_front(upper);
        DropUnnamed();
    }
    return market;
}

std::optional<sLISTED_SYMBOL> CMarketCatalog::ListedRow(std::string_view symbol) const
{
    auto row = m_listed->Find(symbol);
    if (!row)
        row = m_listed->Find(UpperCase(symbol));
    if (!row)
        return std::nullopt;
    const CSymbolIndex::sROW listed = m_listed->Row(*row);
    return sLISTED_SYMBOL{std::string(listed.Symbol), listed.MarketId, listed.SecurityTypeId,
                          std::string(listed.Description)};
}

void CMarketCatalog::DropUnnamed()
{
    while (m_unnamed.size() > MaxUnnamed) {
        m_markets.erase(m_unnamed.back());
        m_notified.erase(m_unnamed.back());
        m_unnamed.pop_back();
    }
}

void CMarketCatalog::NotifySimulated(std::string_view symbol, std::string_view what)
{
    const std::string name = UpperCase(symbol);
    if (m_notified[name].insert(std::string(what)).second)
        m_notice(ShownText(name) + ": simulated " + std::string(what) + ", not a genuine market (seed " +
                 std::to_string(m_seed) + ")");
}

} // namespace zantroq::feed
