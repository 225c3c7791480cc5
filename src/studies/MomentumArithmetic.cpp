#include "studies/MomentumArithmetic.h"

#include "studies/Hole.h"
#include "studies/StudyArrays.h"

#include <algorithm>

namespace zantroq {

namespace {

void MomentumPiece(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period,
                   double* out)
{
    const std::int64_t end = index + count, from = std::clamp<std::int64_t>(period, index, end);
    std::fill_n(out, from - index, StudyHole);
    const CPriceBlock now(prices, &IPriceSource::ReadClose, from, end);
    const CPriceBlock before(prices, &IPriceSource::ReadClose, from - period, end - period);
    const double *a = now.At(from), *b = before.At(from - period);
    double* value = out + (from - index);
    for (std::int64_t i = 0; i < end - from; ++i)
        value[i] = a[i] - b[i];
}

void ROCPiece(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period, double* out)
{
    const std::int64_t end = index + count,
                       from = std::clamp<std::int64_t>(std::int64_t{period} + 1, index, end);
    std::fill_n(out, from - index, StudyHole);
    const CPriceBlock now(prices, &IPriceSource::ReadClose, from, end);
    const CPriceBlock before(prices, &IPriceSource::ReadClose, from - period, end - period);
    const double *a = now.At(from), *b = before.At(from - period);
    double* value = out + (from - index);
    for (std::int64_t i = 0; i < end - from; ++i) {
        const double change = (a[i] - b[i]) / b[i] * 100;
        value[i] = b[i] != 0 ? change : StudyHole;
    }
}

} // namespace

void ComputeMomentum(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period,
                     double* out)
{
    InPieces(count, 0, [&](int offset, int length) {
        MomentumPiece(prices, index + offset, length, period, out + offset);
    });
}

void ComputeROC(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period, double* out)
{
    InPieces(count, 0,
             [&](int offset, int length) { ROCPiece(prices, index + offset, length, period, out + offset); });
}

} // namespace zantroq
