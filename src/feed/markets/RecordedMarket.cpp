#include "feed/markets/RecordedMarket.h"

#include "feed/markets/BarBuilder.h"

#include <algorithm>

namespace zantroq::feed {
namespace {

constexpr unsigned LeastDecimals = 2, MostDecimals = 8;

unsigned DecimalsOf(const sFEED_BAR& bar)
{
    return std::max(std::max<unsigned>(bar.Open.Decimals, bar.High.Decimals),
                    std::max<unsigned>(bar.Low.Decimals, bar.Close.Decimals));
}

} // namespace

void CRecordedMarket::sDAYS::Add(TFeedDay day, std::size_t start)
{
    if (Days.empty() || Days.back() != day) {
        Days.push_back(day);
        Starts.push_back(start);
    }
}

CRecordedMarket::CRecordedMarket(std::vector<sFEED_TICK> ticks, std::vector<sFEED_BAR> minutes,
                                 std::vector<sFEED_BAR> daily)
    : m_ticks(std::move(ticks)), m_minutes(std::move(minutes)), m_daily(std::move(daily))
{
    unsigned decimals = LeastDecimals;
    for (std::size_t i = 0; i < m_ticks.size(); ++i) {
        m_tickDays.Add(DayOf(m_ticks[i].Time), i);
        decimals = std::max<unsigned>(decimals, m_ticks[i].Last.Decimals);
    }
    m_tickDays.Starts.push_back(m_ticks.size());

    std::int64_t total = 0;
    for (std::size_t i = 0; i < m_minutes.size(); ++i) {
        const TFeedDay day = DayOfBarEnd(m_minutes[i].Stamp);
        total = m_minuteDays.Days.empty() || m_minuteDays.Days.back() != day ? 0 : total;
        m_minuteDays.Add(day, i);
        m_minutes[i].TotalVolume = total += m_minutes[i].Volume;
        decimals = std::max(decimals, DecimalsOf(m_minutes[i]));
    }
    m_minuteDays.Starts.push_back(m_minutes.size());

    for (const sFEED_BAR& day : m_daily)
        decimals = std::max(decimals, DecimalsOf(day));
    m_decimals = std::min(decimals, MostDecimals);
}

std::span<const sFEED_BAR> CRecordedMarket::Daily() const
{
    std::call_once(m_dailyBuilt, [this] {
        if (m_daily.empty())
            m_daily = BuildDaily(*this);
    });
    return m_daily;
}

} // namespace zantroq::feed
