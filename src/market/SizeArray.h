// The bid sizes or ask sizes of a series. No history line carries any, so the zeros of a reply are only
// counted, and elements are kept from the first size on that a live trade brings. Guarded by its owner. Every
// index is checked and fails with std::invalid_argument.
#pragma once

#include "market/GrowableArray.h"

#include <cstdint>

namespace zantroq {

class CSizeArray
{
public:
    int Count() const { return m_zeros + m_kept.Count(); }
    int Capacity() const { return m_zeros + m_kept.Capacity(); } // as if zeros took room, too

    void SetGrowStep(int step) { m_kept.SetGrowStep(step); }

    void Clear()
    {
        m_zeros = 0;
        m_kept.SetCount(0);
    }

    // As in CGrowableArray: room for one more, and the additions that then cannot fail.
    void PrepareAdd() { m_kept.PrepareAdd(); }
    void AddPrepared(std::int32_t size)
    {
        if (size == 0)
            AddZeros(1);
        else
            m_kept.AddPrepared(size);
    }
    void AddZeros(int count)
    {
        if (m_kept.Count() == 0)
            m_zeros += count;
        else
            m_kept.AddZeros(count);
    }

    std::int32_t operator[](int index) const
    {
        Check(index);
        return index < m_zeros ? 0 : m_kept[index - m_zeros];
    }

    void SetAt(int index, std::int32_t size)
    {
        Check(index);
        if (index < m_zeros && size == 0)
            return;
        if (index < m_zeros)
            KeepFrom(index);
        m_kept.SetAt(index - m_zeros, size);
    }

    void RemoveAt(int index)
    {
        Check(index);
        if (index < m_zeros)
            --m_zeros;
        else
            m_kept.RemoveAt(index - m_zeros);
    }

    void Check(int index) const
    {
        if (index < 0 || index >= Count())
            throw std::invalid_argument("array index outside the array");
    }

private:
    // Turns the zeros from `index` on into elements. The room that there was for more stays.
    void KeepFrom(int index)
    {
        const int zeros = m_zeros - index, count = zeros + m_kept.Count();
        CGrowableArray<std::int32_t> kept;
        kept.SetGrowStep(m_kept.GrowStep());
        kept.SetCount(zeros + m_kept.Capacity());
        kept.SetCount(count);
        for (int i = zeros; i < count; ++i)
            kept.SetAt(i, m_kept[i - zeros]);
        m_kept = std::move(kept);
        m_zeros = index;
    }

    int m_zeros = 0; // in front of m_kept
    CGrowableArray<std::int32_t> m_kept;
};

} // namespace zantroq
