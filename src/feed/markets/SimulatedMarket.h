// A generated market for a symbol whose name begins with "SIM.". Days are a random walk, generated once in
// steps of work. The minutes of a day and the ticks of a minute are generated on demand from the larger bar,
// so that ticks add up to their minute and minutes add up to their day exactly. The same seed and name give
// the same market on every machine.
//
// Each market trades 09:30 to 16:00 on weekdays and ends on Wednesday 12 June 2024 at 13:00:00, during a
// session, so that live trades continue on the same day. Used on one thread.
#pragma once

#include "feed/markets/MarketSource.h"

#include <cstdint>
#include <string_view>

namespace zantroq::feed {

// How one simulated market behaves. Price amounts are in price steps.
struct sSIMULATION
{
    std::string_view Name, Description;
    unsigned Decimals = 2;
    std::int64_t Step = 1; // one price step in units of the last decimal
    int DisplayCode = 12;
    std::int64_t BasePrice = 10000;
    std::int64_t DayMove = 60;     // spread of a day's close around its open
    std::int64_t NightMove = 10;   // spread of an open around the close before
    int Days = 2600;               // weekdays of daily history
    int MinuteDays = 60;           // number of newest days that have minutes
    int TickDays = 10;             // number of newest days that have ticks
    unsigned TicksPerMinute = 12;  // at least 4
    unsigned MinuteVolume = 3000;  // average; at least 10 a tick
    unsigned MissingPerMille = 0;  // share of minutes, and of days, without any trade
    unsigned ExtendedPerMille = 0; // share of ticks that are extended ("E") or other ("O") trades
};

inline constexpr std::string_view SimulatedPrefix = "SIM.";

// The named simulations, in alphabetical order.
std::span<const sSIMULATION> NamedSimulations();
// The simulation of a symbol: one of the named ones, or a plain one for any other name.
const sSIMULATION& SimulationOf(std::string_view symbol);

class CRandomNumbers;

class CSimulatedMarket : public IMarketSource
{
public:
    CSimulatedMarket(std::string_view symbol, std::uint64_t seed);

    bool Prepare(CWorkSlice& slice) const override;
    bool IsSimulated() const override { return true; }
    unsigned Decimals() const override { return m_rules.Decimals; }
    int DisplayCode() const override { return m_rules.DisplayCode; }

    std::span<const TFeedDay> TickDays() const override;
    std::size_t TickCount(std::size_t position) const override;
    std::span<const sFEED_TICK> Ticks(std::size_t position, std::vector<sFEED_TICK>& scratch) const override;
    std::span<const TFeedDay> MinuteDays() const override;
    std::span<const sFEED_BAR> Minutes(std::size_t position, std::vector<sFEED_BAR>& scratch) const override;
    std::span<const sFEED_BAR> Daily() const override;

private:
    void MakeAll() const;
    // Adds the day before the oldest day so far, unless the market was closed on that day.
    void AddOlderDay() const;
    void AddDailyBar(TFeedDay day) const;
    sPRICE Price(std::int64_t steps) const { return MakePrice(steps * m_rules.Step, m_rules.Decimals); }
    std::int64_t Steps(sPRICE price) const { return price.Mantissa / m_rules.Step; }
    // The minutes + 1 prices between the minutes of a day, in price steps: from the day's open to its close.
    std::vector<std::int64_t> MinutePrices(const sFEED_BAR& whole, std::int64_t move, std::size_t minutes,
                                           CRandomNumbers& random) const;
    // The volume of the traded minute with index `minute`, of `minutes` in all.
    std::int64_t VolumeOfMinute(TFeedDay day, std::int64_t dayVolume, std::size_t minute,
                                std::size_t minutes) const;
    // The minutes of a day that have trades, counted from 09:30.
    void TradedMinutes(TFeedDay day, std::vector<int>& minutes) const;
    std::size_t TradedMinuteCount(TFeedDay day) const;
    std::uint64_t Key(TFeedDay day, std::uint64_t what) const;
    void MakeTicks(const sFEED_BAR& minute, std::uint32_t firstId, std::vector<sFEED_TICK>& ticks) const;

    const sSIMULATION& m_rules;
    const std::uint64_t m_key;
    // Constant after Prepare: the days, generated from newest to oldest and then reversed, and a bar for each
    // day.
    mutable std::vector<TFeedDay> m_days;
    mutable std::vector<sFEED_BAR> m_daily;
    mutable TFeedDay m_nextDay;
    mutable bool m_daysAscend = false;
    mutable std::int64_t m_close; // close of the newest bar so far, in price steps
};

} // namespace zantroq::feed
