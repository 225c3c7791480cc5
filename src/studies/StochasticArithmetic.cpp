#include "studies/StochasticArithmetic.h"

#include "studies/Hole.h"
#include "studies/StudyArrays.h"
#include "studies/WindowArithmetic.h"

#include <algorithm>

namespace zantroq {

namespace {

// The values of one stage for the indices From up to but not including an end; empty if the end is not above
// From.
struct sStage
{
    sStage(std::int64_t from, std::int64_t to) : From(from), Values(to - from) {}
    double operator[](std::int64_t index) const { return Values[index - From]; }
    const double* At(std::int64_t index) const { return Values.Data() + (index - From); }
    std::int64_t From;
    CStudyArray<double> Values;
};

// Fills in the raw values of a stage, whose indices are at least `period`.
void FillRaw(const IPriceSource& prices, std::int64_t period, sStage& raw)
{
    const std::int64_t count = raw.Values.Size(), from = raw.From, to = from + count;
    if (count == 0)
        return;
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
}

// Fills in the plain average of the `period` values before each index of a stage.
void FillAverage(const sStage& values, std::int64_t period, sStage& average)
{
    if (average.Values.Size() > 0)
        MeanWindows(values.At(average.From - period), average.Values.Size(), period,
                    static_cast<double>(period), average.Values.Data());
}

// %K is the value of the index before once `average` has begun, otherwise the value of the index itself.
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
        k[i - index] = ((smooth < 0) & (value < 0)) ? StudyHole : value;
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
    // Each stage needs the stage below it for one more period, but not before that stage begins.
    const auto begin = [&](std::int64_t stageStart, std::int64_t needed) {
        return std::clamp(needed, stageStart, std::max(stageStart, end));
    };
    if (speed == StochasticSpeed::Fast) {
        const std::int64_t averageFrom = begin(2 * p, index), rawFrom = begin(p, index - p);
        sStage raw(rawFrom, end), fast(averageFrom, end);
        FillRaw(prices, p, raw);
        FillAverage(raw, p, fast);
        WriteStage(raw, fast, index, end, k, d);
        return;
    }
    const std::int64_t slowFrom = begin(4 * p, index), fastFrom = begin(2 * p, index - p),
                       rawFrom = begin(p, fastFrom - p);
    sStage raw(rawFrom, end), fast(fastFrom, end), slow(slowFrom, end);
    FillRaw(prices, p, raw);
    FillAverage(raw, p, fast);
    FillAverage(fast, p, slow);
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
