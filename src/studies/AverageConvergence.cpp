#include "studies/AverageConvergence.h"

#include "studies/Hole.h"
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

// Computes from the start of the series. Advances with the requested index, because the values of an index
// follow in one step from the values of the index before.
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
        m_sum = Macd; // the first sum of the signal has this term and up to a period of further ones
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
    std::int64_t m_next = 0; // next index to include; 0 before the start averages are computed
    double m_sum = 0;
};

// Continues from `state`, which must belong to index from - 1, and leaves it at to - 1.
void Continue(const CPriceBlock& close, std::int64_t from, std::int64_t to, const sFactors& k,
              sMACDRunningState& state, double* __restrict macd, double* __restrict signal)
{
    double emaShort = state.EmaShort, emaLong = state.EmaLong, smoothed = state.Signal;
    for (std::int64_t i = from; i < to; ++i) {
        const double c = close[i];
        emaShort = (c - emaShort) * k.Short + emaShort;
        emaLong = (c - emaLong) * k.Long + emaLong;
        const double difference = emaShort - emaLong;
        smoothed = (difference - smoothed) * k.Signal + smoothed;
        macd[i - from] = difference;
        signal[i - from] = smoothed;
    }
    if (from < to)
        state = {static_cast<std::int32_t>(to - 1), emaShort, emaLong, smoothed};
}

void ComputePiece(const IPriceSource& prices, std::int64_t index, int count, const sMACDPeriods& periods,
                  sMACDRunningState& state, double* macd, double* signal)
{
    const std::int64_t end = index + count;
    const CPriceBlock close(prices, &IPriceSource::ReadClose, index - 1 == state.Index ? index : 0, end);
    CFullMACD full(close, periods);
    std::int64_t i = index;
    for (; i < end && i - 1 != state.Index; ++i) {
        if (!full.HasMACD(i)) {
            macd[i - index] = signal[i - index] = StudyHole;
            continue;
        }
        full.MoveTo(i);
        macd[i - index] = full.Macd;
        signal[i - index] = full.HasSignal(i) ? full.Signal : StudyHole;
        if (full.IsPastSeed(i))
            state = {static_cast<std::int32_t>(i), full.EmaShort, full.EmaLong, full.Signal};
    }
    Continue(close, i, end, sFactors(periods), state, macd + (i - index), signal + (i - index));
}

} // namespace

void ComputeMACD(const IPriceSource& prices, std::int64_t index, int count, const sMACDPeriods& periods,
                 sMACDRunningState& state, double* macd, double* signal)
{
    if (periods.Short < 1 || periods.Long < 1 || periods.Signal < 1) {
        std::fill_n(macd, count, StudyHole);
        std::fill_n(signal, count, StudyHole);
        return;
    }
    InPieces(count, 0, [&](int offset, int length) {
        ComputePiece(prices, index + offset, length, periods, state, macd + offset, signal + offset);
    });
}

} // namespace zantroq
