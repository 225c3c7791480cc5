#include "studies/DirectionalIndex.h"

#include "platform/DoublePair.h"
#include "studies/Hole.h"
#include "studies/StudyArrays.h"

#include <algorithm>
#include <cmath>

namespace zantroq {

namespace {

struct sMoves
{
    double TrueRange, Plus, Minus;
};

// Absolute differences: falling highs count as upward movement.
DoublePair Magnitude(const DoublePair& change)
{
    return DoublePair{std::fabs(change[0]), std::fabs(change[1])};
}

// Of the moves of high and low, the smaller counts as 0, and both count as 0 if they are equal.
DoublePair LargerMove(const DoublePair& moves)
{
    const DoublePair other{moves[1], moves[0]}, none{};
    return moves <= other ? none : moves;
}

class CBars
{
public:
    CBars(const IPriceSource& prices, std::int64_t from, std::int64_t to)
        : m_high(prices, &IPriceSource::ReadHigh, from, to),
          m_low(prices, &IPriceSource::ReadLow, from, to),
          m_close(prices, &IPriceSource::ReadClose, from, to)
    {
    }

    sMoves MovesAt(std::int64_t j) const
    {
        const DoublePair moves = LargerMove(Magnitude(Ends(j) - Ends(j - 1)));
        return {TrueRange(j), moves[0], moves[1]};
    }

    double TrueRange(std::int64_t j) const
    {
        const double high = m_high[j], low = m_low[j], closeBefore = m_close[j - 1];
        double range = std::fabs(high - low);
        const double up = std::fabs(closeBefore - high), down = std::fabs(closeBefore - low);
        range = up > range ? up : range;
        return down > range ? down : range;
    }

    // High and low.
    DoublePair Ends(std::int64_t j) const { return DoublePair{m_high[j], m_low[j]}; }

private:
    CPriceBlock m_high, m_low, m_close;
};

struct sDirection
{
    double AvgTR = 0, AvgPlus = 0, AvgMinus = 0, Adx = 0, PlusDI = 0, MinusDI = 0;

    void Step(const sMoves& moves, double k)
    {
        AvgTR = (moves.TrueRange - AvgTR) * k + AvgTR;
        AvgPlus = (moves.Plus - AvgPlus) * k + AvgPlus;
        AvgMinus = (moves.Minus - AvgMinus) * k + AvgMinus;
        TakeIndicators();
    }
    void TakeIndicators()
    {
        PlusDI = AvgPlus * 100 / AvgTR;
        MinusDI = AvgMinus * 100 / AvgTR;
    }
    double DX() const { return std::fabs((PlusDI - MinusDI) * 100 / (MinusDI + PlusDI)); }
    void SmoothADX(double k) { Adx = (DX() - Adx) * k + Adx; }
};

// Computes from the start of the series. Advances with the requested index, because the values of an index
// follow in one step from the values of the index before.
class CFullADX
{
public:
    CFullADX(const CBars& bars, std::int64_t period)
        : m_bars(bars), m_period(period), m_k(1.0 / static_cast<double>(period))
    {
    }

    // Below twice the period, stops one point before the index.
    void MoveTo(std::int64_t index)
    {
        if (m_next == 0)
            SeedAverages();
        const std::int64_t seedEnd = 2 * m_period, last = index < seedEnd ? index - 1 : index;
        for (; m_next <= last && m_next <= seedEnd; ++m_next) {
            Now.Step(m_bars.MovesAt(m_next), m_k);
            m_sum += Now.DX();
            if (m_next == seedEnd)
                Now.Adx = m_sum / static_cast<double>(m_period);
        }
        for (; m_next <= last; ++m_next) {
            Now.Step(m_bars.MovesAt(m_next), m_k);
            Now.SmoothADX(m_k);
        }
    }
    sDirection Now;

private:
    void SeedAverages()
    {
        for (std::int64_t j = 1; j <= m_period; ++j) {
            const sMoves moves = m_bars.MovesAt(j);
            Now.AvgTR += moves.TrueRange;
            Now.AvgPlus += moves.Plus;
            Now.AvgMinus += moves.Minus;
        }
        const auto divisor = static_cast<double>(m_period);
        Now.AvgTR /= divisor;
        Now.AvgPlus /= divisor;
        Now.AvgMinus /= divisor;
        Now.TakeIndicators();
        m_next = m_period + 1;
    }

