// Accumulates the least and greatest of several ranges of values, four at a time on processors with SSE2. Any
// thread.
#pragma once

#include "scene/MinMax.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <span>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace zantroq {

class CMinMaxLanes
{
public:
    void Take(std::span<const double> values)
    {
        const double* at = values.data();
        const double* const end = at + values.size();
#ifdef __SSE2__
        for (; end - at >= 4; at += 4) {
            const __m128d a = _mm_loadu_pd(at), b = _mm_loadu_pd(at + 2);
            m_least0 = _mm_min_pd(a, m_least0);
            m_least1 = _mm_min_pd(b, m_least1);
            m_greatest0 = _mm_max_pd(a, m_greatest0);
            m_greatest1 = _mm_max_pd(b, m_greatest1);
            m_unordered = _mm_or_pd(m_unordered, _mm_cmpunord_pd(a, b));
        }
        for (; at < end; ++at) {
            const __m128d value = _mm_set1_pd(*at);
            m_least0 = _mm_min_pd(value, m_least0);
            m_greatest0 = _mm_max_pd(value, m_greatest0);
            m_unordered = _mm_or_pd(m_unordered, _mm_cmpunord_pd(value, value));
        }
#else
        for (; at < end; ++at) {
            m_least = std::min(m_least, *at);
            m_greatest = std::max(m_greatest, *at);
            m_unordered |= *at != *at;
        }
#endif
    }

    // False, with `found` unchanged, when there was no value, or a not-a-number, an infinity or a value from
    // `hole` (finite) upwards.
    bool Finish(double hole, sMinMax& found) const
    {
#ifdef __SSE2__
        const auto low = [](__m128d two) { return _mm_cvtsd_f64(two); };
        const auto high = [](__m128d two) { return _mm_cvtsd_f64(_mm_unpackhi_pd(two, two)); };
        const __m128d lesser = _mm_min_pd(m_least0, m_least1), greater = _mm_max_pd(m_greatest0, m_greatest1);
        const double least = std::min(low(lesser), high(lesser));
        const double greatest = std::max(low(greater), high(greater));
        const bool unordered = _mm_movemask_pd(m_unordered) != 0;
#else
        const double least = m_least, greatest = m_greatest;
        const bool unordered = m_unordered;
#endif
        if (unordered || !(least > -Infinity) || !(greatest < hole) || least > greatest)
            return false;
        found = {least, greatest};
        return true;
    }

private:
    static constexpr double Infinity = std::numeric_limits<double>::infinity();
#ifdef __SSE2__
    __m128d m_least0 = _mm_set1_pd(Infinity), m_least1 = m_least0;
    __m128d m_greatest0 = _mm_set1_pd(-Infinity), m_greatest1 = m_greatest0;
    __m128d m_unordered = _mm_setzero_pd(); // not all zero: a not-a-number was met
#else
    double m_least = Infinity, m_greatest = -Infinity;
    bool m_unordered = false;
#endif
};

} // namespace zantroq
