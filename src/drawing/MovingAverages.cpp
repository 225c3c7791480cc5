#include "drawing/MovingAverages.h"

#include "platform/DoublePair.h"
#include "scene/HoleValue.h"

#include <algorithm>

namespace zantroq {

namespace {

// Fills `out` with holes before index `from` and returns the rest.
std::span<double> ValuesFrom(int from, int first, std::span<double> out)
{
    const int holes = std::clamp(from - first, 0, static_cast<int>(out.size()));
    std::fill_n(out.begin(), holes, HoleValue);
    return out.subspan(static_cast<std::size_t>(holes));
}

} // namespace

int FirstCloseNeeded(int first, int period)
{
    return static_cast<int>(
        std::clamp<long long>(static_cast<long long>(first) - period, 0, std::max(first, 0)));
}

void WindowMeans(const double* values, int length, std::span<double> means)
{
    const std::size_t count = means.size();
    const auto divisor = static_cast<double>(length);
    const DoublePair divisors{divisor, divisor};
    std::size_t k = 0;
    for (; k + PairBlock <= count; k += PairBlock) {
        DoublePair sum[PairsAtATime] = {};
        for (int j = 0; j < length; ++j)
            for (std::size_t part = 0; part < PairsAtATime; ++part)
                sum[part] += LoadPair(values + k + static_cast<std::size_t>(j) + part * PairWidth);
        for (std::size_t part = 0; part < PairsAtATime; ++part)
            StorePair(means.data() + k + part * PairWidth, sum[part] / divisors);
    }
    for (; k < count; ++k) {
        double sum = 0;
        for (int j = 0; j < length; ++j)
            sum += values[k + static_cast<std::size_t>(j)];
        means[k] = sum / divisor;
    }
}

void SimpleAverages(const sCloseRun& closes, int first, int period, std::span<double> out)
{
    const int end = first + static_cast<int>(out.size());
    const std::span<double> values = ValuesFrom(period < 1 ? end : period, first, out);
    if (values.empty())
        return;
    const int index = end - static_cast<int>(values.size());
    WindowMeans(closes.Values.data() + (index - period + 1 - closes.First), period, values);
}

void ExponentialAverages(const sCloseRun& closes, int first, int period, std::span<double> out)
{
    const int end = first + static_cast<int>(out.size());
    const std::span<double> values = ValuesFrom(period < 1 || period >= end ? end : period + 1, first, out);
    if (values.empty())
        return;
    const int index = end - static_cast<int>(values.size());
    WindowMeans(closes.Values.data() + (index - period - closes.First), period, values);
    const double weight = 2.0 / (period + 1.0);
    const double* close = closes.Values.data() + (index - closes.First);
    for (std::size_t k = 0; k < values.size(); ++k)
        values[k] = weight * close[k] + (1.0 - weight) * values[k];
}

} // namespace zantroq
