#include "studies/WindowArithmetic.h"

#include "platform/DoublePair.h"
#include "studies/StudyArrays.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace zantroq {

namespace {

struct sLess
{
    static double Pick(double earlier, double later) { return later < earlier ? later : earlier; }
};

struct sGreater
{
    static double Pick(double earlier, double later) { return later > earlier ? later : earlier; }
};

template<class Rule>
void Combine(const double* __restrict in, std::int64_t count, std::int64_t distance, double* __restrict out)
{
    for (std::int64_t i = 0; i < count; ++i)
        out[i] = Rule::Pick(in[i], in[i + distance]);
}

// Computes windows of 1, 2, 4, ... values until two of them together, overlapping, make up the window. The
// overlap is harmless: the earliest extreme stays the same however often a value is compared.
template<class Rule>
void ExtremesInWindows(const double* __restrict in, std::int64_t count, std::int64_t terms, double start,
                       double* __restrict out)
{
    if (count <= 0)
        return;
    std::int64_t length = count + terms - 1;
    CStudyArray<double> first(length), second(length);
    double* from = first.Data();
    double* to = second.Data();
    for (std::int64_t i = 0; i < length; ++i)
        from[i] = Rule::Pick(start, in[i]); // also turns a not-a-number into the start value
    std::int64_t width = 1;
    for (; width * 2 <= terms; width *= 2) {
        length -= width;
        Combine<Rule>(from, length, width, to);
        std::swap(from, to);
    }
    Combine<Rule>(from, count, terms - width, out);
}

// Sums as many windows in parallel as Parts vectors hold; the additions of each window keep their order. With
// a divisor, the divisions overlap with the next additions. Returns the number of windows done; a few at the
// end may remain.
template<class Vector, std::int64_t Parts, bool Divide>
[[gnu::always_inline]] inline std::int64_t SumBlocks(const double* in, std::int64_t count, std::int64_t terms,
                                                     double divisor, double* out)
{
    constexpr auto width = static_cast<std::int64_t>(sizeof(Vector) / sizeof(double)), block = width * Parts;
    const Vector divisors = Vector{} + divisor;
    std::int64_t i = 0;
    for (; i + block <= count; i += block) {
        Vector sum[Parts];
        for (std::int64_t part = 0; part < Parts; ++part)
            sum[part] = Vector{};
        std::int64_t t = 0;
        do
            for (std::int64_t part = 0; part < Parts; ++part) {
                Vector next;
                std::memcpy(&next, in + i + t + part * width, sizeof next);
                sum[part] += next;
            }
        while (++t < terms);
        for (std::int64_t part = 0; part < Parts; ++part) {
            const Vector result = Divide ? sum[part] / divisors : sum[part];
            std::memcpy(out + i + part * width, &result, sizeof result);
        }
    }
    return i;
}

#if defined(__x86_64__) && defined(__GNUC__)
using WideLanes = double __attribute__((vector_size(32)));

template<bool Divide>
[[gnu::target("avx2")]] std::int64_t SumWideBlocks(const double* in, std::int64_t count, std::int64_t terms,
                                                   double divisor, double* out)
{
    return SumBlocks<WideLanes, 8, Divide>(in, count, terms, divisor, out);
}

bool HasWideLanes()
{
    static const bool has = __builtin_cpu_supports("avx2") != 0;
    return has;
}
#else
template<bool Divide> std::int64_t SumWideBlocks(const double*, std::int64_t, std::int64_t, double, double*)
{
    return 0;
}

bool HasWideLanes()
{
    return false;
}
#endif

template<bool Divide>
void SumEachWindow(const double* in, std::int64_t count, std::int64_t terms, double divisor, double* out)
{
    if (terms < 1) {
        std::fill_n(out, std::max<std::int64_t>(count, 0), Divide ? 0 / divisor : 0.0);
        return;
    }
    std::int64_t i = HasWideLanes() ? SumWideBlocks<Divide>(in, count, terms, divisor, out) : 0;
    i += SumBlocks<DoublePair, 4, Divide>(in + i, count - i, terms, divisor, out + i);
    for (; i < count; ++i) {
        double sum = 0;
        for (std::int64_t t = 0; t < terms; ++t)
            sum += in[i + t];
        out[i] = Divide ? sum / divisor : sum;
    }
}

} // namespace

void SumWindows(const double* in, std::int64_t count, std::int64_t terms, double* sums)
{
    SumEachWindow<false>(in, count, terms, 1, sums);
}

void MeanWindows(const double* in, std::int64_t count, std::int64_t terms, double divisor, double* means)
{
    SumEachWindow<true>(in, count, terms, divisor, means);
}

void LeastInWindows(const double* in, std::int64_t count, std::int64_t terms, double start, double* least)
{
    ExtremesInWindows<sLess>(in, count, terms, start, least);
}

void GreatestInWindows(const double* in, std::int64_t count, std::int64_t terms, double start,
                       double* greatest)
{
    ExtremesInWindows<sGreater>(in, count, terms, start, greatest);
}

} // namespace zantroq
