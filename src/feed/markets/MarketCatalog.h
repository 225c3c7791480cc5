// Every market that a feed knows, by symbol: the recordings of its folders, read when the catalog is built,
// and the simulated symbols, made when first asked for. Also the list that the symbol search looks through.
#pragma once

#include "feed/markets/MarketSource.h"
#include "feed/markets/SymbolIndex.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <optional>
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
    // begins with "SIM." is a market, so all but the named simulations are kept only while they are among
    // the MaxUnnamed used last; made anew, such a market is the same as before.
    std::shared_ptr<const IMarketSource> Share(std::string_view symbol);
    // The same for a short look: good until the next Find or Share.
    const IMarketSource* Find(std::string_view symbol) { return Share(symbol).get(); }
    static constexpr std::size_t MaxUnnamed = 64;

    // What the search finds: the symbols with records, simulated ones, and whatever a symbols.csv names. The
    // index stays as it is when a folder is added; the catalog then has a new one.
    const std::shared_ptr<const CSymbolIndex>& Listed() const { return m_listed; }
    // The list's row of a symbol: the exact name first, then the name in capitals.
    std::optional<sLISTED_SYMBOL> ListedRow(std::string_view symbol) const;
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
    // The symbol of the recording; empty when the file is none that can be used.
    std::string AddRecording(const std::filesystem::path& path);
    void AddSymbols(const std::filesystem::path& path);
    void DropUnnamed();
    void List(std::vector<sLISTED_SYMBOL> rows, ListRank rank);

    const std::uint64_t m_seed;
    const TNotice m_notice;
    std::map<std::string, sRECORDS, std::less<>> m_records; // read and not yet asked for
    std::map<std::string, std::shared_ptr<const IMarketSource>, std::less<>> m_markets;
    std::list<std::string>
        m_unnamed; // simulated markets without a name of their own, the one used last in front
    std::shared_ptr<const CSymbolIndex> m_listed = std::make_shared<const CSymbolIndex>();
    std::map<std::string, std::set<std::string, std::less<>>, std::less<>> m_notified; // by symbol
};

} // namespace zantroq::feed
