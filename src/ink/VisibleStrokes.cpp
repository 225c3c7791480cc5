#include "ink/VisibleStrokes.h"

#include <algorithm>
#include <array>
#include <limits>

#if defined(__x86_64__) && defined(__GNUC__)
#include <immintrin.h>
#define ZANTROQ_SEES_EIGHT
#endif

namespace zantroq {

namespace {

constexpr std::size_t Together = 8;                                    // points at a time
constexpr int MostRows = std::numeric_limits<std::int16_t>::max() / 2; // so that two heights may be added
constexpr std::size_t MostPoints = std::numeric_limits<std::int16_t>::max();

#ifdef ZANTROQ_SEES_EIGHT

bool ProcessorCan()
{
    return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("popcnt");
}

// For each set of eight lanes of 16 bits, bit i for lane i: the bytes that bring its lanes to the front, the
// highest lane first.
struct sLaneOrders
{
    alignas(16) std::array<std::array<std::uint8_t, 16>, 256> Bytes{};

    constexpr sLaneOrders()
    {
        for (unsigned set = 0; set < 256; ++set) {
            std::size_t at = 0;
            for (unsigned lane = 8; lane-- > 0;)
                if ((set >> lane & 1u) != 0) {
                    Bytes[set][at++] = static_cast<std::uint8_t>(2 * lane);
                    Bytes[set][at++] = static_cast<std::uint8_t>(2 * lane + 1);
                }
        }
    }
};
constexpr sLaneOrders LaneOrders;

#else

bool ProcessorCan()
{
    return false;
}

#endif

} // namespace

CVisibleStrokes::CVisibleStrokes(const sPlotMap& map)
    : m_map(map),
      m_available(ProcessorCan() && map.Y.PixelsPerUnit() != 0 && map.Plot.Top >= 0 &&
                  map.Plot.Bottom <= MostRows && !map.Empty())
{
}

bool CVisibleStrokes::Find(std::span<const double> high, std::span<const double> low, std::size_t first,
                           std::size_t last)
{
    m_count = 0;
    if (!m_available || last - first < Together || last - first > MostPoints)
        return false;
    const double a = high[last - 1], b = low[last - 1];
    if (!IsDrawn(a) || !IsDrawn(b))
        return false;
    const int rowA = m_map.Y.Pixel(a), rowB = m_map.Y.Pixel(b);
    const int top = std::max(std::min(rowA, rowB), m_map.Plot.Top),
              bottom = std::min(std::max(rowA, rowB) + 1, m_map.Plot.Bottom);
    if (top >= bottom)
        return false;
    if (m_points.size() < last - first + Together) { // whole vectors are stored
        m_points.resize(last - first + Together);
        m_up.resize(m_points.size());
        m_down.resize(m_points.size());
    }
    m_points[0] = static_cast<std::int16_t>(last - 1 - first);
    m_up[0] = static_cast<std::int16_t>(m_map.Plot.Bottom - top);
    m_down[0] = static_cast<std::int16_t>(bottom - m_map.Plot.Top);
    m_count = Walk(high.data() + first, low.data() + first, last - first, m_up[0], m_down[0]);
    return m_count > 0;
}

#ifdef ZANTROQ_SEES_EIGHT

// The walk, one point at a time, from the last point of the column to the first; up and down begin as those
// of the last point:
//     for (i = count; i-- > 0;) {
//         u = clamp(Plot.Bottom - top(i), 0, rows);  d = clamp(bottom(i) - Plot.Top, 0, rows);
//         if (u + down < rows || d + up < rows) return 0;        // a gap: not for this walk
//         if (u > up || d > down) { up = max(up, u); down = max(down, d); add {i, up, down}; }
//     }
// with top(i) and bottom(i) the pixel rows of the stroke, bottom exclusive.
//
// Heights are whole pixel rows in 16 bits: of the upper end, counted from the plot's bottom, in the lower
// half of a vector, of the lower end, counted from the plot's top, in the upper half. Both grow outwards, and
// what is covered so far is the greatest of each.
struct CVisibleStrokes::sWalk
{
    __m256d Low, First, Factor, Lift; // of NearestPixel(Position()), with the same operations in that order
    __m128i LiftRows, PlotBottom, AboveTop;
    __m256i Rows, Covered, Least;
    __m128i Highest, Lowest; // rows met

    [[gnu::target("avx2,popcnt"), gnu::always_inline]] __m128i FourRows(const double* values) const
    {
        const __m256d position =
            _mm256_add_pd(First, _mm256_mul_pd(_mm256_sub_pd(_mm256_loadu_pd(values), Low), Factor));
        return _mm_sub_epi32(_mm256_cvttpd_epi32(_mm256_add_pd(position, Lift)), LiftRows);
    }
    // What has no row, a not-a-number too, becomes one of the outermost numbers.
    [[gnu::target("avx2,popcnt"), gnu::always_inline]] __m128i EightRows(const double* values) const
    {
        return _mm_packs_epi32(FourRows(values), FourRows(values + 4));
    }

