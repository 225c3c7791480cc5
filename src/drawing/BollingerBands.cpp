#include "drawing/BollingerBands.h"

#include "platform/DoublePair.h"
#include "scene/HoleValue.h"

#include <algorithm>
#include <cmath>

namespace zantroq {

namespace {

// squares[k] is the sum of (values[k + j] - middle[k]) squared for j from 0 to length - 1, in that order.
void SquareSums(const double* values, int length, std::span<const double> middle, std::span<double> squares)
{
    const std::size_t count = squares.size();
    std::size_t k = 0;
    for (; k + PairBlock <= count; k += PairBlock) {
        DoublePair sum[PairsAtATime] = {};
        DoublePair centre[PairsAtATime];
        for (std::size_t part = 0; part < PairsAtATime; ++part)
            centre[part] = LoadPair(middle.data() + k + part * PairWidth);
        for (int j = 0; j < length; ++j)
            for (std::size_t part = 0; part < PairsAtATime; ++part) {
                const DoublePair distance =
                    LoadPair(values + k + static_cast<std::size_t>(j) + part * PairWidth) - centre[part];
                sum[part] += distance * distance;
            }
        for (std::size_t part = 0; part < PairsAtATime; ++part)
            StorePair(squares.data() + k + part * PairWidth, sum[part]);
    }
    for (; k < count; ++k) {
        double sum = 0;
        for (int j = 0; j < length; ++j) {
            const double distance = values[k + static_cast<std::size_t>(j)] - middle[k];
            sum += distance * distance;
        }
        squares[k] = sum;
    }
}

} // namespace

void BollingerBands(const sCloseRun& closes, int first, int period, double deviations,
                    std::span<double> lower, std::span<double> upper, std::span<double> middle)
{
    SimpleAverages(closes, first, period, middle);
    const int end = first + static_cast<int>(middle.size());
    const int index = period < 1 ? end : std::clamp(period, first, end); // first index with a value
    const auto holes = static_cast<std::size_t>(index - first);
    std::fill_n(lower.begin(), holes, HoleValue);
    std::fill_n(upper.begin(), holes, HoleValue);
    if (holes == middle.size())
        return;
    SquareSums(closes.Values.data() + (index - period + 1 - closes.First), period, middle.subspan(holes),
               upper.subspan(holes));
    const double divisor = period;
    for (std::size_t k = holes; k < middle.size(); ++k) {
        const double deviation = std::sqrt(upper[k] / divisor);
        upper[k] = middle[k] + deviations * deviation;
        lower[k] = middle[k] - deviations * deviation;
    }
}

} // namespace zantroq