    const CBars& m_bars;
    std::int64_t m_period;
    double m_k;
    std::int64_t m_next = 0; // next index to include; 0 before the start averages are computed
    double m_sum = 0;
};

// Continues from `state`, which must belong to index from - 1, and leaves it at to - 1. Both directions
// are computed in one vector, with one division.
void Continue(const CBars& bars, std::int64_t from, std::int64_t to, double k, sADXRunningState& state,
              double* __restrict plusDI, double* __restrict minusDI, double* __restrict adx)
{
    if (from >= to)
        return;
    DoublePair average{state.AvgPlus, state.AvgMinus}, before = bars.Ends(from - 1);
    sDirection now{state.AvgTR, 0, 0, state.Adx, 0, 0};
    for (std::int64_t i = from; i < to; ++i) {
        const DoublePair ends = bars.Ends(i), change = Magnitude(ends - before);
        before = ends;
        average = (LargerMove(change) - average) * k + average;
        now.AvgTR = (bars.TrueRange(i) - now.AvgTR) * k + now.AvgTR;
        const DoublePair indicators = average * 100 / now.AvgTR;
        now.PlusDI = indicators[0];
        now.MinusDI = indicators[1];
        now.SmoothADX(k);
        plusDI[i - from] = now.PlusDI;
        minusDI[i - from] = now.MinusDI;
        adx[i - from] = now.Adx;
    }
    state = {static_cast<std::int32_t>(to - 1), now.AvgTR, average[0], average[1], now.Adx};
}

void ComputePiece(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period,
                  sADXRunningState& state, double* plusDI, double* minusDI, double* adx)
{
    const std::int64_t end = std::min<std::int64_t>(index + count, std::int64_t{prices.Count()} + 2);
    const std::int64_t from = std::max<std::int64_t>(period, index), seedEnd = 2 * std::int64_t{period};
    const auto leave = [&](std::int64_t begin, std::int64_t limit) {
        for (double* line : {plusDI, minusDI, adx})
            std::fill(line + (begin - index), line + (limit - index), StudyHole);
    };
    if (from >= end) {
        leave(index, index + count);
        return;
    }
    leave(index, from);
    leave(end, index + count);
    const CBars bars(prices, from - 1 == state.Index ? from - 1 : 0, end);
    CFullADX full(bars, period);
    std::int64_t i = from;
    for (; i < end && i - 1 != state.Index; ++i) {
        full.MoveTo(i);
        plusDI[i - index] = full.Now.PlusDI;
        minusDI[i - index] = full.Now.MinusDI;
        adx[i - index] = i >= seedEnd ? full.Now.Adx : StudyHole;
        if (i > seedEnd)
            state = {static_cast<std::int32_t>(i), full.Now.AvgTR, full.Now.AvgPlus, full.Now.AvgMinus,
                     full.Now.Adx};
    }
    Continue(bars, i, end, 1.0 / static_cast<double>(period), state, plusDI + (i - index),
             minusDI + (i - index), adx + (i - index));
}

} // namespace

void ComputeADX(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period,
                sADXRunningState& state, double* plusDI, double* minusDI, double* adx)
{
    if (period < 1) {
        for (double* line : {plusDI, minusDI, adx})
            std::fill_n(line, count, StudyHole);
        return;
    }
    InPieces(count, 0, [&](int offset, int length) {
        ComputePiece(prices, index + offset, length, period, state, plusDI + offset, minusDI + offset,
                     adx + offset);
    });
}

} // namespace zantroq
