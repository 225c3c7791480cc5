// How many values at the beginning of a vector are known to count up by one, kept up to date while the vector
// changes. The x values of a pane nearly always count up, and then need not be read.
#pragma once

#include <algorithm>
#include <cstddef>

namespace zantroq {

class CConsecutiveRun
{
public:
    // Whether all of the first `size` values count up.
    bool Covers(std::size_t size) const { return m_count >= size; }
    std::size_t Count() const { return m_count; }
    double First() const { return m_first; }

    void Set(double first, std::size_t count)
    {
        m_first = first;
        m_count = IsCountable(first) ? count : 0;
    }
    void Forget() { m_count = 0; }
    void Wrote(std::size_t i, double x)
    {
        if (i == 0)
            Set(x, m_count > 0 && x == m_first ? m_count : 1);
        else if (i <= m_count)
            m_count = x == m_first + static_cast<double>(i) ? std::max(m_count, i + 1) : i;
    }
    // `count` values from position `from` on were copied to the beginning.
    void Moved(std::size_t count, std::size_t from)
    {
        if (from == 0 || count == 0)
            return;
        const std::size_t end = std::min(m_count, from + count);
        Set(m_first + static_cast<double>(from), end > from ? end - from : 0);
    }
    void Cut(std::size_t size) { m_count = std::min(m_count, size); }

private:
    // Adding 1 must change the number, so very large ones are not tracked.
    static bool IsCountable(double first) { return first > -1e15 && first < 1e15; }

    double m_first = 1;
    std::size_t m_count = 0;
};

} // namespace zantroq
