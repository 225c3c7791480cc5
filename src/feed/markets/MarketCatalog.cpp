#include "feed/markets/MarketCatalog.h"

#include "feed/markets/CsvLine.h"
#include "feed/markets/RecordedMarket.h"
#include "feed/markets/Recording.h"
#include "feed/markets/ReferenceTables.h"
#include "feed/markets/SimulatedMarket.h"

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

} // namespace

CMarketCatalog::CMarketCatalog(std::uint64_t seed, TNotice notice)
    : m_seed(seed), m_notice(notice ? std::move(notice) : [](const std::string&) {})
{
    MakeList();
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
    for (const auto& file : files)
        AddRecording(file);
    if (std::filesystem::exists(folder / "symbols.csv", error))
        AddSymbols(folder / "symbols.csv");
    MakeList();
}

void CMarketCatalog::MakeList()
{
    for (const sSIMULATION& simulation : NamedSimulations())
        List({std::string(simulation.Name), SimulatedMarketId, SimulatedSecurityTypeId,
              std::string(simulation.Description)});
    for (const std::string& symbol : m_recorded)
        List({symbol, UnknownMarketId, UnknownSecurityTypeId, symbol});
    for (const auto& [symbol, named] : m_named)
        List(named);
}

void CMarketCatalog::AddRecording(const std::filesystem::path& path)
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
            return;
        }
        if (symbol.find(',') != std::string::npos) {
            m_notice(file + ": a symbol with a comma cannot be asked for; the file is not used");
            return;
        }
        if (symbol.size() > MaxSymbolLength) {
            m_notice(file + ": a symbol of more than " + std::to_string(MaxSymbolLength) +
                     " bytes cannot be asked for; the file is not used");
            return;
        }
        std::string text;
        if (!ReadWholeFile(path, text)) {
            m_notice(file + ": cannot be read; the file is not used");
            return;
        }
        sRECORDING_REPORT report;
        sRECORDS read;
        if (ending.Kind == RecordingKind::Ticks)
            read.Ticks = ReadTicks(text, file, report);
        else
            (ending.Kind == RecordingKind::Minutes ? read.Minutes : read.Daily) =
                ReadBars(ending.Kind, text, file, report);
        Tell(m_notice, file, report);
        if (read.IsEmpty()) {
            if (report.Unusable.empty())
                m_notice(file + (report.SkippedRows > 0 ? ": no usable rows" : ": no rows") +
                         "; the file is not used");
            return;
        }
        m_recorded.insert(symbol);
        sRECORDS& records = m_records[symbol];
        if (ending.Kind == RecordingKind::Ticks)
            records.Ticks = std::move(read.Ticks);
        else if (ending.Kind == RecordingKind::Minutes)
            records.Minutes = std::move(read.Minutes);
        else
            records.Daily = std::move(read.Daily);
    }
}

void CMarketCatalog::AddSymbols(const std::filesystem::path& path)
{
    std::string text;
    if (!ReadWholeFile(path, text)) {
        m_notice(path.string() + ": cannot be read; the file is not used");
        return;
    }
    sRECORDING_REPORT report;
    for (const sLISTED_SYMBOL& listed : ReadSymbols(text, path.string(), report))
        m_named[listed.Symbol] = listed;
    Tell(m_notice, path.string(), report);
}

std::shared_ptr<const IMarketSource> CMarketCatalog::Share(std::string_view symbol)
{
    if (const auto made = m_markets.find(symbol); made != m_markets.end()) {
        const auto market = made->second;
        const auto used = std::find(m_unlisted.begin(), m_unlisted.end(), symbol);
        if (used != m_unlisted.end())
            m_unlisted.splice(m_unlisted.begin(), m_unlisted, used);
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
    if (!m_listed.contains(upper)) {
        m_unlisted.push_front(upper);
        DropUnlisted();
    }
    return market;
}

void CMarketCatalog::DropUnlisted()
{
    while (m_unlisted.size() > MaxUnlisted) {
        m_markets.erase(m_unlisted.back());
        m_notified.erase(m_unlisted.back());
        m_unlisted.pop_back();
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
