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

constexpr std::size_t Together = 8; // points at a time
constexpr int MostRows =
    std::numeric_limits<std::int16_t>::max() / 2; // so that a height and a depth may be added
constexpr std::size_t MostPoints = std::numeric_limits<std::int16_t>::max();

#ifdef ZANTROQ_SEES_EIGHT

bool ProcessorCan()
{
    return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("popcnt");
}

// For each set of lanes, bit i for lane i of eight with 16 bits each: the byte order that moves these lanes
// to the front, the highest lane first.
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
    sRowSpan rows(m_map.Y, a, b);
    if (!rows.CutTo(m_map.Plot))
        return false;
    MakeRoom(last - first);
    m_points[0] = static_cast<std::int16_t>(last - 1 - first);
    m_up[0] = static_cast<std::int16_t>(m_map.Plot.Bottom - rows.Top);
    m_down[0] = static_cast<std::int16_t>(rows.Bottom - m_map.Plot.Top);
    m_count = Walk(high.data() + first, low.data() + first, last - first, m_up[0], m_down[0]);
    return m_count > 0;
}

// For whole vectors, of which the last may hold a few points too many.
void CVisibleStrokes::MakeRoom(std::size_t points)
{
    if (m_points.size() >= points + Together)
        return;
    m_points.resize(points + Together);
    m_up.resize(m_points.size());
    m_down.resize(m_points.size());
}

#ifdef ZANTROQ_SEES_EIGHT

// Functions of the walk are compiled for AVX2, whatever the rest is compiled for, and become one function.
#define ZANTROQ_WALK [[gnu::target("avx2,popcnt"), gnu::always_inline]]

// The walk over the n points of a column, one at a time, from the last to the first:
//     up = height(n-1); down = depth(n-1); add n-1, up, down
//     for (i = n - 1; i-- > 0;) {
//         if (height(i) + down < rows || depth(i) + up < rows) return 0;    // a gap: not for this walk
//         if (height(i) > up || depth(i) > down) { up = max(...); down = max(...); add i, up, down; }
//     }
// height is the rows from a stroke's upper end to the plot's bottom, depth those from the plot's top to its
// lower end, both clamped to 0 and the plot's rows; up and down are what is covered so far. Heights and
// depths count from opposite sides, so a stroke's and the covered one add up to less than the plot's rows
// exactly where rows lie between the two.
//
// The same for eight points at a time: rows are 16 bit numbers, heights stand in the lower half of a vector
// and depths in the upper.
struct CVisibleStrokes::sWalk
{
    __m256d Low, First, Factor, Lift; // of NearestPixel(Position()), with the same operations in that order
    __m128i LiftRows, PlotBottom, AboveTop;
    __m256i Rows;
    __m256i Covered;         // up and down, in every lane of their half
    __m256i LeastSum;        // the least height + down or depth + up met: less than Rows if there is a gap
    __m128i Highest, Lowest; // the outermost rows met

    ZANTROQ_WALK sWalk(const sPlotMap& map, int up, int down)
        : Low(_mm256_set1_pd(map.Y.Low())),
          First(_mm256_set1_pd(map.Y.First())),
          Factor(_mm256_set1_pd(map.Y.PixelsPerUnit())),
          Lift(_mm256_set1_pd(NearestPixelLift + 0.5)),
          LiftRows(_mm_set1_epi32(static_cast<int>(NearestPixelLift))),
          PlotBottom(_mm_set1_epi16(static_cast<short>(map.Plot.Bottom))),
          AboveTop(_mm_set1_epi16(static_cast<short>(map.Plot.Top - 1))),
          Rows(_mm256_set1_epi16(static_cast<short>(map.Plot.Height()))),
          Covered(_mm256_inserti128_si256(_mm256_set1_epi16(static_cast<short>(up)),
                                          _mm_set1_epi16(static_cast<short>(down)), 1)),
          LeastSum(Rows),
          Highest(_mm_setzero_si128()),
          Lowest(_mm_setzero_si128())
    {
    }