    // Returns the covered heights behind each of eight points; `seen` has bit i for point i.
    [[gnu::target("avx2,popcnt"), gnu::always_inline]] __m256i Take(const double* high, const double* low,
                                                                    unsigned& seen)
    {
        const __m128i a = EightRows(high), b = EightRows(low);
        const __m128i top = _mm_min_epi16(a, b), bottom = _mm_max_epi16(a, b);
        Highest = _mm_min_epi16(Highest, top);
        Lowest = _mm_max_epi16(Lowest, bottom);
        __m256i ends = _mm256_inserti128_si256(_mm256_castsi128_si256(_mm_subs_epi16(PlotBottom, top)),
                                               _mm_subs_epi16(bottom, AboveTop), 1);
        ends = _mm256_min_epi16(_mm256_max_epi16(ends, _mm256_setzero_si256()), Rows);
        // The greatest from the highest lane, the latest point, down to each lane.
        __m256i covered = _mm256_max_epi16(ends, _mm256_srli_si256(ends, 2));
        covered = _mm256_max_epi16(covered, _mm256_srli_si256(covered, 4));
        covered = _mm256_max_epi16(covered, _mm256_srli_si256(covered, 8));
        covered = _mm256_max_epi16(covered, Covered);
        const __m256i before = _mm256_alignr_epi8(Covered, covered, 2);
        // A stroke's upper end and the lower one of what is covered, counted from opposite sides, add up to
        // less than the plot's height where rows lie between them; so the other way round.
        Least = _mm256_min_epi16(Least, _mm256_add_epi16(ends, _mm256_permute2x128_si256(before, before, 1)));
        const __m256i further = _mm256_cmpgt_epi16(covered, before);
        const __m128i either =
            _mm_or_si128(_mm256_castsi256_si128(further), _mm256_extracti128_si256(further, 1));
        seen = static_cast<unsigned>(_mm_movemask_epi8(_mm_packs_epi16(either, _mm_setzero_si128())));
        Covered = _mm256_shuffle_epi8(covered, _mm256_set1_epi16(0x0100)); // lane 0 of each half everywhere
        return covered;
    }

    [[gnu::target("avx2,popcnt"), gnu::always_inline]] static void Store(std::int16_t* to, __m128i eight,
                                                                         __m128i order)
    {
        _mm_storeu_si128(reinterpret_cast<__m128i*>(to), _mm_shuffle_epi8(eight, order));
    }
};

// Returns how many were found; 0 when they do not hang together or some cannot be told.
[[gnu::target("avx2,popcnt")]] std::size_t CVisibleStrokes::Walk(const double* high, const double* low,
                                                                 std::size_t count, int up, int down)
{
    const auto sixteen = [](int value) { return static_cast<short>(value); };
    const int rows = m_map.Plot.Height();
    sWalk walk{_mm256_set1_pd(m_map.Y.Low()),
               _mm256_set1_pd(m_map.Y.First()),
               _mm256_set1_pd(m_map.Y.PixelsPerUnit()),
               _mm256_set1_pd(NearestPixelLift + 0.5),
               _mm_set1_epi32(static_cast<int>(NearestPixelLift)),
               _mm_set1_epi16(sixteen(m_map.Plot.Bottom)),
               _mm_set1_epi16(sixteen(m_map.Plot.Top - 1)),
               _mm256_set1_epi16(sixteen(rows)),
               _mm256_inserti128_si256(_mm256_set1_epi16(sixteen(up)), _mm_set1_epi16(sixteen(down)), 1),
               _mm256_set1_epi16(sixteen(rows)),
               _mm_setzero_si128(),
               _mm_setzero_si128()};
    std::int16_t *const points = m_points.data(), *const ups = m_up.data(), *const downs = m_down.data();
    const __m128i lanes = _mm_setr_epi16(0, 1, 2, 3, 4, 5, 6, 7);
    std::size_t found = 1;
    for (std::size_t i = count; i > 0;) {
        // The earliest points together with some that were taken: those show nothing new.
        i = std::max(i, Together) - Together;
        unsigned seen = 0;
        const __m256i covered = walk.Take(high + i, low + i, seen);
        const __m128i order = _mm_load_si128(reinterpret_cast<const __m128i*>(LaneOrders.Bytes[seen].data()));
        walk.Store(ups + found, _mm256_castsi256_si128(covered), order);
        walk.Store(downs + found, _mm256_extracti128_si256(covered, 1), order);
        walk.Store(points + found, _mm_add_epi16(lanes, _mm_set1_epi16(sixteen(static_cast<int>(i)))), order);
        found += static_cast<std::size_t>(__builtin_popcount(seen));
    }
    const __m128i untold =
        _mm_or_si128(_mm_cmpeq_epi16(walk.Highest, _mm_set1_epi16(std::numeric_limits<short>::min())),
                     _mm_cmpeq_epi16(walk.Lowest, _mm_set1_epi16(std::numeric_limits<short>::max())));
    const bool apart = _mm256_movemask_epi8(_mm256_cmpgt_epi16(walk.Rows, walk.Least)) != 0;
    return apart || _mm_movemask_epi8(untold) != 0 ? 0 : found;
}

#else

std::size_t CVisibleStrokes::Walk(const double*, const double*, std::size_t, int, int)
{
    return 0;
}

#endif

} // namespace zantroq
