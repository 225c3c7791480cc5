#include "feed/markets/Recording.h"

#include "feed/markets/CsvLine.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <numeric>
#include <system_error>

namespace zantroq::feed {
namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
// More than any market trades in a day; a million such rows can be summed without overflow.
constexpr std::int64_t LargestCount = 5'000'000'000'000;
// Level 1 lines contain the description, and their readers accept about 4,000 bytes a line.
constexpr std::size_t LongestDescription = 1000;
// Bytes of the shortest rows: a tick has a date of eight digits and a price, a bar has three more prices.
constexpr std::size_t ShortestTick = 10, ShortestBar = 16;
constexpr std::size_t NoColumn = static_cast<std::size_t>(-1);

// Walks the rows below the header line and finds columns by name.
class CCsvRows
{
public:
    CCsvRows(ILineSource& lines, const std::string& file, sRECORDING_REPORT& report)
        : m_lines(lines), m_file(file), m_report(report)
    {
        m_readable = NextLine();
        if (!m_readable)
            m_report.Unusable = m_file + ": the file is empty and not used";
        for (const auto field : m_fields)
            m_columns.push_back(UpperCase(field));
    }

    // The index of a column. A missing needed column makes the file unusable.
    std::size_t Column(std::string_view name, bool needed)
    {
        const auto at = std::find(m_columns.begin(), m_columns.end(), UpperCase(name));
        if (at != m_columns.end())
            return static_cast<std::size_t>(at - m_columns.begin());
        if (needed && m_readable) {
            m_readable = false;
            m_report.Unusable = m_file + ":" + std::to_string(m_line) + ": the header line has no column \"" +
                                std::string(name) + "\"; the file is not used";
        }
        return NoColumn;
    }

    bool Next() { return m_readable && NextLine(); }
    // Goes to the next row that has a field for each column; skips and reports shorter rows.
    bool NextWhole()
    {
        while (Next()) {
            if (m_fields.size() >= m_columns.size())
                return true;
            Skip("the row has fewer fields than the header line");
        }
        return false;
    }
    std::string_view Field(std::size_t column) const
    {
        return column < m_fields.size() ? m_fields[column] : std::string_view();
    }
    void Skip(std::string_view why) { m_report.Skip(m_file, m_line, why); }

private:
    bool NextLine()
    {
        std::string_view line;
        while (m_lines.Next(line)) {
            if (++m_line == 1 && line.starts_with(ByteOrderMark))
                line.remove_prefix(ByteOrderMark.size());
            if (line.size() > LongestLine) {
                Skip("the line is longer than " + std::to_string(LongestLine) + " bytes");
                continue;
            }
            if (TrimBlanks(line).empty())
                continue;
            SplitCsvLine(line, m_fields);
            return true;
        }
        if (m_lines.HasFailed())
            Skip("the file cannot be read from here on");
        return false;
    }

    ILineSource& m_lines;
    const std::string& m_file;
    sRECORDING_REPORT& m_report;
    std::vector<std::string> m_columns;
    std::vector<std::string_view> m_fields;
    std::size_t m_line = 0;
    bool m_readable = true;
};

std::string Quoted(std::string_view what, std::string_view value)
{
    return std::string(what) + " \"" + ShownText(value) + '"';
}

// Reads a whole number; a fraction of nothing but zeros is allowed.
template<class TInteger> bool ReadCount(std::string_view text, TInteger& number)
{
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec != std::errc() || number < 0)
        return false;
    const std::string_view rest(read.ptr, static_cast<std::size_t>(text.data() + text.size() - read.ptr));
    return rest.empty() || (rest[0] == '.' && rest.find_first_not_of('0', 1) == std::string_view::npos);
}

bool ReadPrice(CCsvRows& rows, std::size_t column, std::string_view name, sPRICE& price)
{
    if (ParsePrice(rows.Field(column), price))
        return true;
    rows.Skip(Quoted(std::string(name) + " is not a price:", rows.Field(column)));
    return false;
}

