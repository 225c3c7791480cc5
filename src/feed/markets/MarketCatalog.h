// Every market that a feed knows, by symbol: the recordings of its folders, read when the catalog is built,
// and the simulated symbols, made when first asked for. Also the list that the symbol search looks through.
#pragma once

#include "feed/markets/MarketSource.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace zantroq::feed {

// A longer symbol is none: level 1 lines carry it, and their readers have small buffers.
inline constexpr std::size_t MaxSymbolLength = 100;

// Built on one thread; afterwards used by the feed's thread alone.
class CMarketCatalog
{
public:
    // Called with one sentence for whatever the user should know: bad rows, simulated data being served.
    using TNotice = std::function<void(const std::string&)>;

    CMarketCatalog(std::uint64_t seed, TNotice notice);

    // Reads all recordings and symbols.csv of a folder. A recording with at least one usable row replaces one
    // of the same symbol and kind read before.
    void AddFolder(const std::filesystem::path& folder);

    // The market of a symbol, or null. The exact name first, then the name in capitals. Every name that
    // begins with "SIM." is a market, so those that have no line in the list are kept only while they are
    // among the MaxUnlisted used last; made anew, such a market is the same as before.
    std::shared_ptr<const IMarketSource> Share(std::string_view symbol);
    // The same for a short look: good until the next Find or Share.
    const IMarketSource* Find(std::string_view symbol) { return Share(symbol).get(); }
    static constexpr std::size_t MaxUnlisted = 64;

    // What the search finds, by symbol, in order: the symbols with records, simulated ones, and whatever a
    // symbols.csv names.
    const std::map<std::string, sLISTED_SYMBOL>& Listed() const { return m_listed; }
    std::uint64_t Seed() const { return m_seed; }
    void Notify(const std::string& sentence) const { m_notice(sentence); }
    // Says once for each symbol and kind of thing ("history", "live trades", ...) that it is not genuine; of
    // a market that was dropped in between, once more.
    void NotifySimulated(std::string_view symbol, std::string_view what);

private:
    struct sRECORDS
    {
        std::vector<sFEED_TICK> Ticks;
        std::vector<sFEED_BAR> Minutes, Daily;
        bool IsEmpty() const { return Ticks.empty() && Minutes.empty() && Daily.empty(); }
    };
    void AddRecording(const std::filesystem::path& path);
    void AddSymbols(const std::filesystem::path& path);
    void DropUnlisted();
    void MakeList();
    void List(const sLISTED_SYMBOL& listed) { m_listed[listed.Symbol] = listed; }

    const std::uint64_t m_seed;
    const TNotice m_notice;
    std::map<std::string, sRECORDS, std::less<>> m_records; // read and not yet asked for
    std::map<std::string, std::shared_ptr<const IMarketSource>, std::less<>> m_markets;
    std::list<std::string> m_unlisted; // simulated markets outside the list, the one used last in front
    std::set<std::string, std::less<>> m_recorded;  // symbols with records
    std::map<std::string, sLISTED_SYMBOL> m_named;  // by a symbols.csv, with records or not
    std::map<std::string, sLISTED_SYMBOL> m_listed; // all of them
    std::map<std::string, std::set<std::string, std::less<>>, std::less<>> m_notified; // by symbol
};

} // namespace zantroq::feed
