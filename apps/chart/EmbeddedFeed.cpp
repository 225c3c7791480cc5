#include "EmbeddedFeed.h"

#include "CommandLine.h"
#include "feed/markets/MarketCatalog.h"
#include "market/HistoryRecords.h"
#include "market/ZantroPorts.h"

#include <algorithm>

namespace zantroq {
namespace {

// Market seconds per second: so slow that no simulated trade happens.
constexpr double Standstill = 1e-9;

// Data finer than the finest of the symbol cannot be built.
int FinestOf(const feed::IMarketSource& market)
{
    if (!market.TickDays().empty())
        return TickData;
    return market.MinuteDays().empty() ? DailyData : MinuteData;
}

} // namespace

CEmbeddedFeed::CEmbeddedFeed(const sCommandLine& line) : m_folder(line.FeedFolder)
{
    feed::sFEED_OPTIONS options;
    if (!line.FeedFolder.empty())
        options.Folders.emplace_back(line.FeedFolder);
    // A visible window and a picture with --settle need live trades. Any other picture shows only the
    // recording, so that the same command draws the same picture.
    const bool live = line.Snapshots.empty() ? line.Replay.empty() || line.Show : line.SettleMs > 0;
    options.SimulateAll = live;
    if (!line.Snapshots.empty() && !live)
        options.Speed = Standstill;
    options.OnNotice = [this](const std::string& sentence) { emit Notice(QString::fromStdString(sentence)); };
    m_server = std::make_unique<feed::CFeedServer>(options);
}

CEmbeddedFeed::~CEmbeddedFeed()
{
    m_server->Stop();
}

bool CEmbeddedFeed::Start(std::string& error)
{
    return m_server->Start(error);
}

std::shared_ptr<ISettingsKey> CEmbeddedFeed::PortKey() const
{
    return MakePortKey(m_server->LookupPort(), m_server->Level1Port());
}

void CEmbeddedFeed::AddFolders(feed::CMarketCatalog& catalog) const
{
    catalog.AddFolder(feed::ShippedDataFolder());
    if (!m_folder.empty())
        catalog.AddFolder(m_folder);
}

std::optional<int> CEmbeddedFeed::TypeFor(const std::string& symbol, int preferred) const
{
    feed::CMarketCatalog catalog(1, [](const std::string&) {});
    AddFolders(catalog);
    const feed::IMarketSource* const market = catalog.Find(symbol);
    if (market == nullptr)
        return std::nullopt;
    return std::max(preferred, FinestOf(*market));
}

std::string CEmbeddedFeed::Advice(const std::string& symbol, int dataType, const std::string& wait) const
{
    feed::CMarketCatalog catalog(1, [](const std::string&) {});
    AddFolders(catalog);
    const feed::IMarketSource* const market = catalog.Find(symbol);
    if (market == nullptr)
        return "the embedded feed has no recording of it; name a folder that has one with --feed "
               "embedded:FOLDER";
    const int finest = FinestOf(*market);
    if (dataType == TickData && finest == MinuteData)
        return "the embedded feed has no ticks of it, but minutes, which --data minute shows";
    if (dataType <= MinuteData && finest == DailyData)
        return std::string("the embedded feed has ") + (dataType == TickData ? "no ticks" : "no minutes") +
               " of it, but daily prices, which --data daily shows";
    return "the embedded feed has data of it; check the range in the settings, or give " + wait + " more";
}

} // namespace zantroq
