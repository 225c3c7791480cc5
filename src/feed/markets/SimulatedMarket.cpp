#include "feed/markets/SimulatedMarket.h"

#include "feed/markets/RandomNumbers.h"

#include <algorithm>
#include <array>

namespace zantroq::feed {
namespace {

constexpr TFeedTime SessionStart = (9 * 60 + 30) * 60 * MsPerSecond;
constexpr int SessionMinutes = 390;
constexpr int LastDayMinutes = 210; // 09:30 to 13:00
constexpr TFeedTime MsPerMinute = 60 * MsPerSecond;

TFeedDay LastDay()
{
    static const TFeedDay day = DayOfDate(2024, 6, 12);
    return day;
}

const std::array<sSIMULATION, 6> Simulations = {{
    {.Name = "SIM.BIG",
     .Description = "Simulated: very long history",
     .BasePrice = 20000,
     .DayMove = 150,
     .NightMove = 40,
     .Days = 250'000,
     .MinuteDays = 700,
     .TickDays = 420,
     .TicksPerMinute = 13},
    {.Name = "SIM.BOND",
     .Description = "Simulated: priced in 32nds",
     .Decimals = 5,
     .Step = 3125,
     .DisplayCode = 5,
     .BasePrice = 3520,
     .DayMove = 24,
     .NightMove = 4},
    {.Name = "SIM.CALM", .Description = "Simulated: calm market"},
    {.Name = "SIM.FLAT",
     .Description = "Simulated: one price for ever",
     .BasePrice = 2000,
     .DayMove = 0,
     .NightMove = 0,
     .TicksPerMinute = 4,
     .MinuteVolume = 400},
    {.Name = "SIM.GAPS",
     .Description = "Simulated: missing days and minutes",
     .BasePrice = 4800,
     .DayMove = 90,
     .NightMove = 250,
     .TicksPerMinute = 6,
     .MissingPerMille = 250},
    {.Name = "SIM.WILD",
     .Description = "Simulated: wild market",
     .BasePrice = 25000,
     .DayMove = 900,
     .NightMove = 300,
     .TicksPerMinute = 20,
     .MinuteVolume = 9000,
     .ExtendedPerMille = 40},
}};

const sSIMULATION AnyOther = {.Name = "", .Description = "Simulated market", .DayMove = 120, .NightMove = 30};

// The uses of random numbers. Each has its own sequence for each day.
enum : std::uint64_t
{
    ForDay = 1,
    ForMissingDay,
    ForMinutes,
    ForMissingMinutes,
    ForTicks
};

} // namespace

std::span<const sSIMULATION> NamedSimulations()
{
    return Simulations;
}

const sSIMULATION& SimulationOf(std::string_view symbol)
{
    for (const sSIMULATION& simulation : Simulations)
        if (simulation.Name == symbol)
            return simulation;
    return AnyOther;
}

CSimulatedMarket::CSimulatedMarket(std::string_view symbol, std::uint64_t seed)
    : m_rules(SimulationOf(symbol)),
      m_key(HashText(symbol, seed)),
      m_nextDay(LastDay()),
      m_close(m_rules.BasePrice)
{
}

std::uint64_t CSimulatedMarket::Key(TFeedDay day, std::uint64_t what) const
{
    return MixBits(m_key ^ MixBits(static_cast<std::uint64_t>(static_cast<std::uint32_t>(day)) * 8 + what));
}

bool CSimulatedMarket::Prepare(CWorkSlice& slice) const
{
    const auto dayCount = static_cast<std::size_t>(m_rules.Days);
    while (m_days.size() < dayCount) {
        AddOlderDay();
        if (slice.IsOver())
            return false;
    }
    if (!m_daysAscend) {
        std::reverse(m_days.begin(), m_days.end());
        m_daysAscend = true;
        m_daily.reserve(dayCount);
    }
    while (m_daily.size() < dayCount) {
        AddDailyBar(m_days[m_daily.size()]);
        if (slice.IsOver() && m_daily.size() < dayCount)
            return false;
    }
    return true;
}

void CSimulatedMarket::MakeAll() const
{
    CWorkSlice slice = CWorkSlice::Unlimited();
    Prepare(slice);
}

void CSimulatedMarket::AddOlderDay() const
{
    const TFeedDay day = m_nextDay--;
    const bool missing = day != LastDay() && m_rules.MissingPerMille > 0 &&
                         CRandomNumbers(Key(day, ForMissingDay)).Below(4000) < m_rules.MissingPerMille;
    if (WeekdayOf(day) <= 4 && !missing)
        m_days.push_back(day);
}

void CSimulatedMarket::AddDailyBar(TFeedDay day) const
{
    CRandomNumbers random(Key(day, ForDay));
    // A weak pull towards the base price keeps a walk over centuries within a readable range.
    const std::int64_t pull = (m_rules.BasePrice - m_close) / 200;
    const std::int64_t open = std::max<std::int64_t>(1, m_close + random.Around(m_rules.NightMove));
    m_close = std::max<std::int64_t>(1, open + random.Around(m_rules.DayMove) + pull);
    const auto reach = static_cast<std::uint64_t>(m_rules.DayMove) / 2 + 1;
    const std::int64_t high = std::max(open, m_close) + random.Below(reach);
    const std::int64_t low = std::max<std::int64_t>(1, std::min(open, m_close) - random.Below(reach));
    const std::int64_t volume = static_cast<std::int64_t>(TradedMinuteCount(day)) *
                                (m_rules.MinuteVolume / 2 + random.Below(m_rules.MinuteVolume));
    sFEED_BAR bar;
    bar.Stamp = StartOfDay(day);
    bar.Open = Price(open);
    bar.High = Price(high);
    bar.Low = Price(low);
    bar.Close = Price(m_close);
    bar.Volume = bar.TotalVolume = volume;
    m_daily.push_back(bar);
}

std::size_t CSimulatedMarket::TradedMinuteCount(TFeedDay day) const
{
    if (m_rules.MissingPerMille == 0)
        return static_cast<std::size_t>(day == LastDay() ? LastDayMinutes : SessionMinutes);
    std::vector<int> minutes;
    TradedMinutes(day, minutes);
    return minutes.size();
}

void CSimulatedMarket::TradedMinutes(TFeedDay day, std::vector<int>& minutes) const
{
    minutes.clear();
    const int count = day == LastDay() ? LastDayMinutes : SessionMinutes;
    CRandomNumbers random(Key(day, ForMissingMinutes));
    for (int minute = 0; minute < count; ++minute) {
        const bool missing = m_rules.MissingPerMille > 0 && random.Below(1000) < m_rules.MissingPerMille;
        if (!missing || minute == 0 || minute == count - 1)
            minutes.push_back(minute);
    }
}

std::span<const sFEED_BAR> CSimulatedMarket::Daily() const
{
    MakeAll();
    return m_daily;
}

std::span<const TFeedDay> CSimulatedMarket::MinuteDays() const
{
    MakeAll();
    return std::span(m_days).last(static_cast<std::size_t>(m_rules.MinuteDays));
}

std::span<const TFeedDay> CSimulatedMarket::TickDays() const
{
    MakeAll();
    return std::span(m_days).last(static_cast<std::size_t>(m_rules.TickDays));
}

std::span<const sFEED_BAR> CSimulatedMarket::Minutes(std::size_t position,
                                                     std::vector<sFEED_BAR>& scratch) const
{
    const TFeedDay day = MinuteDays()[position];
    const sFEED_BAR& whole =
        m_daily[m_daily.size() - static_cast<std::size_t>(m_rules.MinuteDays) + position];
    std::vector<int> minutes;
    TradedMinutes(day, minutes);
    const std::int64_t move = m_rules.DayMove / 30;
    CRandomNumbers random(Key(day, ForMinutes));
    const std::vector<std::int64_t> prices = MinutePrices(whole, move, minutes.size(), random);
    const std::int64_t high = Steps(whole.High), low = Steps(whole.Low);
    const auto highAt = static_cast<std::size_t>(random.Below(minutes.size()));
    const auto lowAt = static_cast<std::size_t>(random.Below(minutes.size()));
    const auto reach = static_cast<std::uint64_t>(move) / 2 + 1;
    std::int64_t total = 0;
    scratch.clear();
    for (std::size_t i = 0; i < minutes.size(); ++i) {
        const std::int64_t from = prices[i], to = prices[i + 1];
        const std::int64_t top = std::min(high, std::max(from, to) + random.Below(reach));
        const std::int64_t bottom = std::max(low, std::min(from, to) - random.Below(reach));
        sFEED_BAR bar;
        bar.Stamp = StartOfDay(day) + SessionStart + (minutes[i] + 1) * MsPerMinute;
        bar.Open = Price(from);
        bar.Close = Price(to);
        bar.High = Price(i == highAt ? high : top);
        bar.Low = Price(i == lowAt ? low : bottom);
        bar.Volume = VolumeOfMinute(day, whole.Volume, i, minutes.size());
        bar.TotalVolume = total += bar.Volume;
        scratch.push_back(bar);
    }
    return scratch;
}

std::vector<std::int64_t> CSimulatedMarket::MinutePrices(const sFEED_BAR& whole, std::int64_t move,
                                                         std::size_t minutes, CRandomNumbers& random) const
{
    std::vector<std::int64_t> prices(minutes + 1);
    for (std::size_t i = 1; i < prices.size(); ++i)
        prices[i] = prices[i - 1] + random.Around(move);
    // The random walk is bent so that it ends at the day's close, and clamped to the day's range.
    const std::int64_t open = Steps(whole.Open), close = Steps(whole.Close);
    const std::int64_t high = Steps(whole.High), low = Steps(whole.Low);
    const std::int64_t miss = close - open - prices.back();
    const auto count = static_cast<std::int64_t>(minutes);
    for (std::int64_t i = 0; i < count; ++i) {
        std::int64_t& price = prices[static_cast<std::size_t>(i)];
        price = std::clamp(open + price + miss * i / count, low, high);
    }
    prices.back() = close;
    return prices;
}

std::int64_t CSimulatedMarket::VolumeOfMinute(TFeedDay day, std::int64_t dayVolume, std::size_t minute,
                                              std::size_t minutes) const
{
    const std::int64_t share = dayVolume / static_cast<std::int64_t>(minutes);
    // Each odd minute compensates the deviation of the even minute before it, so that the volumes add up to
    // the day's volume. A last even minute without a partner does not deviate.
    const std::size_t pair = minute / 2;
    std::int64_t deviation = 0;
    if (pair * 2 + 1 < minutes)
        deviation = CRandomNumbers(Key(day, ForMinutes) + pair).Around(share / 3);
    const std::int64_t rest =
        minute + 1 == minutes ? dayVolume - share * static_cast<std::int64_t>(minutes) : 0;
    return share + (minute % 2 == 0 ? deviation : -deviation) + rest;
}

std::size_t CSimulatedMarket::TickCount(std::size_t position) const
{
    return TradedMinuteCount(TickDays()[position]) * m_rules.TicksPerMinute;
}

std::span<const sFEED_TICK> CSimulatedMarket::Ticks(std::size_t position,
                                                    std::vector<sFEED_TICK>& scratch) const
{
    std::vector<sFEED_BAR> bars;
    const auto minutes =
        Minutes(position + static_cast<std::size_t>(m_rules.MinuteDays - m_rules.TickDays), bars);
    scratch.clear();
    for (const sFEED_BAR& minute : minutes)
        MakeTicks(minute, static_cast<std::uint32_t>(scratch.size()) + 1, scratch);
    return scratch;
}

void CSimulatedMarket::MakeTicks(const sFEED_BAR& minute, std::uint32_t firstId,
                                 std::vector<sFEED_TICK>& ticks) const
{
    const auto count = static_cast<std::int64_t>(m_rules.TicksPerMinute);
    CRandomNumbers random(m_key ^ MixBits(static_cast<std::uint64_t>(minute.Stamp) * 8 + ForTicks));
    const std::int64_t high = Steps(minute.High), low = Steps(minute.Low);
    // The two ticks at the extremes are adjacent and lie between the first tick and the last.
    const std::int64_t extremeAt = 1 + random.Below(static_cast<std::uint64_t>(count - 3));
    const bool highFirst = random.Below(2) == 0;
    const std::int64_t slot = MsPerMinute / count;
    const std::int64_t share = minute.Volume / count;
    std::int64_t total = minute.TotalVolume - minute.Volume, lent = 0;
    for (std::int64_t i = 0; i < count; ++i) {
        std::int64_t price = low + random.Below(static_cast<std::uint64_t>(high - low) + 1);
        if (i == extremeAt || i == extremeAt + 1)
            price = (i == extremeAt) == highFirst ? high : low;
        if (i == 0)
            price = Steps(minute.Open);
        if (i == count - 1)
            price = Steps(minute.Close);
        lent = i % 2 == 0 ? (i + 1 < count ? random.Around(share / 2) : 0) : -lent;

        sFEED_TICK tick;
        tick.Time = minute.Stamp - MsPerMinute + i * slot + random.Below(static_cast<std::uint64_t>(slot));
        tick.Last = Price(price);
        tick.Bid = Price(price - 1);
        tick.Ask = Price(price + 1);
        tick.Size =
            static_cast<std::uint32_t>(share + lent + (i == count - 1 ? minute.Volume - share * count : 0));
        tick.TotalVolume = total += tick.Size;
        tick.TickId = firstId + static_cast<std::uint32_t>(i);
        const bool shapesTheBar = i == 0 || i == count - 1 || i == extremeAt || i == extremeAt + 1;
        if (m_rules.ExtendedPerMille > 0 && !shapesTheBar && random.Below(1000) < m_rules.ExtendedPerMille)
            tick.Basis = random.Below(4) == 0 ? 'O' : 'E';
        ticks.push_back(tick);
    }
}

} // namespace zantroq::feed
