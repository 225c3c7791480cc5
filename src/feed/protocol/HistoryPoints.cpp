#include "feed/protocol/HistoryPoints.h"

#include "feed/markets/BarBuilder.h"
#include "feed/markets/TextWriter.h"

namespace zantroq::feed {
namespace {

char* WriteField(char* at, sPRICE price)
{
    at = WritePrice(at, price);
    *at++ = ',';
    return at;
}

template<class TInteger> char* WriteField(char* at, TInteger number)
{
    at = WriteInteger(at, number);
    *at++ = ',';
    return at;
}

char* WriteLineEnd(char* at)
{
    return WriteText(at, "\r\n");
}

char* WritePrices(char* at, const sFEED_BAR& bar)
{
    at = WriteField(at, bar.High);
    at = WriteField(at, bar.Low);
    at = WriteField(at, bar.Open);
    return WriteField(at, bar.Close);
}

class CTickPoints : public IHistoryPoints
{
public:
    explicit CTickPoints(const IMarketSource& market) : m_market(market), m_days(market.TickDays()) {}
    std::size_t DayCount() const override { return m_days.size(); }
    TFeedDay Day(std::size_t position) const override { return m_days[position]; }
    std::size_t CountOfDay(std::size_t position) override { return m_market.TickCount(position); }
    void Load(std::size_t position) override
    {
        m_ticks = m_market.Ticks(position, m_scratch);
        WriteDay(m_date, m_days[position]);
        m_date[10] = ' ';
        m_midnight = StartOfDay(m_days[position]);
    }
    std::size_t Count() const override { return m_ticks.size(); }
    TFeedTime Stamp(std::size_t point) const override { return m_ticks[point].Time; }
    char* Write(char* at, std::size_t point) const override
    {
        const sFEED_TICK& tick = m_ticks[point];
        at = WriteText(at, {m_date, sizeof m_date});
        at = WriteMilliseconds(at, tick.Time - m_midnight);
        *at++ = ',';
        at = WriteField(at, tick.Last);
        at = WriteField(at, tick.Size);
        at = WriteField(at, tick.TotalVolume);
        at = WriteField(at, tick.Bid);
        at = WriteField(at, tick.Ask);
        at = WriteField(at, tick.TickId);
        *at++ = tick.Basis;
        return WriteLineEnd(at);
    }

private:
    const IMarketSource& m_market;
    const std::span<const TFeedDay> m_days;
    std::vector<sFEED_TICK> m_scratch;
    std::span<const sFEED_TICK> m_ticks;
    char m_date[11];
    TFeedTime m_midnight = 0;
};

class CIntervalPoints : public IHistoryPoints
{
public:
    CIntervalPoints(const IMarketSource& market, int intervalSeconds, bool fromMinutes)
        : m_market(market),
          m_seconds(intervalSeconds),
          m_fromMinutes(fromMinutes),
          m_days(fromMinutes ? market.MinuteDays() : market.TickDays())
    {
    }
    std::size_t DayCount() const override { return m_days.size(); }
    TFeedDay Day(std::size_t position) const override { return m_days[position]; }
    std::size_t CountOfDay(std::size_t position) override
    {
        Load(position);
        return m_bars.size();
    }
    void Load(std::size_t position) override
    {
        if (m_loaded && m_position == position)
            return;
        m_bars.clear();
        if (!m_fromMinutes)
            BuildIntervalsFromTicks(m_market.Ticks(position, m_ticks), m_seconds, m_bars);
        else if (m_seconds == 60) {
            const auto minutes = m_market.Minutes(position, m_minutes);
            m_bars.assign(minutes.begin(), minutes.end());
        } else
            BuildIntervalsFromMinutes(m_market.Minutes(position, m_minutes), m_seconds, m_bars);
        m_loaded = true;
        m_position = position;
    }
    std::size_t Count() const override { return m_bars.size(); }
    TFeedTime Stamp(std::size_t point) const override { return m_bars[point].Stamp; }
    char* Write(char* at, std::size_t point) const override
    {
        const sFEED_BAR& bar = m_bars[point];
        at = WriteDay(at, DayOf(bar.Stamp));
        *at++ = ' ';
        at = WriteSeconds(at, TimeOfDay(bar.Stamp));
        *at++ = ',';
        at = WritePrices(at, bar);
        at = WriteField(at, bar.TotalVolume);
        at = WriteInteger(at, bar.Volume);
        return WriteLineEnd(at);
    }

private:
    const IMarketSource& m_market;
    const int m_seconds;
    const bool m_fromMinutes;
    const std::span<const TFeedDay> m_days;
    std::vector<sFEED_TICK> m_ticks;
    std::vector<sFEED_BAR> m_minutes, m_bars;
    bool m_loaded = false;
    std::size_t m_position = 0;
};

// Daily bars as they are, or weekly or monthly ones held here.
class CDayBarPoints : public IHistoryPoints
{
public:
    CDayBarPoints(std::span<const sFEED_BAR> daily, HistoryData data) : m_bars(daily)
    {
        if (data == HistoryData::Daily)
            return;
        m_built = data == HistoryData::Weekly ? BuildWeekly(daily) : BuildMonthly(daily);
        m_bars = m_built;
    }
    std::size_t DayCount() const override { return 1; }
    TFeedDay Day(std::size_t) const override { return DayOf(m_bars.back().Stamp); }
    std::size_t CountOfDay(std::size_t) override { return m_bars.size(); }
    void Load(std::size_t) override {}
    std::size_t Count() const override { return m_bars.size(); }
    TFeedTime Stamp(std::size_t point) const override { return m_bars[point].Stamp; }
    char* Write(char* at, std::size_t point) const override
    {
        const sFEED_BAR& bar = m_bars[point];
        at = WriteDay(at, DayOf(bar.Stamp));
        *at++ = ',';
        at = WritePrices(at, bar);
        at = WriteField(at, bar.Volume);
        at = WriteInteger(at, bar.OpenInterest);
        return WriteLineEnd(at);
    }

private:
    std::vector<sFEED_BAR> m_built;
    std::span<const sFEED_BAR> m_bars;
};

} // namespace

std::unique_ptr<IHistoryPoints> MakeHistoryPoints(const IMarketSource& market,
                                                  const sHISTORY_COMMAND& command, std::string& reason)
{
    if (command.Data == HistoryData::Ticks) {
        if (!market.TickDays().empty())
            return std::make_unique<CTickPoints>(market);
        reason = "No ticks are recorded for " + command.Symbol;
        return nullptr;
    }
    if (command.Data == HistoryData::Intervals) {
        if (command.IntervalSeconds < 1 || command.IntervalSeconds > MsPerDay / MsPerSecond) {
            reason = "An interval of " + std::to_string(command.IntervalSeconds) +
                     " seconds cannot be served; use 1 to 86400";
            return nullptr;
        }
        const auto seconds = static_cast<int>(command.IntervalSeconds);
        if (!market.MinuteDays().empty() && seconds % 60 == 0)
            return std::make_unique<CIntervalPoints>(market, seconds, true);
        if (!market.TickDays().empty())
            return std::make_unique<CIntervalPoints>(market, seconds, false);
        reason = market.MinuteDays().empty() ? "No ticks or minutes are recorded for " + command.Symbol
                                             : "No ticks are recorded for " + command.Symbol +
                                                   " and minutes build whole minutes only";
        return nullptr;
    }
    const auto daily = market.Daily();
    if (!daily.empty())
        return std::make_unique<CDayBarPoints>(daily, command.Data);
    reason = "No trades are recorded for " + command.Symbol;
    return nullptr;
}

} // namespace zantroq::feed
