// A market read from recordings. Constructed on one thread, constant afterwards; Daily builds its bars at the
// first call, safely from any thread.
#pragma once

#include "feed/markets/MarketSource.h"

#include <mutex>

namespace zantroq::feed {

class CRecordedMarket : public IMarketSource
{
public:
    // Records in time order. At least one of the three must not be empty.
    CRecordedMarket(std::vector<sFEED_TICK> ticks, std::vector<sFEED_BAR> minutes,
                    std::vector<sFEED_BAR> daily);

    bool IsSimulated() const override { return false; }
    unsigned Decimals() const override { return m_decimals; }
    int DisplayCode() const override { return 10 + static_cast<int>(m_decimals); }

    std::span<const TFeedDay> TickDays() const override { return m_tickDays.Days; }
    std::size_t TickCount(std::size_t position) const override { return m_tickDays.Count(position); }
    std::span<const sFEED_TICK> Ticks(std::size_t position, std::vector<sFEED_TICK>&) const override
    {
        return std::span(m_ticks).subspan(m_tickDays.Starts[position], m_tickDays.Count(position));
    }
    std::span<const TFeedDay> MinuteDays() const override { return m_minuteDays.Days; }
    std::span<const sFEED_BAR> Minutes(std::size_t position, std::vector<sFEED_BAR>&) const override
    {
        return std::span(m_minutes).subspan(m_minuteDays.Starts[position], m_minuteDays.Count(position));
    }
    // The recorded daily bars; if there are none, the bars built from finer records at the first call.
    std::span<const sFEED_BAR> Daily() const override;

private:
    // The days, and the index of each day's first record; the last element of Starts is the number of
    // records.
    struct sDAYS
    {
        std::vector<TFeedDay> Days;
        std::vector<std::size_t> Starts;
        std::size_t Count(std::size_t position) const { return Starts[position + 1] - Starts[position]; }
        void Add(TFeedDay day, std::size_t start);
    };

    std::vector<sFEED_TICK> m_ticks;
    std::vector<sFEED_BAR> m_minutes;
    sDAYS m_tickDays, m_minuteDays;
    unsigned m_decimals = 2;
    mutable std::once_flag m_dailyBuilt;
    mutable std::vector<sFEED_BAR> m_daily;
};

} // namespace zantroq::feed
