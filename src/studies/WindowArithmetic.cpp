#include "studies/WindowArithmetic.h"

#include "drawing/Lanes.h"
#include "studies/StudyArrays.h"

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

// Windows of 1, 2, 4, ... values until two of them, overlapping, make the whole window. Overlap does no harm:
// the pick of the earliest extreme is the same however often a value takes part.
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

} // namespace

void SumWindows(const double* in, std::int64_t count, std::int64_t terms, double* sums)
{
    constexpr auto block = static_cast<std::int64_t>(LaneBlock);
    std::int64_t i = 0;
    for (; i + block <= count; i += block) {
        Lanes sum[LaneParts] = {};
        for (std::int64_t t = 0; t < terms; ++t)
            for (std::size_t part = 0; part < LaneParts; ++part)
                sum[part] += LoadLanes(in + i + t + part * LaneWidth);
        for (std::size_t part = 0; part < LaneParts; ++part)
            StoreLanes(sums + i + part * LaneWidth, sum[part]);
    }
    for (; i < count; ++i) {
        double sum = 0;
        for (std::int64_t t = 0; t < terms; ++t)
            sum += in[i + t];
        sums[i] = sum;
    }
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
