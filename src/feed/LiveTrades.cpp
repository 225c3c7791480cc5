#include "feed/LiveTrades.h"

#include <algorithm>

namespace zantroq::feed {
namespace {

constexpr TFeedTime OpeningTime = (9 * 60 + 30) * 60 * MsPerSecond;
constexpr TFeedTime ClosingTime = 16 * 3600 * MsPerSecond;
constexpr std::string_view SummaryContents = "Cbaohlcv";

} // namespace

CLiveTrades::CLiveTrades(const IMarketSource& market, std::string_view symbol, std::uint64_t seed,
                         LiveManner manner)
    : m_market(market), m_manner(manner), m_random(HashText(symbol, seed + 1))
{
    StartAtLastPoint();
    PlanNext();
}

void CLiveTrades::StartAtLastPoint()
{
    m_quote.DisplayCode = m_market.DisplayCode();
    m_quote.Decimals = m_market.Decimals();
    m_quote.Contents = SummaryContents;

    const auto daily = m_market.Daily();
    const auto minuteDays = m_market.MinuteDays();
    const auto tickDays = m_market.TickDays();
    if (!daily.empty()) {
        const sFEED_BAR& bar = daily.back();
        m_day = DayOf(bar.Stamp);
        m_quote.Time = StartOfDay(m_day) + ClosingTime;
        m_quote.Last = bar.Close;
        m_quote.Open = bar.Open;
        m_quote.High = bar.High;
        m_quote.Low = bar.Low;
        m_quote.TotalVolume = bar.Volume;
        m_quote.OpenInterest = bar.OpenInterest;
        m_quote.PreviousClose = daily.size() > 1 ? daily[daily.size() - 2].Close : bar.Close;
        // The next session begins on the next weekday, unless finer records below say where this one stands.
        m_clock = StartOfDay(NextWeekday(m_day)) + OpeningTime - 1;
    }
    bool fine = false;
    const auto standAt = [&](TFeedTime time, TFeedDay day, sPRICE last) {
        // Finer records that end days before the daily ones say nothing about where the market stands.
        if ((!daily.empty() && day < m_day) || (fine && time < m_quote.Time))
            return;
        fine = true;
        m_quote.Time = m_clock = time;
        m_quote.Last = last;
    };
    if (!minuteDays.empty()) {
        std::vector<sFEED_BAR> scratch;
        const sFEED_BAR bar = m_market.Minutes(minuteDays.size() - 1, scratch).back();
        standAt(bar.Stamp, minuteDays.back(), bar.Close);
    }
    if (!tickDays.empty()) {
        std::vector<sFEED_TICK> scratch;
        const auto ticks = m_market.Ticks(tickDays.size() - 1, scratch);
        standAt(ticks.back().Time, tickDays.back(), ticks.back().Last);
        m_quote.TickId = ticks.back().TickId;
        if (m_manner == LiveManner::Replayed) {
            m_ticks.assign(ticks.begin(), ticks.end());
            m_shift = m_clock + 1 - m_ticks.front().Time;
        }
    }
    m_quote.Last = WithDecimals(m_quote.Last, m_quote.Decimals);
    m_base = m_quote.Last.Mantissa;
    // About two hundredths of a percent, and for fractions the fraction itself.
    const std::int64_t fraction =
        m_quote.DisplayCode >= 1 && m_quote.DisplayCode <= 8
            ? WithDecimals(MakePrice(1, 0), m_quote.Decimals).Mantissa >> m_quote.DisplayCode
            : 0;
    m_step = fraction > 0 ? fraction : std::max<std::int64_t>(1, std::abs(m_base) / 5000);
    const auto decimals = static_cast<unsigned>(m_quote.Last.Decimals);
    m_quote.Bid = MakePrice(m_base - m_step, decimals);
    m_quote.Ask = MakePrice(m_base + m_step, decimals);
    m_quote.BidSize = m_quote.AskSize = 100;
}

bool CLiveTrades::NextTime(TFeedTime& time) const
{
    time = m_next;
    return !m_ended;
}

void CLiveTrades::PlanNext()
{
    if (m_manner == LiveManner::Invented)
        m_next = m_clock + 100 + m_random.Below(900);
    else if (m_manner == LiveManner::Replayed && m_tick < m_ticks.size())
        m_next = std::max(m_clock + 1, m_ticks[m_tick].Time + m_shift);
    else
        m_ended = true;
}

void CLiveTrades::Advance()
{
    m_clock = m_next;
    if (m_manner == LiveManner::Invented)
        InventNext();
    else {
        const sFEED_TICK& tick = m_ticks[m_tick++];
        m_quote.Bid = tick.Bid;
        m_quote.Ask = tick.Ask;
        Trade(tick.Last, tick.Size, tick.Basis);
    }
    PlanNext();
}

void CLiveTrades::InventNext()
{
    const std::int64_t last = m_quote.Last.Mantissa;
    const auto decimals = static_cast<unsigned>(m_quote.Last.Decimals);
    const bool still = m_market.IsSimulated() && PriceValue(m_quote.High) == PriceValue(m_quote.Low);
    const std::int64_t pull = std::clamp<std::int64_t>((m_base - last) / (50 * m_step), -1, 1);
    const std::int64_t move = still ? 0 : (m_random.Around(2) + (m_random.Below(4) == 0 ? pull : 0)) * m_step;
    const std::int64_t price = last + move > m_step ? last + move : last;
    const std::uint32_t kind = m_random.Below(100);
    m_quote.BidSize = 100 * (1 + m_random.Below(20));
    m_quote.AskSize = 100 * (1 + m_random.Below(20));
    const std::uint32_t size = 10 * (1 + m_random.Below(50));
    m_quote.Bid = MakePrice(price - m_step, decimals);
    m_quote.Ask = MakePrice(price + m_step, decimals);
    if (kind < 15)
        m_quote.Contents = "ba";
    else
        Trade(MakePrice(price, decimals), size, kind < 18 ? 'E' : kind < 20 ? 'O' : 'C');
}

void CLiveTrades::Trade(sPRICE price, std::uint32_t size, char basis)
{
    const TFeedDay day = DayOf(m_clock);
    const bool newDay = day != m_day;
    if (newDay) {
        m_quote.PreviousClose = m_quote.Last;
        m_quote.Open = m_quote.High = m_quote.Low = price;
        m_quote.TotalVolume = 0;
        m_quote.TickId = 0;
        m_day = day;
    }
    m_quote.Time = m_clock;
    m_quote.Last = price;
    m_quote.Size = size;
    m_quote.TotalVolume += size;
    ++m_quote.TickId;
    // Extended and other trades change the volume, not the day's regular prices.
    const bool higher = basis == 'C' && IsBelow(m_quote.High, price),
               lower = basis == 'C' && IsBelow(price, m_quote.Low);
    if (higher)
        m_quote.High = price;
    if (lower)
        m_quote.Low = price;
    if (basis == 'E')
        m_quote.Contents = "Ebav";
    else if (basis == 'O')
        m_quote.Contents = "Obav";
    else if (basis != 'C')
        m_quote.Contents = "ba";
    else
        m_quote.Contents = newDay ? "Cbaohlv" : higher ? "Cbahv" : lower ? "Cbalv" : "Cbav";
}

} // namespace zantroq::feed
