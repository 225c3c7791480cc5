// Buffers for computations over a range: uninitialised arrays, and pieces of a series read at once. Chart
// window's thread.
#pragma once

#include "drawing/PriceSource.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <memory>
#include <span>

namespace zantroq {

inline constexpr std::int64_t ShortestPiece = 1024; // in points of the series

// An array of fixed size whose elements are uninitialised. A short array is stored inside the object, because
// a whole draw creates some thousand of them.
template<class T> class CStudyArray
{
public:
    explicit CStudyArray(std::int64_t size) : m_size(std::max<std::int64_t>(size, 0))
    {
        if (m_size > Near)
            m_far = std::make_unique_for_overwrite<T[]>(static_cast<std::size_t>(m_size));
        m_items = m_far ? m_far.get() : m_near;
    }
    CStudyArray(const CStudyArray&) = delete;
    CStudyArray& operator=(const CStudyArray&) = delete;
    T* Data() { return m_items; }
    const T* Data() const { return m_items; }
    std::int64_t Size() const { return m_size; }
    T& operator[](std::int64_t i) { return m_items[static_cast<std::size_t>(i)]; }
    const T& operator[](std::int64_t i) const { return m_items[static_cast<std::size_t>(i)]; }
    std::span<const T> Span() const { return {m_items, static_cast<std::size_t>(m_size)}; }

private:
    static constexpr std::int64_t Near =
        ShortestPiece + 128; // a piece and the look-back of the usual periods
    std::int64_t m_size;
    T* m_items;
    std::unique_ptr<T[]> m_far;
    T m_near[Near];
};

// The values of indices From() up to but not including To(), accessed by index. The value is 0 where the
// series has none, as with single reads. Indices may be any 64-bit numbers; time and memory depend only on
// To() - From().
template<class T> class CSeriesBlock
{
public:
    using Reader = void (IPriceSource::*)(int, int, T*) const;

    CSeriesBlock(const IPriceSource& source, Reader reader, std::int64_t from, std::int64_t to)
        : m_from(from), m_values(to - from)
    {
        constexpr std::int64_t end = std::numeric_limits<int>::max();
        const std::int64_t low = std::clamp<std::int64_t>(from, 0, end),
                           high = std::clamp<std::int64_t>(to, low, end);
        if (low >= high) {
            std::fill_n(m_values.Data(), m_values.Size(), T{});
            return;
        }
        std::fill_n(m_values.Data(), low - from, T{});
        (source.*reader)(static_cast<int>(low), static_cast<int>(high - low), m_values.Data() + (low - from));
        std::fill_n(m_values.Data() + (high - from), to - high, T{});
    }
    std::int64_t From() const { return m_from; }
    std::int64_t To() const { return m_from + m_values.Size(); }
    const T& operator[](std::int64_t index) const { return m_values[index - m_from]; }
    const T* At(std::int64_t index) const { return m_values.Data() + (index - m_from); }

private:
    std::int64_t m_from;
    CStudyArray<T> m_values;
};

// Calls work(offset, length) for pieces that together are `count` points. A piece is short enough for its
// arrays to stay in the processor's cache and to need few memory pages, whose set-up would cost more than the
// arithmetic at 245,760 points. It is long compared with the `lookback` points that each piece must read
// before its own.
template<class Work> void InPieces(int count, std::int64_t lookback, const Work& work)
{
    constexpr std::int64_t longest = std::numeric_limits<int>::max();
    const std::int64_t back = std::clamp<std::int64_t>(lookback, 0, longest / 8);
    const int piece = static_cast<int>(std::max(ShortestPiece, back * 8));
    for (int offset = 0; offset < count;) {
        const int length = std::min(piece, count - offset);
        work(offset, length);
        offset += length;
    }
}

using CPriceBlock = CSeriesBlock<double>;
using CVolumeBlock = CSeriesBlock<std::int64_t>;

} // namespace zantroq
