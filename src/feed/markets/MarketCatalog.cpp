#include "feed/markets/MarketCatalog.h"

#include "feed/markets/CsvLine.h"
#include "feed/markets/RecordedMarket.h"
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

void NotifyReport(const CMarketCatalog::TNotice& notice, const std::string& file,
                  const sRECORDING_REPORT& report)
{
    for (const std::string& problem : report.Problems)
        notice(problem);
    if (!report.Unusable.empty())
        notice(report.Unusable);
    if (report.SkippedRows > 0)
        notice(file + ": " + std::to_string(report.SkippedRows) +
               (report.SkippedRows == 1 ? " row" : " rows") + " skipped");
}

// Null if the file name is no recording's name, or has no symbol.
const sENDING* EndingOf(std::string_view name)
{
    for (const sENDING& ending : Endings)
        if (name.ends_with(ending.Text) && name.size() > ending.Text.size())
            return &ending;
    return nullptr;
}

// Why a recording of this symbol cannot be used; empty if it can.
std::string SymbolRefusal(std::string_view symbol)
{
    if (symbol.starts_with(SimulatedPrefix))
        return "names that begin with \"SIM.\" are for simulated symbols";
    if (symbol.find(',') != std::string_view::npos)
        return "a symbol with a comma cannot be asked for";
    if (symbol.size() > MaxSymbolLength)
        return "a symbol of more than " + std::to_string(MaxSymbolLength) + " bytes cannot be asked for";
    return {};
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
    // Directory order is unspecified.
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
    const sENDING* const ending = EndingOf(name);
    if (!ending)
        return {};
    const std::string symbol = name.substr(0, name.size() - ending->Text.size());
    if (const std::string refusal = SymbolRefusal(symbol); !refusal.empty()) {
        m_notice(path.string() + ": " + refusal + "; the file is not used");
        return {};
    }
    sRECORDS read;
    if (!ReadRecords(path, ending->Kind, read))
        return {};
    KeepRecords(symbol, ending->Kind, std::move(read));
    return symbol;
}

bool CMarketCatalog::ReadRecords(const std::filesystem::path& path, RecordingKind kind, sRECORDS& read) const
{
    const std::string file = path.string();
    CFileLines lines;
    if (!lines.Open(path)) {
        m_notice(file + ": cannot be read; the file is not used");
        return false;
    }
    sRECORDING_REPORT report;
    if (kind == RecordingKind::Ticks)
        read.Ticks = ReadTicks(lines, file, report);
    else
        (kind == RecordingKind::Minutes ? read.Minutes : read.Daily) = ReadBars(kind, lines, file, report);
    NotifyReport(m_notice, file, report);
    if (read.IsEmpty() && report.Unusable.empty())
        m_notice(file + (report.SkippedRows > 0 ? ": no usable rows" : ": no rows") +
                 "; the file is not used");
    return !read.IsEmpty();
}

void CMarketCatalog::KeepRecords(const std::string& symbol, RecordingKind kind, sRECORDS&& read)
{
    sRECORDS& records = m_records[symbol];
    switch (kind) {
    case RecordingKind::Ticks:
        records.Ticks = std::move(read.Ticks);
        return;
    case RecordingKind::Minutes:
        records.Minutes = std::move(read.Minutes);
        return;
    case RecordingKind::Daily:
        records.Daily = std::move(read.Daily);
        return;
    }
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
    NotifyReport(m_notice, path.string(), report);
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
