#include "studies/AverageConvergence.h"

#include "studies/StudyArrays.h"

#include <algorithm>

namespace zantroq {

namespace {

struct sFactors
{
    explicit sFactors(const sMACDPeriods& p)
        : Short(2 / (static_cast<double>(p.Short) + 1)),
          Long(2 / (static_cast<double>(p.Long) + 1)),
          Signal(2 / (static_cast<double>(p.Signal) + 1))
    {
    }
    double Short, Long, Signal;
};

// The computation from the start of the series. It moves on with the index asked for, since the values at one
// index are a step from those at the index before.
class CFullMACD
{
public:
    CFullMACD(const CPriceBlock& close, const sMACDPeriods& periods)
        : m_close(close),
          m_factors(periods),
          m_short(periods.Short),
          m_long(periods.Long),
          m_signalPeriod(periods.Signal)
    {
    }

    bool HasMACD(std::int64_t index) const { return index >= m_short - 1 && index >= m_long - 1; }
    bool HasSignal(std::int64_t index) const { return index > m_long; }
    bool IsPastSeed(std::int64_t index) const { return index >= m_long + m_signalPeriod; }

    void MoveTo(std::int64_t index)
    {
        if (m_next == 0)
            SeedAverages();
        if (!HasSignal(index))
            return;
        const std::int64_t seedEnd = m_long + m_signalPeriod;
        for (; m_next <= index && m_next < seedEnd; ++m_next) {
            Advance(m_next);
            m_sum += Macd;
            Signal = m_sum / static_cast<double>(m_signalPeriod);
        }
        for (; m_next <= index; ++m_next) {
            Advance(m_next);
            Signal = (Macd - Signal) * m_factors.Signal + Signal;
        }
    }

    double EmaShort = 0, EmaLong = 0, Macd = 0, Signal = 0;

private:
    void SeedAverages()
    {
        double sum = 0;
        for (std::int64_t j = 0; j < m_short; ++j)
            sum += m_close[j];
        EmaShort = sum / static_cast<double>(m_short);
        sum = 0;
        for (std::int64_t j = 0; j < m_long; ++j) {
            sum += m_close[j];
            if (j >= m_short)
                EmaShort = (m_close[j] - EmaShort) * m_factors.Short + EmaShort;
        }
        EmaLong = sum / static_cast<double>(m_long);
        Macd = EmaShort - EmaLong;
        m_sum = Macd; // the signal's seed holds this term and up to a period of further ones
        m_next = m_long;
    }

    void Advance(std::int64_t j)
    {
        EmaShort = (m_close[j] - EmaShort) * m_factors.Short + EmaShort;
        EmaLong = (m_close[j] - EmaLong) * m_factors.Long + EmaLong;
        Macd = EmaShort - EmaLong;
    }

    const CPriceBlock& m_close;
    sFactors m_factors;
    std::int64_t m_short, m_long, m_signalPeriod;
    std::int64_t m_next = 0; // the next index to take in; 0 before the seed
    double m_sum = 0;
};

} // namespace

void ComputeMACD(const IPriceSource& prices, std::int64_t index, int count, const sMACDPeriods& periods,
                 sMACDRunningState& state, double* macd, double* signal)
{
    if (periods.Short < 1 || periods.Long < 1 || periods.Signal < 1 || count <= 0)
        return;
    const std::int64_t end = index + count;
    const bool continues = index - 1 == state.Index;
    const CPriceBlock close(prices, &IPriceSource::ReadClose, continues ? index : 0, end);
    const sFactors factors(periods);
    CFullMACD full(close, periods);
    for (std::int64_t i = index; i < end; ++i) {
        if (i - 1 == state.Index) {
            const double c = close[i];
            const double emaShort = (c - state.EmaShort) * factors.Short + state.EmaShort;
            const double emaLong = (c - state.EmaLong) * factors.Long + state.EmaLong;
            const double difference = emaShort - emaLong;
            const double smoothed = (difference - state.Signal) * factors.Signal + state.Signal;
            state = {static_cast<std::int32_t>(i), emaShort, emaLong, smoothed};
            macd[i - index] = difference;
            signal[i - index] = smoothed;
            continue;
        }
        if (!full.HasMACD(i))
            continue;
        full.MoveTo(i);
        macd[i - index] = full.Macd;
        if (full.HasSignal(i))
            signal[i - index] = full.Signal;
        if (full.IsPastSeed(i))
            state = {static_cast<std::int32_t>(i), full.EmaShort, full.EmaLong, full.Signal};
    }
}

} // namespace zantroq
