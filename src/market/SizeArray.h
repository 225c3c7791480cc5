// The bid or ask sizes of a series. History lines carry no sizes, so leading zeros are only counted; elements
// are stored from the first size that a live trade brings. Not thread-safe: the owner locks. An index out of
// range throws std::invalid_argument.
#pragma once

#include "market/GrowableArray.h"

#include <cstdint>

namespace zantroq {

class CSizeArray
{
public:
    int Count() const { return m_zeros + m_kept.Count(); }
    int Capacity() const { return m_zeros + m_kept.Capacity(); } // counts leading zeros as if they took room

    void SetGrowStep(int step) { m_kept.SetGrowStep(step); }

    void Clear()
    {
        m_zeros = 0;
        m_kept.SetCount(0);
    }

    // As in CGrowableArray: makes room for one element, so that the next addition cannot fail.
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
    // Turns the zeros from `index` on into stored elements. Keeps the spare capacity.
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

    int m_zeros = 0; // number of zeros before m_kept
    CGrowableArray<std::int32_t> m_kept;
};

} // namespace zantroq
