#include "studies/StochasticArithmetic.h"

#include "studies/Hole.h"
#include "studies/StudyArrays.h"
#include "studies/WindowArithmetic.h"

#include <algorithm>

namespace zantroq {

namespace {

// One stage's values for the indices From up to, not including, To.
struct sStage
{
    sStage(std::int64_t from, std::int64_t to) : From(from), Values(to - from) {}
    double operator[](std::int64_t index) const { return Values[index - From]; }
    const double* At(std::int64_t index) const { return Values.Data() + (index - From); }
    std::int64_t From;
    CStudyArray<double> Values;
};

// The raw values of the indices from `from`, at least `period`, to `to` - 1.
sStage RawStage(const IPriceSource& prices, std::int64_t from, std::int64_t to, std::int64_t period)
{
    sStage raw(from, to);
    const std::int64_t count = raw.Values.Size();
    if (count == 0)
        return raw;
    CStudyArray<double> lowest(count), highest(count);
    {
        const CPriceBlock low(prices, &IPriceSource::ReadLow, from - period, to);
        LeastInWindows(low.At(from - period), count, period + 1, 1000000.0, lowest.Data());
    }
    {
        const CPriceBlock high(prices, &IPriceSource::ReadHigh, from - period, to);
        GreatestInWindows(high.At(from - period), count, period + 1, -1000000.0, highest.Data());
    }
    const CPriceBlock close(prices, &IPriceSource::ReadClose, from, to);
    const double* c = close.At(from);
    for (std::int64_t i = 0; i < count; ++i) {
        const double value = (c[i] - lowest[i]) / (highest[i] - lowest[i]) * 100;
        raw.Values[i] = lowest[i] == highest[i] ? 0.5 * 100 : value;
    }
    return raw;
}

// The plain average of the `period` values before each index, for the indices from `from` to `to` - 1.
sStage AverageBefore(const sStage& values, std::int64_t from, std::int64_t to, std::int64_t period)
{
    sStage average(from, to);
    if (average.Values.Size() == 0)
        return average;
    MeanWindows(values.At(from - period), average.Values.Size(), period, static_cast<double>(period),
                average.Values.Data());
    return average;
}

// %K of `index` is the value one before it once `average` has begun, else the value of the index itself.
void WriteStage(const sStage& values, const sStage& average, std::int64_t index, std::int64_t end, double* k,
                double* d)
{
    const std::int64_t seam = std::clamp(average.From, index, end);
    const std::int64_t begin = std::clamp(values.From, index, seam);
    std::fill_n(k, begin - index, StudyHole);
    std::fill_n(d, seam - index, StudyHole);
    for (std::int64_t i = begin; i < seam; ++i)
        k[i - index] = values[i] < 0 ? StudyHole : values[i];
    for (std::int64_t i = seam; i < end; ++i) {
        const double value = values[i - 1], smooth = average[i];
        k[i - index] = (smooth < 0) & (value < 0) ? StudyHole : value;
        d[i - index] = smooth < 0 ? StudyHole : smooth;
    }
}

void StochasticPiece(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period,
                     StochasticSpeed speed, double* k, double* d)
{
    const std::int64_t end = index + count, p = period;
    if (p < 1 || end <= p) {
        std::fill_n(k, count, StudyHole);
        std::fill_n(d, count, StudyHole);
        return;
    }
    // Each stage is needed for one period before the stage above it, and not before it begins.
    const auto begin = [&](std::int64_t stageStart, std::int64_t needed) {
        return std::clamp(needed, stageStart, std::max(stageStart, end));
    };
    if (speed == StochasticSpeed::Fast) {
        const std::int64_t averageFrom = begin(2 * p, index), rawFrom = begin(p, index - p);
        const sStage raw = RawStage(prices, rawFrom, std::max(end, rawFrom), p);
        const sStage fast = AverageBefore(raw, averageFrom, std::max(end, averageFrom), p);
        WriteStage(raw, fast, index, end, k, d);
        return;
    }
    const std::int64_t slowFrom = begin(4 * p, index), fastFrom = begin(2 * p, index - p),
                       rawFrom = begin(p, fastFrom - p);
    const sStage raw = RawStage(prices, rawFrom, std::max(end, rawFrom), p);
    const sStage fast = AverageBefore(raw, fastFrom, std::max(end, fastFrom), p);
    const sStage slow = AverageBefore(fast, slowFrom, std::max(end, slowFrom), p);
    WriteStage(fast, slow, index, end, k, d);
}

} // namespace

void ComputeStochastic(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period,
                       StochasticSpeed speed, double* k, double* d)
{
    InPieces(count, 4 * std::int64_t{period}, [&](int offset, int length) {
        StochasticPiece(prices, index + offset, length, period, speed, k + offset, d + offset);
    });
}

} // namespace zantroq
