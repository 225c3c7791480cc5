// Every market that a feed knows, by symbol: the recordings of its folders, read when the catalog is built,
// and the simulated symbols, made when first asked for. Also the list that the symbol search looks through.
#pragma once

#include "feed/MarketSource.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zantroq::feed {

// Built on one thread; afterwards used by the feed's thread alone.
class CMarketCatalog
{
public:
    // Called with one sentence for whatever the user should know: bad rows, simulated data being served.
    using TNotice = std::function<void(const std::string&)>;

    CMarketCatalog(std::uint64_t seed, TNotice notice);

    // Reads all recordings and symbols.csv of a folder. A recording replaces one of the same symbol and kind
    // read before.
    void AddFolder(const std::filesystem::path& folder);

    // The market of a symbol, or null. The exact name first, then the name in capitals.
    const IMarketSource* Find(std::string_view symbol);

    // By symbol, in order.
    const std::map<std::string, sLISTED_SYMBOL>& Listed() const { return m_listed; }
    std::uint64_t Seed() const { return m_seed; }
    void Notify(const std::string& sentence) const { m_notice(sentence); }
    // Says once for each symbol and kind of thing ("history", "live trades", ...) that it is not genuine.
    void NotifySimulated(std::string_view symbol, std::string_view what);

private:
    struct sRECORDS
    {
        std::vector<sFEED_TICK> Ticks;
        std::vector<sFEED_BAR> Minutes, Daily;
    };
    void AddRecording(const std::filesystem::path& path);
    void AddSymbols(const std::filesystem::path& path);
    void List(const sLISTED_SYMBOL& listed) { m_listed[listed.Symbol] = listed; }

    const std::uint64_t m_seed;
    const TNotice m_notice;
    std::map<std::string, sRECORDS, std::less<>> m_records; // read and not yet asked for
    std::map<std::string, std::unique_ptr<IMarketSource>, std::less<>> m_markets;
    std::map<std::string, sLISTED_SYMBOL> m_listed;
    std::map<std::string, bool, std::less<>> m_notified;
};

} // namespace zantroq::feed
