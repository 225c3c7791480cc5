#include "ink/PointColumns.h"

#include <algorithm>

namespace zantroq {

namespace {

// The first number from `from` to `to` for which `beyond` is true. REQUIRES: it is then true for all that
// follow.
template<class F> std::size_t FirstBeyond(std::size_t from, std::size_t to, F beyond)
{
    while (from < to) {
        const std::size_t middle = from + (to - from) / 2;
        if (beyond(middle))
            to = middle;
        else
            from = middle + 1;
    }
    return from;
}

} // namespace

std::size_t CPointColumns::First(std::size_t from, int column) const
{
    return FirstBeyond(std::min(from, m_count), m_count,
                       [&](std::size_t i) { return !(ColumnOf(i) < column); });
}

std::size_t CPointColumns::End(std::size_t i, int column)
{
    const auto isEnd = [&](std::size_t at) {
        return ColumnOf(at - 1) == column && (at == m_count || ColumnOf(at) != column);
    };
    // Nearly always as many points as in the column before, or one more or less.
    for (const std::size_t guess : {i + m_stride, i + m_stride + 1, i + m_stride - 1})
        if (guess > i && guess <= m_count && isEnd(guess)) {
            m_stride = guess - i;
            return guess;
        }
    std::size_t inside = i, step = std::max<std::size_t>(m_stride, 1);
    std::size_t outside = std::min(i + step, m_count);
    while (outside < m_count && ColumnOf(outside) == column) {
        inside = outside;
        step *= 2;
        outside = std::min(outside + step, m_count);
    }
    const std::size_t end =
        FirstBeyond(inside, outside, [&](std::size_t at) { return ColumnOf(at) != column; });
    m_stride = end - i;
    return end;
}

} // namespace zantroq
