// The stream of trades that follows the last recorded point of a market: either simulated (a random walk from
// the last price) or the newest recorded day of ticks, replayed after the last point. The stream knows market
// time only; its caller decides when to show a trade. Two streams of the same symbol and seed are identical.
// Feed thread only.
#pragma once

#include "feed/markets/MarketSource.h"
#include "feed/markets/RandomNumbers.h"
#include "feed/protocol/LiveQuote.h"

#include <string_view>

namespace zantroq::feed {

enum class LiveManner
{
    Silent,
    Invented,
    Replayed
};

class CLiveTrades
{
public:
    // Reads what it needs from the market; the market need not outlive the constructor.
    CLiveTrades(const IMarketSource& market, std::string_view symbol, std::uint64_t seed, LiveManner manner);

    // The current state; at first the last recorded point.
    const sLIVE_QUOTE& Quote() const { return m_quote; }
    // Sets `time` to the time of the next line: milliseconds of open market from an arbitrary origin, later
    // than the line before. The hours between two sessions of simulated trades are left out. Returns false if
    // no line follows.
    bool NextTime(TFeedTime& time) const;
    // Advances to the next line.
    void Advance();

private:
    void StartAtLastPoint(const IMarketSource& market);
    void PlanNext();
    void InventNext();
    void InventQuote(sPRICE price);
    void BeginDay(TFeedDay day);
    // `basis` is the kind of the trade: C, E or O.
    void Trade(sPRICE price, std::uint32_t size, char basis);

    const LiveManner m_manner;
    CRandomNumbers m_random;
    sLIVE_QUOTE m_quote;
    TFeedTime m_clock = 0; // market time of the last line
    TFeedTime m_next = 0;
    TFeedTime m_closed = 0; // total time between sessions skipped so far
    bool m_ended = false;
    TFeedDay m_day = 0;            // trading day of the day's open, high, low and volume
    std::optional<sPRICE> m_close; // newest regular price
    std::int64_t m_step = 1, m_base = 0;
    bool m_still = false; // a simulation whose price never changes
    // Replay: the newest recorded day, the next tick in it, and the shift from its times to times after the
    // last point.
    std::vector<sFEED_TICK> m_ticks;
    std::size_t m_tick = 0;
    TFeedTime m_shift = 0;
};

} // namespace zantroq::feed