// An empty field of an optional column counts as 0.
template<class TInteger>
bool ReadOptionalCount(CCsvRows& rows, std::size_t column, std::string_view name, TInteger& number)
{
    const std::string_view text = rows.Field(column);
    number = 0;
    std::int64_t wide = 0;
    if (text.empty())
        return true;
    const auto most = std::min(LargestCount, static_cast<std::int64_t>(std::numeric_limits<TInteger>::max()));
    if (ReadCount(text, wide) && wide <= most) {
        number = static_cast<TInteger>(wide);
        return true;
    }
    rows.Skip(Quoted(std::string(name) + " is not a count:", text));
    return false;
}

bool ReadTime(CCsvRows& rows, std::size_t column, std::string_view name, TFeedTime& time)
{
    if (ParseStamp(rows.Field(column), time))
        return true;
    rows.Skip(Quoted(std::string(name) + " is not a date of the form YYYY-MM-DD or a time behind one:",
                     rows.Field(column)));
    return false;
}

// The first `most` bytes of UTF-8 text, without an incomplete character at the end.
std::string_view CutText(std::string_view text, std::size_t most)
{
    if (text.size() <= most)
        return text;
    while (most > 0 && (static_cast<unsigned char>(text[most]) & 0xC0) == 0x80)
        --most;
    return text.substr(0, most);
}

bool ReadListId(CCsvRows& rows, std::size_t column, std::string_view name, int& id)
{
    constexpr int largest = 255;
    if (ReadCount(rows.Field(column), id) && id <= largest)
        return true;
    rows.Skip(Quoted(std::string(name) + " is not a number from 0 to 255:", rows.Field(column)));
    return false;
}

// Sorts records by time; records of the same time keep their order. std::stable_sort would need half as much
// memory again as the records.
template<class TRecord, class TTime> void SortByTime(std::vector<TRecord>& records, TTime time)
{
    const auto earlier = [time](const TRecord& a, const TRecord& b) { return a.*time < b.*time; };
    if (std::is_sorted(records.begin(), records.end(), earlier))
        return;
    std::vector<std::uint32_t> from(records.size());
    std::iota(from.begin(), from.end(), 0u);
    std::sort(from.begin(), from.end(), [&](std::uint32_t a, std::uint32_t b) {
        return records[a].*time != records[b].*time ? records[a].*time < records[b].*time : a < b;
    });
    // Follows each cycle of the permutation once, with one record set aside.
    for (std::uint32_t start = 0; start < from.size(); ++start) {
        const TRecord held = records[start];
        std::uint32_t place = start;
        while (from[place] != start) {
            const std::uint32_t next = from[place];
            records[place] = records[next];
            from[place] = place;
            place = next;
        }
        records[place] = held;
        from[place] = place;
    }
}

} // namespace

void sRECORDING_REPORT::Skip(const std::string& file, std::size_t line, std::string_view why)
{
    ++SkippedRows;
    if (Problems.size() < MaxProblems)
        Problems.push_back(file + ":" + std::to_string(line) + ": " + std::string(why));
}

