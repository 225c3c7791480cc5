// The values of one vector of a pane. A live chart drops values at the left for each value that it appends at
// the right; here that costs the dropped values and not those that stay, except that once an eighth of the
// array's length has been dropped, the array moves back to the front of its memory. Chart window's thread.
#pragma once

#include "platform/LargePages.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace zantroq {

class CSlidingArray
{
public:
    CSlidingArray() = default;
    CSlidingArray(std::size_t size, double value) : m_store(size, value) {}

    std::size_t size() const { return m_store.size() - m_begin; }
    double* data() { return m_store.data() + m_begin; }
    const double* data() const { return m_store.data() + m_begin; }
    double* begin() { return data(); }
    double* end() { return data() + size(); }
    const double* begin() const { return data(); }
    const double* end() const { return data() + size(); }
    double& operator[](std::size_t i) { return data()[i]; }
    const double& operator[](std::size_t i) const { return data()[i]; }
    operator std::span<const double>() const { return {data(), size()}; }
    // All values with the dropped ones before them. The place of a value in it does not change while the
    // array slides.
    std::span<const double> Places() const { return m_store; }
    std::size_t Begin() const { return m_begin; }

    void resize(std::size_t size, double value = 0)
    {
        if (m_begin + size > m_store.capacity()) // with room to slide before the values have to move
            m_store.reserve(m_begin + size + size / 8);
        m_store.resize(m_begin + size, value);
    }
    void clear()
    {
        m_store.clear();
        m_begin = 0;
    }

    // Copies `count` values from `from` on to the beginning; the values after those keep theirs. REQUIRES:
    // from + count <= size(). Returns the first place whose value may have changed.
    std::size_t MoveToFront(std::size_t count, std::size_t from)
    {
        const std::size_t had = size();
        if (from == 0 || count == 0)
            return m_store.size();
        if (from + count != had || from > had / 8) {
            std::copy_n(data() + from, count, data());
            return m_begin;
        }
        std::size_t kept = m_store.size();
        if (kept + from > m_store.capacity() && !MakeRoom())
            kept = 0;
        // The last values then appear twice: at their new and at their old position.
        m_store.insert(m_store.end(), from, 0.0);
        std::copy_n(m_store.end() - static_cast<std::ptrdiff_t>(2 * from), from,
                    m_store.end() - static_cast<std::ptrdiff_t>(from));
        m_begin += from;
        return kept;
    }

private:
    // Whether the values kept their places.
    bool MakeRoom()
    {
        const std::size_t had = size();
        if (m_begin < had / 8) {
            m_store.reserve(had + had / 4 + m_begin);
            return true;
        }
        m_store.erase(m_store.begin(), m_store.begin() + static_cast<std::ptrdiff_t>(m_begin));
        m_begin = 0;
        return false;
    }

    std::vector<double, CLargePages<double>>
        m_store; // the array's values, and m_begin ones before them that are gone
    std::size_t m_begin = 0;
};

} // namespace zantroq
