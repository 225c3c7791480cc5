#include "feed/protocol/HistoryPoints.h"

#include "feed/markets/BarBuilder.h"
#include "feed/markets/TextWriter.h"

#include <algorithm>

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
    bool CountDay(std::size_t position, CWorkSlice&, std::size_t& count) override
    {
        count = m_market.TickCount(position);
        return true;
    }
    bool Load(std::size_t position, CWorkSlice&) override
    {
        m_ticks = m_market.Ticks(position, m_scratch);
        WriteDay(m_date, m_days[position]);
        m_date[10] = ' ';
        m_midnight = StartOfDay(m_days[position]);
        return true;
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
          m_days(fromMinutes ? market.MinuteDays() : market.TickDays()),
          m_builder(intervalSeconds)
    {
    }
    std::size_t DayCount() const override { return m_days.size(); }
    TFeedDay Day(std::size_t position) const override { return m_days[position]; }
    bool CountDay(std::size_t position, CWorkSlice& slice, std::size_t& count) override
    {
        if (!Load(position, slice))
            return false;
        count = m_bars.size();
        return true;
    }
    bool Load(std::size_t position, CWorkSlice& slice) override
    {
        if (m_position != position) {
            m_position = position;
            Begin();
        }
        return BuildOn(slice);
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
    static constexpr std::size_t NoPosition = static_cast<std::size_t>(-1);
    // So many ticks take a fraction of a millisecond.
    static constexpr std::size_t TicksPerStep = 4096;

    void Begin()
    {
        m_bars.clear();
        m_ticksLeft = {};
        if (!m_fromMinutes) {
            m_ticksLeft = m_market.Ticks(m_position, m_ticks);
            m_builder = CTickBarBuilder(m_seconds);
            return;
        }
        const auto minutes = m_market.Minutes(m_position, m_minutes);
        if (m_seconds == 60)
            m_bars.assign(minutes.begin(), minutes.end());
        else
            BuildIntervalsFromMinutes(minutes, m_seconds, m_bars);
    }
    bool BuildOn(CWorkSlice& slice)
    {
        while (!m_ticksLeft.empty()) {
            const std::size_t count = std::min(m_ticksLeft.size(), TicksPerStep);
            m_builder.Add(m_ticksLeft.first(count), m_bars);
            m_ticksLeft = m_ticksLeft.subspan(count);
            if (slice.IsOver(CWorkSlice::LargeStep) && !m_ticksLeft.empty())
                return false;
        }
        return true;
    }

    const IMarketSource& m_market;
    const int m_seconds;
    const bool m_fromMinutes;
    const std::span<const TFeedDay> m_days;
    CTickBarBuilder m_builder;
    std::size_t m_position = NoPosition; // position of the current day
    std::vector<sFEED_TICK> m_ticks;     // scratch
    std::span<const sFEED_TICK> m_ticksLeft;
    std::vector<sFEED_BAR> m_minutes, m_bars;
};

// Recorded daily bars, or weekly or monthly bars built from them and stored here.
class CDayBarPoints : public IHistoryPoints
{
public:
    CDayBarPoints(std::span<const sFEED_BAR> daily, HistoryData data)
        : m_data(data), m_daysLeft(data == HistoryData::Daily ? daily.last(0) : daily), m_bars(daily)
    {
    }
    bool Prepare(CWorkSlice& slice) override
    {
        if (m_data == HistoryData::Daily)
            return true;
        while (!m_daysLeft.empty()) {
            (m_data == HistoryData::Weekly ? AddDayToWeekly : AddDayToMonthly)(m_daysLeft.front(), m_built);
            m_daysLeft = m_daysLeft.subspan(1);
            if (slice.IsOver() && !m_daysLeft.empty())
                return false;
        }
        m_bars = m_built;
        return true;
    }
    std::size_t DayCount() const override { return 1; }
    TFeedDay Day(std::size_t) const override { return DayOf(m_bars.back().Stamp); }
    bool CountDay(std::size_t, CWorkSlice&, std::size_t& count) override
    {
        count = m_bars.size();
        return true;
    }
    bool Load(std::size_t, CWorkSlice&) override { return true; }
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
    const HistoryData m_data;
    std::span<const sFEED_BAR> m_daysLeft; // daily bars not combined yet
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