std::vector<sFEED_TICK> ReadTicks(ILineSource& lines, const std::string& file, sRECORDING_REPORT& report)
{
    // Lines are counted first: a vector that grows by itself holds up to three times the memory that it
    // needs.
    std::vector<sFEED_TICK> ticks;
    ticks.reserve(lines.CountLines(ShortestTick));
    CCsvRows rows(lines, file, report);
    const std::size_t time = rows.Column("time", true), last = rows.Column("last", true);
    const std::size_t size = rows.Column("size", false);
    const std::size_t total = rows.Column("total_volume", false), bid = rows.Column("bid", false);
    const std::size_t ask = rows.Column("ask", false), id = rows.Column("tick_id", false);
    const std::size_t basis = rows.Column("basis", false);
    while (rows.NextWhole()) {
        sFEED_TICK tick;
        if (!ReadTime(rows, time, "time", tick.Time) || !ReadPrice(rows, last, "last", tick.Last) ||
            !ReadOptionalCount(rows, size, "size", tick.Size) ||
            !ReadOptionalCount(rows, total, "total_volume", tick.TotalVolume))
            continue;
        tick.Bid = tick.Ask = tick.Last;
        if (!rows.Field(bid).empty() && !ReadPrice(rows, bid, "bid", tick.Bid))
            continue;
        if (!rows.Field(ask).empty() && !ReadPrice(rows, ask, "ask", tick.Ask))
            continue;
        if (!ReadOptionalCount(rows, id, "tick_id", tick.TickId))
            continue;
        const std::string_view letter = rows.Field(basis);
        if (letter.size() > 1 || (!letter.empty() && (letter[0] <= ' ' || letter[0] > '~'))) {
            rows.Skip(Quoted("basis is not one letter:", letter));
            continue;
        }
        tick.Basis = letter.empty() ? 'C' : letter[0];
        ticks.push_back(tick);
    }
    SortByTime(ticks, &sFEED_TICK::Time);
    return ticks;
}

std::vector<sFEED_BAR> ReadBars(RecordingKind kind, ILineSource& lines, const std::string& file,
                                sRECORDING_REPORT& report)
{
    const bool daily = kind == RecordingKind::Daily;
    std::vector<sFEED_BAR> bars;
    bars.reserve(lines.CountLines(ShortestBar));
    CCsvRows rows(lines, file, report);
    const std::string_view stampName = daily ? "date" : "time";
    const std::size_t stamp = rows.Column(stampName, true);
    const std::size_t open = rows.Column("open", true), high = rows.Column("high", true);
    const std::size_t low = rows.Column("low", true), close = rows.Column("close", true);
    const std::size_t volume = rows.Column("volume", false);
    const std::size_t interest = daily ? rows.Column("open_interest", false) : NoColumn;
    while (rows.NextWhole()) {
        sFEED_BAR bar;
        if (!ReadTime(rows, stamp, stampName, bar.Stamp) || !ReadPrice(rows, open, "open", bar.Open) ||
            !ReadPrice(rows, high, "high", bar.High) || !ReadPrice(rows, low, "low", bar.Low) ||
            !ReadPrice(rows, close, "close", bar.Close) ||
            !ReadOptionalCount(rows, volume, "volume", bar.Volume) ||
            !ReadOptionalCount(rows, interest, "open_interest", bar.OpenInterest))
            continue;
        if (IsBelow(bar.High, bar.Low)) {
            rows.Skip("high is below low");
            continue;
        }
        if (daily)
            bar.Stamp = StartOfDay(DayOf(bar.Stamp));
        bars.push_back(bar);
    }
    SortByTime(bars, &sFEED_BAR::Stamp);
    return bars;
}

std::vector<sLISTED_SYMBOL> ReadSymbols(ILineSource& lines, const std::string& file,
                                        sRECORDING_REPORT& report)
{
    CCsvRows rows(lines, file, report);
    const std::size_t symbol = rows.Column("symbol", true), market = rows.Column("market_id", true);
    const std::size_t type = rows.Column("security_type_id", true);
    const std::size_t description = rows.Column("description", false);
    std::vector<sLISTED_SYMBOL> symbols;
    while (rows.Next()) {
        sLISTED_SYMBOL listed;
        listed.Symbol = rows.Field(symbol);
        if (listed.Symbol.empty() || listed.Symbol.find(',') != std::string::npos) {
            rows.Skip(Quoted("symbol is empty or holds a comma:", listed.Symbol));
            continue;
        }
        if (!ReadListId(rows, market, "market_id", listed.MarketId) ||
            !ReadListId(rows, type, "security_type_id", listed.SecurityTypeId))
            continue;
        listed.Description = CutText(rows.Field(description), LongestDescription);
        if (listed.Description.empty())
            listed.Description = listed.Symbol;
        std::replace(listed.Description.begin(), listed.Description.end(), ',', ' ');
        symbols.push_back(std::move(listed));
    }
    return symbols;
}

} // namespace zantroq::feed
