#include "studies/RelativeStrength.h"

#include "studies/StudyArrays.h"

#include <algorithm>

namespace zantroq {

namespace {

constexpr double NoValue = -1;

struct sChange
{
    double Gain, Loss;
};

sChange ChangeAt(const CPriceBlock& close, std::int64_t j)
{
    const double d = close[j] - close[j - 1];
    return {d > 0 ? d : 0.0, d > 0 ? 0.0 : -d};
}

struct sAverages
{
    double Gain = 0, Loss = 0;
};

sAverages Seed(const CPriceBlock& close, std::int64_t period)
{
    sAverages sum;
    for (std::int64_t j = 1; j <= period; ++j) {
        const sChange change = ChangeAt(close, j);
        sum.Gain += change.Gain;
        sum.Loss += change.Loss;
    }
    const auto divisor = static_cast<double>(period);
    return {sum.Gain / divisor, sum.Loss / divisor};
}

// Not Wilder's smoothing: the old average cancels, so each average is the last change divided by the period.
// Keep the order of the terms; gain * k by itself rounds differently.
sAverages CatchUp(const CPriceBlock& close, std::int64_t period, std::int64_t n, sAverages average)
{
    const double k = 1.0 / static_cast<double>(period);
    for (std::int64_t j = period + 1; j <= n; ++j) {
        const sChange change = ChangeAt(close, j);
        average.Gain = (change.Gain * k + average.Gain) - average.Gain;
        average.Loss = (change.Loss * k + average.Loss) - average.Loss;
    }
    return average;
}

// Continues from `state`, which must belong to index from - 1, and leaves it at to - 1.
void Continue(const CPriceBlock& close, std::int64_t from, std::int64_t to, double k, sRSIRunningState& state,
              double* __restrict out)
{
    double avgGain = state.AvgGain, avgLoss = state.AvgLoss;
    for (std::int64_t n = from; n < to; ++n) {
        const sChange change = ChangeAt(close, n);
        avgGain = avgGain + (change.Gain - avgGain) * k;
        avgLoss = avgLoss + (change.Loss - avgLoss) * k;
        out[n - from] = 100 - 100 / (avgGain / avgLoss + 1);
    }
    if (from < to)
        state = {static_cast<std::int32_t>(to - 1), avgGain, avgLoss};
}

void ComputePiece(const IPriceSource& prices, std::int64_t position, int count, std::int32_t period,
                  sRSIRunningState& state, double* out)
{
    const std::int64_t first = position - 1, end = first + count, points = prices.Count();
    const std::int64_t from = std::clamp<std::int64_t>(period, first, end);
    const std::int64_t to = std::clamp<std::int64_t>(points + 1, from, end);
    std::fill_n(out, from - first, NoValue);
    std::fill_n(out + (to - first), end - to, NoValue);
    if (from == to)
        return;
    const CPriceBlock close(prices, &IPriceSource::ReadClose, from - 1 == state.Index ? from - 1 : 0, to);
    std::int64_t n = from;
    for (; n < to && n - 1 != state.Index; ++n) {
        sAverages average = Seed(close, period);
        if (n > std::int64_t{period} + 1) {
            average = CatchUp(close, period, n, average);
            state = {static_cast<std::int32_t>(n), average.Gain, average.Loss};
        }
        out[n - first] = 100 - 100 / (average.Gain / average.Loss + 1);
    }
    Continue(close, n, to, 1.0 / static_cast<double>(period), state, out + (n - first));
}

} // namespace

void ComputeRSI(const IPriceSource& prices, std::int64_t position, int count, std::int32_t period,
                sRSIRunningState& state, double* out)
{
    if (period < 1) {
        std::fill_n(out, count, NoValue);
        return;
    }
    InPieces(count, 0, [&](int offset, int length) {
        ComputePiece(prices, position + offset, length, period, state, out + offset);
    });
}

} // namespace zantroq
