#include "studies/MoneyFlowArithmetic.h"

#include "studies/Hole.h"
#include "studies/StudyArrays.h"
#include "studies/WindowArithmetic.h"

#include <algorithm>

namespace zantroq {

namespace {

void TypicalPrices(const IPriceSource& prices, std::int64_t from, std::int64_t to, double* __restrict typical)
{
    const CPriceBlock low(prices, &IPriceSource::ReadLow, from, to),
        high(prices, &IPriceSource::ReadHigh, from, to);
    const CPriceBlock close(prices, &IPriceSource::ReadClose, from, to);
    const double *l = low.At(from), *h = high.At(from), *c = close.At(from);
    for (std::int64_t i = 0; i < to - from; ++i)
        typical[i] = (c[i] + (l[i] + h[i])) / 3;
}

// On entry `down` holds the volumes. In a separate loop, so that the compiler generates code without
// branches: rising and falling prices are unpredictable.
void SplitFlows(const double* __restrict typical, std::int64_t flows, double* __restrict up,
                double* __restrict down)
{
    for (std::int64_t i = 0; i < flows; ++i) {
        const double before = typical[i], now = typical[i + 1], flow = down[i] * now;
        // Adding 0 does not change a sum: a sum that starts at 0 never becomes -0.
        up[i] = now > before ? flow : 0.0;
        down[i] = now < before ? flow : 0.0;
    }
}

int FlowPiece(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period,
              double* positive, double* negative)
{
    const std::int64_t end = index + count, p = period;
    const std::int64_t from = p < 1 ? end : std::clamp(p + 1, index, end);
    std::fill_n(positive, from - index, StudyHole);
    std::fill_n(negative, from - index, StudyHole);
    if (from == end)
        return count;
    const std::int64_t windows = end - from, terms = p + 1, flows = windows + p;

    // Element i of the flows belongs to index from - p + i, element i of the typical prices to the index
    // before.
    CStudyArray<double> typical(flows + 1);
    TypicalPrices(prices, from - p - 1, end, typical.Data());
    const CVolumeBlock volume(prices, &IPriceSource::ReadVolume, from - p, end);
    const std::int64_t* v = volume.At(from - p);
    CStudyArray<double> up(flows), down(flows);
    for (std::int64_t i = 0; i < flows; ++i)
        down[i] = static_cast<double>(v[i]);
    SplitFlows(typical.Data(), flows, up.Data(), down.Data());
    double *pos = positive + (from - index), *neg = negative + (from - index);
    const auto divisor = static_cast<double>(p);
    MeanWindows(up.Data(), windows, terms, divisor, pos);
    MeanWindows(down.Data(), windows, terms, divisor, neg);
    return static_cast<int>(from - index);
}

void MFIPiece(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period, double* out)
{
    CStudyArray<double> negative(count);
    const int left = FlowPiece(prices, index, count, period, out, negative.Data());
    for (int i = left; i < count; ++i) {
        const double pos = out[i], neg = negative[i];
        out[i] = ((pos - neg) * 50) / (neg + pos) + 50;
    }
}

} // namespace

int ComputeMoneyFlow(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period,
                     double* positive, double* negative)
{
    int left = 0;
    InPieces(count, period, [&](int offset, int length) {
        left += FlowPiece(prices, index + offset, length, period, positive + offset, negative + offset);
    });
    return left;
}

void ComputeMFI(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period, double* out)
{
    InPieces(count, period,
             [&](int offset, int length) { MFIPiece(prices, index + offset, length, period, out + offset); });
}

} // namespace zantroq
