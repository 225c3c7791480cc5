#include "feed/protocol/LiveTrades.h"

#include "feed/protocol/LastPoint.h"

#include <algorithm>

namespace zantroq::feed {
namespace {

// `time` itself, or the next opening if the market is closed then.
TFeedTime OpenTime(TFeedTime time)
{
    const TFeedDay day = DayOf(time);
    const TFeedTime opening = StartOfDay(day) + OpeningTime;
    if (WeekdayOf(day) > 4 || time >= StartOfDay(day) + ClosingTime)
        return StartOfDay(NextWeekday(day)) + OpeningTime;
    return std::max(time, opening);
}

} // namespace

CLiveTrades::CLiveTrades(const IMarketSource& market, std::string_view symbol, std::uint64_t seed,
                         LiveManner manner)
    : m_manner(manner), m_random(HashText(symbol, seed + 1))
{
    StartAtLastPoint(market);
    PlanNext();
}

void CLiveTrades::StartAtLastPoint(const IMarketSource& market)
{
    const sLAST_POINT point = LastPointOf(market);
    m_quote = point.Quote;
    m_day = point.Day;
    m_clock = point.Clock;
    m_close = point.Close;
    m_still = market.IsSimulated() && m_quote.Open && PriceValue(*m_quote.High) == PriceValue(*m_quote.Low);
    const auto tickDays = market.TickDays();
    if (m_manner == LiveManner::Replayed && !tickDays.empty()) {
        std::vector<sFEED_TICK> scratch;
        const auto ticks = market.Ticks(tickDays.size() - 1, scratch);
        m_ticks.assign(ticks.begin(), ticks.end());
        m_shift = m_clock + 1 - m_ticks.front().Time;
    }
    const sPRICE last = WithDecimals(m_quote.Last.value_or(sPRICE{}), m_quote.Decimals);
    if (m_quote.Last)
        m_quote.Last = last;
    m_base = last.Mantissa;
    // About two hundredths of a percent; for symbols in fractions at least the fraction itself.
    const std::int64_t fraction =
        m_quote.DisplayCode >= 1 && m_quote.DisplayCode <= 8
            ? WithDecimals(MakePrice(1, 0), m_quote.Decimals).Mantissa >> m_quote.DisplayCode
            : 0;
    m_step = fraction > 0 ? fraction : std::max<std::int64_t>(1, std::abs(m_base) / 5000);
    if (m_manner == LiveManner::Invented && m_quote.Last) {
        InventQuote(last);
        m_quote.BidSize = m_quote.AskSize = 100;
    }
}

bool CLiveTrades::NextTime(TFeedTime& time) const
{
    time = m_next - m_closed;
    return !m_ended;
}

void CLiveTrades::PlanNext()
{
    // A symbol that never traded has no price to continue from.
    if (m_manner == LiveManner::Invented && m_quote.Last) {
        const TFeedTime next = m_clock + 100 + m_random.Below(900);
        m_next = OpenTime(next);
        m_closed += m_next - next;
    } else if (m_manner == LiveManner::Replayed && m_tick < m_ticks.size())
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
        if (IsTrade(tick))
            Trade(tick.Last, tick.Size, tick.Basis);
        else
            m_quote.Contents = "ba";
    }
    PlanNext();
}

void CLiveTrades::InventQuote(sPRICE price)
{
    m_quote.Bid = MakePrice(price.Mantissa - m_step, price.Decimals);
    m_quote.Ask = MakePrice(price.Mantissa + m_step, price.Decimals);
}

void CLiveTrades::InventNext()
{
    const std::int64_t last = m_quote.Last->Mantissa;
    const auto decimals = static_cast<unsigned>(m_quote.Last->Decimals);
    const std::int64_t pull = std::clamp<std::int64_t>((m_base - last) / (50 * m_step), -1, 1);
    const std::int64_t move =
        m_still ? 0 : (m_random.Around(2) + (m_random.Below(4) == 0 ? pull : 0)) * m_step;
    const std::int64_t price = last + move > m_step ? last + move : last;
    const std::uint32_t kind = m_random.Below(100);
    m_quote.BidSize = 100 * (1 + m_random.Below(20));
    m_quote.AskSize = 100 * (1 + m_random.Below(20));
    const std::uint32_t size = 10 * (1 + m_random.Below(50));
    InventQuote(MakePrice(price, decimals));
    if (kind < 15)
        m_quote.Contents = "ba";
    else
        Trade(MakePrice(price, decimals), size, kind < 18 ? 'E' : kind < 20 ? 'O' : 'C');
}

void CLiveTrades::BeginDay(TFeedDay day)
{
    m_quote.PreviousClose = m_close;
    m_quote.Open = m_quote.High = m_quote.Low = std::nullopt;
    m_quote.TotalVolume = 0;
    m_quote.OpenInterest = 0;
    m_quote.TickId = 0;
    m_day = day;
}

void CLiveTrades::Trade(sPRICE price, std::uint32_t size, char basis)
{
    if (const TFeedDay day = DayOf(m_clock); day != m_day)
        BeginDay(day);
    m_quote.Time = m_clock;
    m_quote.Last = price;
    m_quote.Basis = basis;
    m_quote.Size = size;
    m_quote.TotalVolume += size;
    ++m_quote.TickId;
    // Extended and other trades change the volume, not the day's regular prices.
    if (basis != 'C') {
        m_quote.Contents = basis == 'E' ? "Ebav" : "Obav";
        return;
    }
    if (!m_quote.Open)
        m_quote.Contents = "Cbaohlv";
    else if (IsBelow(*m_quote.High, price))
        m_quote.Contents = "Cbahv";
    else
        m_quote.Contents = IsBelow(price, *m_quote.Low) ? "Cbalv" : "Cbav";
    m_quote.TakeRegularPrice(price);
    m_close = price;
}

} // namespace zantroq::feed
