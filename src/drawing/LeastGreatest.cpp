#include "drawing/LeastGreatest.h"

#include "drawing/PaneObjects.h"

#include <algorithm>
#include <cmath>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace zantroq {

bool FindLeastGreatest(std::span<const double> values, sLeastGreatest& found)
{
    if (values.empty() || !std::isfinite(values[0]))
        return false;
    double least = values[0], greatest = values[0];
    double poison = 0; // a product with 0 is 0, except that of a not-a-number or an infinity
    std::size_t i = 0;
#ifdef __SSE2__
    if (values.size() >= 4) {
        __m128d least0 = _mm_set1_pd(least), least1 = least0, greatest0 = least0, greatest1 = least0;
        __m128d poison2 = _mm_setzero_pd();
        const __m128d zero = _mm_setzero_pd();
        for (; i + 4 <= values.size(); i += 4) {
            const __m128d a = _mm_loadu_pd(values.data() + i), b = _mm_loadu_pd(values.data() + i + 2);
            least0 = _mm_min_pd(a, least0);
            least1 = _mm_min_pd(b, least1);
            greatest0 = _mm_max_pd(a, greatest0);
            greatest1 = _mm_max_pd(b, greatest1);
            poison2 = _mm_add_pd(poison2, _mm_add_pd(_mm_mul_pd(a, zero), _mm_mul_pd(b, zero)));
        }
        alignas(16) double pair[2];
        _mm_store_pd(pair, _mm_min_pd(least0, least1));
        least = std::min(pair[0], pair[1]);
        _mm_store_pd(pair, _mm_max_pd(greatest0, greatest1));
        greatest = std::max(pair[0], pair[1]);
        _mm_store_pd(pair, poison2);
        poison = pair[0] + pair[1];
    }
#endif
    for (; i < values.size(); ++i) {
        least = std::min(least, values[i]);
        greatest = std::max(greatest, values[i]);
        poison += values[i] * 0.0;
    }
    if (!(poison == 0) || greatest >= CPaneData::HoleValue())
        return false;
    found = {least, greatest};
    return true;
}

} // namespace zantroq
