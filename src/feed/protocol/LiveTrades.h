// The trades that follow on a market's last recorded point, one after the other. Either invented (a random
// walk from the last price) or the newest recorded day of ticks played again behind the last point. Knows
// market time only: who shows the trades decides when. Used on the feed's thread; two streams of the same
// symbol and seed give the same trades.
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
    // The market is looked at here and needed no more afterwards.
    CLiveTrades(const IMarketSource& market, std::string_view symbol, std::uint64_t seed, LiveManner manner);

    // Where the market stands: at first at its last recorded point.
    const sLIVE_QUOTE& Quote() const { return m_quote; }
    // When the next line comes, in milliseconds of open market from any origin, later than the line before:
    // the hours between two sessions of invented trades are left out. False when none will come.
    bool NextTime(TFeedTime& time) const;
    // Moves on to the next line.
    void Advance();

private:
    void StartAtLastPoint(const IMarketSource& market);
    void PlanNext();
    void InventNext();
    void InventQuote(sPRICE price);
    void BeginDay(TFeedDay day);
    // `basis` is that of a trade.
    void Trade(sPRICE price, std::uint32_t size, char basis);

    const LiveManner m_manner;
    CRandomNumbers m_random;
    sLIVE_QUOTE m_quote;
    TFeedTime m_clock = 0; // of the last line
    TFeedTime m_next = 0;
    TFeedTime m_closed = 0; // time between sessions, passed over so far
    bool m_ended = false;
    TFeedDay m_day = 0;            // the trading day that the day's values belong to
    std::optional<sPRICE> m_close; // the newest regular price
    std::int64_t m_step = 1, m_base = 0;
    bool m_still = false; // a simulation of one price for ever
    // Replay: the newest recorded day and the way from its times to those behind the last point.
    std::vector<sFEED_TICK> m_ticks;
    std::size_t m_tick = 0;
    TFeedTime m_shift = 0;
};

} // namespace zantroq::feed
