// All markets of a feed by symbol: recordings, read when their folder is added, and simulated markets, made at
// the first request. Also holds the index that the symbol search reads.
#pragma once

#include "feed/markets/MarketSource.h"
#include "feed/markets/Recording.h"
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

// In bytes. Longer symbols are refused: level 1 lines contain the symbol, and their readers have small
// buffers.
inline constexpr std::size_t MaxSymbolLength = 100;

// Built on one thread; afterwards used by the feed's thread alone.
class CMarketCatalog
{
public:
    // Receives one sentence for the user at a time: bad rows, unusable files, simulated data being served.
    using TNotice = std::function<void(const std::string&)>;

    CMarketCatalog(std::uint64_t seed, TNotice notice);

    // Reads all recordings and symbols.csv of a folder. A recording with at least one usable row replaces an
    // earlier recording of the same symbol and kind. Errors are reported as notices.
    void AddFolder(const std::filesystem::path& folder);

    // Returns the market of a symbol, or null. Tries the exact name, then the name in capitals. Every name
    // that begins with "SIM." is a market, so the catalog keeps only the MaxUnnamed most recently used
    // markets besides the named simulations. A dropped market is identical when it is made again.
    std::shared_ptr<const IMarketSource> Share(std::string_view symbol);
    // As Share, without ownership: the pointer is valid until the next Find or Share.
    const IMarketSource* Find(std::string_view symbol) { return Share(symbol).get(); }
    static constexpr std::size_t MaxUnnamed = 64;

    // The symbols that the search finds: those with records, the named simulations and the rows of every
    // symbols.csv. An index never changes; AddFolder replaces it with a new one.
    const std::shared_ptr<const CSymbolIndex>& Listed() const { return m_listed; }
    // The index row of a symbol, if any. Tries the exact name, then the name in capitals.
    std::optional<sLISTED_SYMBOL> ListedRow(std::string_view symbol) const;
    std::uint64_t Seed() const { return m_seed; }
    void Notify(const std::string& sentence) const { m_notice(sentence); }
    // Notifies the user that the data is simulated, once for each symbol and kind of data ("history", "live
    // trades", ...), and again after the market was dropped.
    void NotifySimulated(std::string_view symbol, std::string_view what);

private:
    struct sRECORDS
    {
        std::vector<sFEED_TICK> Ticks;
        std::vector<sFEED_BAR> Minutes, Daily;
        bool IsEmpty() const { return Ticks.empty() && Minutes.empty() && Daily.empty(); }
    };
    // Reads the recording and keeps its records. Returns its symbol, or an empty text if the file is not a
    // recording or cannot be used; a notice then says why.
    std::string AddRecording(const std::filesystem::path& path);
    // Returns false after a notice if the file cannot be read or has no usable row.
    bool ReadRecords(const std::filesystem::path& path, RecordingKind kind, sRECORDS& read) const;
    void KeepRecords(const std::string& symbol, RecordingKind kind, sRECORDS&& read);
    void AddSymbols(const std::filesystem::path& path);
    void DropUnnamed();
    void List(std::vector<sLISTED_SYMBOL> rows, ListRank rank);

    const std::uint64_t m_seed;
    const TNotice m_notice;
    std::map<std::string, sRECORDS, std::less<>> m_records; // read, but not yet requested
    std::map<std::string, std::shared_ptr<const IMarketSource>, std::less<>> m_markets;
    // Simulated markets that are not named simulations, the most recently used first.
    std::list<std::string> m_unnamed;
    std::shared_ptr<const CSymbolIndex> m_listed = std::make_shared<const CSymbolIndex>();
    std::map<std::string, std::set<std::string, std::less<>>, std::less<>> m_notified; // by symbol
};

} // namespace zantroq::feed
