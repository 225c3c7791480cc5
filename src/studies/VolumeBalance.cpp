#include "studies/VolumeBalance.h"

#include "studies/Hole.h"
#include "studies/StudyArrays.h"
#include "studies/WindowArithmetic.h"

#include <algorithm>

namespace zantroq {

namespace {

// If no partial sum can exceed the integers that a double represents exactly, the order of additions does not
// matter, and a running total of integers gives every window.
bool SumsAreExact(const CVolumeBlock& volume, std::int64_t terms)
{
    constexpr std::int64_t exact = std::int64_t{1} << 53;
    const std::int64_t limit = exact / terms;
    const std::int64_t* const v = volume.At(volume.From());
    const std::int64_t count = volume.To() - volume.From();
    bool within = true;
    for (std::int64_t i = 0; i < count; ++i)
        within &= v[i] <= limit && v[i] >= -limit;
    return within;
}

void SlideExactly(const CPriceBlock& close, const CVolumeBlock& volume, std::int64_t from, std::int64_t count,
                  std::int64_t terms, double* out)
{
    CStudyArray<std::int64_t> totals(count + terms);
    std::int64_t* const total = totals.Data();
    const double* const c = close.At(from - terms);
    const std::int64_t* const v = volume.At(from - terms + 1);
    std::int64_t sum = 0;
    total[0] = 0;
    for (std::int64_t t = 1; t < count + terms; ++t) {
        const std::int64_t sign = (c[t] > c[t - 1]) - (c[t] < c[t - 1]);
        sum += sign * v[t - 1];
        total[t] = sum;
    }
    for (std::int64_t i = 0; i < count; ++i)
        out[i] = static_cast<double>(total[i + terms] - total[i]);
}

void SumEachWindow(const CPriceBlock& close, const CVolumeBlock& volume, std::int64_t from,
                   std::int64_t count, std::int64_t terms, double* out)
{
    CStudyArray<double> change(count + terms - 1);
    for (std::int64_t t = 0; t < change.Size(); ++t) {
        const std::int64_t j = from - terms + 1 + t;
        const auto size = static_cast<double>(volume[j]);
        // Adding 0 for an unchanged close does not change the sum: a sum that starts at 0 never becomes -0.
        change[t] = close[j] > close[j - 1] ? size : close[j] < close[j - 1] ? -size : 0.0;
    }
    SumWindows(change.Data(), count, terms, out);
}

void OBVPiece(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period, double* out)
{
    const std::int64_t end = index + count, from = std::clamp<std::int64_t>(period, index, end);
    std::fill_n(out, from - index, StudyHole);
    double* value = out + (from - index);
    if (period <= 0) {
        std::fill_n(value, end - from, 0.0);
        return;
    }
    if (from == end)
        return;
    const CPriceBlock close(prices, &IPriceSource::ReadClose, from - period, end);
    const CVolumeBlock volume(prices, &IPriceSource::ReadVolume, from - period + 1, end);
    if (SumsAreExact(volume, period))
        SlideExactly(close, volume, from, end - from, period, value);
    else
        SumEachWindow(close, volume, from, end - from, period, value);
}

} // namespace

void ComputeOBV(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period, double* out)
{
    InPieces(count, period,
             [&](int offset, int length) { OBVPiece(prices, index + offset, length, period, out + offset); });
}

} // namespace zantroq