    ZANTROQ_WALK __m128i FourRows(const double* values) const
    {
        const __m256d position =
            _mm256_add_pd(First, _mm256_mul_pd(_mm256_sub_pd(_mm256_loadu_pd(values), Low), Factor));
        return _mm_sub_epi32(_mm256_cvttpd_epi32(_mm256_add_pd(position, Lift)), LiftRows);
    }
    // A value without a row, not-a-number included, becomes the least or greatest number of 16 bits.
    ZANTROQ_WALK __m128i EightRows(const double* values) const
    {
        return _mm_packs_epi32(FourRows(values), FourRows(values + 4));
    }
    // Heights and depths of eight points.
    ZANTROQ_WALK __m256i Ends(const double* high, const double* low)
    {
        const __m128i a = EightRows(high), b = EightRows(low);
        const __m128i top = _mm_min_epi16(a, b), bottom = _mm_max_epi16(a, b);
        Highest = _mm_min_epi16(Highest, top);
        Lowest = _mm_max_epi16(Lowest, bottom);
        const __m256i ends = _mm256_inserti128_si256(_mm256_castsi128_si256(_mm_subs_epi16(PlotBottom, top)),
                                                     _mm_subs_epi16(bottom, AboveTop), 1);
        return _mm256_min_epi16(_mm256_max_epi16(ends, _mm256_setzero_si256()), Rows);
    }
    // What is covered after each of eight points: the greatest from the highest lane, which is the latest
    // point, down to each lane.
    ZANTROQ_WALK __m256i CoveredAfter(__m256i ends) const
    {
        __m256i covered = _mm256_max_epi16(ends, _mm256_srli_si256(ends, 2));
        covered = _mm256_max_epi16(covered, _mm256_srli_si256(covered, 4));
        covered = _mm256_max_epi16(covered, _mm256_srli_si256(covered, 8));
        return _mm256_max_epi16(covered, Covered);
    }
    // Bit i: lane i of either half is greater in a than in b.
    ZANTROQ_WALK static unsigned GreaterLanes(__m256i a, __m256i b)
    {
        const __m256i greater = _mm256_cmpgt_epi16(a, b);
        const __m128i either =
            _mm_or_si128(_mm256_castsi256_si128(greater), _mm256_extracti128_si256(greater, 1));
        return static_cast<unsigned>(_mm_movemask_epi8(_mm_packs_epi16(either, _mm_setzero_si128())));
    }

    // Eight points. Returns what is covered after each; `seen` has bit i set if point i is visible.
    ZANTROQ_WALK __m256i Take(const double* high, const double* low, unsigned& seen)
    {
        const __m256i ends = Ends(high, low), covered = CoveredAfter(ends);
        const __m256i before = _mm256_alignr_epi8(Covered, covered, 2);
        const __m256i swapped = _mm256_permute2x128_si256(before, before, 1); // depths beside heights
        LeastSum = _mm256_min_epi16(LeastSum, _mm256_add_epi16(ends, swapped));
        seen = GreaterLanes(covered, before);
        Covered = _mm256_shuffle_epi8(covered, _mm256_set1_epi16(0x0100)); // lane 0 of each half everywhere
        return covered;
    }

    // Whether no gap was met, and no value without a row.
    ZANTROQ_WALK bool IsValid() const
    {
        const __m128i rowless =
            _mm_or_si128(_mm_cmpeq_epi16(Highest, _mm_set1_epi16(std::numeric_limits<short>::min())),
                         _mm_cmpeq_epi16(Lowest, _mm_set1_epi16(std::numeric_limits<short>::max())));
        const bool gap = _mm256_movemask_epi8(_mm256_cmpgt_epi16(Rows, LeastSum)) != 0;
        return !gap && _mm_movemask_epi8(rowless) == 0;
    }

    ZANTROQ_WALK static void Store(std::int16_t* to, __m128i eight, __m128i order)
    {
        _mm_storeu_si128(reinterpret_cast<__m128i*>(to), _mm_shuffle_epi8(eight, order));
    }
};

// Returns the number of visible points; 0 when there is a gap or a value without a row.
[[gnu::target("avx2,popcnt")]] std::size_t CVisibleStrokes::Walk(const double* high, const double* low,
                                                                 std::size_t count, int up, int down)
{
    sWalk walk(m_map, up, down);
    std::int16_t *const points = m_points.data(), *const ups = m_up.data(), *const downs = m_down.data();
    const __m128i lanes = _mm_setr_epi16(0, 1, 2, 3, 4, 5, 6, 7);
    std::size_t found = 1;
    for (std::size_t i = count; i > 0;) {
        // The last vector begins with the first point: it may hold points that were taken before, which show
        // nothing new.
        i = std::max(i, Together) - Together;
        unsigned seen = 0;
        const __m256i covered = walk.Take(high + i, low + i, seen);
        const __m128i order = _mm_load_si128(reinterpret_cast<const __m128i*>(LaneOrders.Bytes[seen].data()));
        sWalk::Store(ups + found, _mm256_castsi256_si128(covered), order);
        sWalk::Store(downs + found, _mm256_extracti128_si256(covered, 1), order);
        sWalk::Store(points + found, _mm_add_epi16(lanes, _mm_set1_epi16(static_cast<short>(i))), order);
        found += static_cast<std::size_t>(__builtin_popcount(seen));
    }
    return walk.IsValid() ? found : 0;
}

#undef ZANTROQ_WALK

#else

std::size_t CVisibleStrokes::Walk(const double*, const double*, std::size_t, int, int)
{
    return 0;
}

#endif

} // namespace zantroq
