// The least and greatest of a range of values, two at a time on processors with SSE2. Any thread.
#pragma once

#include <bit>
#include <cstddef>
#include <span>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace zantroq {

struct sMinMax
{
    double Least = 0, Greatest = 0;
};

// False, with `found` unchanged, when there are no values, or a hole, a not-a-number or an infinity among
// them.
bool FindMinMax(std::span<const double> values, sMinMax& found);

namespace detail {

inline bool LiesOutside(double value, double least, double greatest)
{
    return value < least || value > greatest;
}

#ifdef __SSE2__
// Bit i is set if a[i] or b[i] lies outside, for eight of each.
inline unsigned OutsideOfEight(const double* a, const double* b, __m128d least, __m128d greatest)
{
    const auto outside = [&](const double* values) {
        const __m128d two = _mm_loadu_pd(values);
        return _mm_or_pd(_mm_cmplt_pd(two, least), _mm_cmpgt_pd(two, greatest));
    };
    const auto pair = [&](int i) {
        return static_cast<unsigned>(_mm_movemask_pd(_mm_or_pd(outside(a + i), outside(b + i)))) << i;
    };
    return pair(0) | pair(2) | pair(4) | pair(6);
}
#endif

} // namespace detail

// Walks from end - 1 down to first while neither array's value is below least or above greatest; a
// not-a-number is neither. Returns one more than the position that stops the walk, or first.
inline std::size_t SkipWithin(const double* a, const double* b, std::size_t first, std::size_t end,
                              double least, double greatest)
{
#ifdef __SSE2__
    const __m128d low = _mm_set1_pd(least), high = _mm_set1_pd(greatest);
    for (; end - first >= 8; end -= 8)
        if (const unsigned outside = detail::OutsideOfEight(a + end - 8, b + end - 8, low, high))
            return end - 8 + static_cast<std::size_t>(std::bit_width(outside));
#endif
    while (end > first && !detail::LiesOutside(a[end - 1], least, greatest) &&
           !detail::LiesOutside(b[end - 1], least, greatest))
        --end;
    return end;
}

} // namespace zantroq
