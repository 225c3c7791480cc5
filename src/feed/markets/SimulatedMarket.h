// An invented market for a symbol whose name begins with "SIM.". Nothing is stored: days are a random walk
// made once, in steps; the minutes of a day and the ticks of a minute are made on demand, from the top
// down, so that the ticks of a minute add up to its bar and the minutes of a day to its bar, exactly. The
// same seed and name give the same market everywhere.
//
// Each market trades 09:30 to 16:00 on weekdays and ends on Wednesday 12 June 2024 at 13:00:00, in the middle
// of a session, so that live trades go on within the same day.
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
    int MinuteDays = 60;           // the newest so many days have minutes
    int TickDays = 10;             // and the newest so many ticks
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
    // The day before the oldest one made so far, unless the market was closed on it.
    void AddOlderDay() const;
    void AddDailyBar(TFeedDay day) const;
    sPRICE Price(std::int64_t steps) const { return MakePrice(steps * m_rules.Step, m_rules.Decimals); }
    std::int64_t Steps(sPRICE price) const { return price.Mantissa / m_rules.Step; }
    // The minutes of a day that have trades, counted from 09:30.
    void TradedMinutes(TFeedDay day, std::vector<int>& minutes) const;
    std::size_t TradedMinuteCount(TFeedDay day) const;
    std::uint64_t Key(TFeedDay day, std::uint64_t what) const;
    void MakeTicks(const sFEED_BAR& minute, std::uint32_t firstId, std::vector<sFEED_TICK>& ticks) const;

    const sSIMULATION& m_rules;
    const std::uint64_t m_key;
    // Constant once all are made: the days, found from the newest to the oldest and then turned round, and a
    // bar for each of them.
    mutable std::vector<TFeedDay> m_days;
    mutable std::vector<sFEED_BAR> m_daily;
    mutable TFeedDay m_nextDay;
    mutable bool m_daysAscend = false;
    mutable std::int64_t m_close; // of the newest bar made so far, in price steps
};

} // namespace zantroq::feed
