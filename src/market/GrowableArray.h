// An array with separate count and capacity that grows by a settable step. Elements are trivially copyable.
// Not thread-safe: the owner locks. An index out of range throws std::invalid_argument.
#pragma once

#include "platform/MemoryBlock.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace zantroq {

template<class T> class CGrowableArray
{
    static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);

public:
    CGrowableArray() = default;
    ~CGrowableArray() { FreeBlock(m_block); }
    CGrowableArray(const CGrowableArray&) = delete;
    CGrowableArray& operator=(const CGrowableArray&) = delete;
    CGrowableArray(CGrowableArray&& other) noexcept { Swap(other); }
    CGrowableArray& operator=(CGrowableArray&& other) noexcept
    {
        Swap(other);
        return *this;
    }

    int Count() const { return m_count; }
    int Capacity() const { return m_capacity; } // elements that fit without growing
    int LastIndex() const { return m_count - 1; }
    const T* Data() const { return static_cast<const T*>(m_block.Data); }

    // 0 means the default: an eighth of the count, at least 4 and at most 1,024.
    void SetGrowStep(int step) { m_step = std::max(step, 0); }
    int GrowStep() const { return m_step; }

    // Value-initialises new elements; count 0 frees the memory. Throws std::invalid_argument for a negative
    // count.
    void SetCount(int count)
    {
        if (count < 0)
            throw std::invalid_argument("array count below zero");
        if (count == 0) {
            FreeBlock(m_block);
            m_count = m_capacity = 0;
            return;
        }
        MakeRoom(count);
        for (int i = m_count; i < count; ++i)
            new (Elements() + i) T();
        m_count = count;
    }

    // Makes room for one element, so that the next Add cannot fail.
    void PrepareAdd()
    {
        if (m_count == m_capacity)
            MakeRoom(m_count + 1);
    }

    // Returns the index of the new element. Throws std::bad_alloc and leaves the array unchanged if memory is
    // short.
    int Add(const T& value)
    {
        const T copy = value;
        PrepareAdd();
        AddPrepared(copy);
        return m_count - 1;
    }

    // Add without a capacity check. REQUIRES: PrepareAdd after the last addition.
    void AddPrepared(const T& value) { new (Elements() + m_count++) T(value); }

    // Adds several elements. REQUIRES: Capacity() - Count() >= count, also for AddZeros.
    void AddPrepared(const T* values, int count)
    {
        std::memcpy(static_cast<void*>(Elements() + m_count), values,
                    static_cast<std::size_t>(count) * sizeof(T));
        m_count += count;
    }

    void AddZeros(int count)
    {
        std::memset(static_cast<void*>(Elements() + m_count), 0, static_cast<std::size_t>(count) * sizeof(T));
        m_count += count;
    }

    const T& operator[](int index) const
    {
        Check(index);
        return Data()[index];
    }
    void SetAt(int index, const T& value)
    {
        Check(index);
        Elements()[index] = value;
    }

    void RemoveAt(int index)
    {
        Check(index);
        std::memmove(static_cast<void*>(Elements() + index), Elements() + index + 1,
                     static_cast<std::size_t>(m_count - index - 1) * sizeof(T));
        --m_count;
    }

    void Check(int index) const
    {
        if (index < 0 || index >= m_count)
            throw std::invalid_argument("array index outside the array");
    }

private:
    T* Elements() { return static_cast<T*>(m_block.Data); }

    void MakeRoom(int count)
    {
        if (count <= m_capacity)
            return;
        const int step = m_step > 0 ? m_step : std::clamp(m_count / 8, 4, 1024);
        const int capacity = std::max(count, m_capacity + step);
        GrowBlock(m_block, static_cast<std::size_t>(capacity) * sizeof(T));
        m_capacity = capacity;
    }

    void Swap(CGrowableArray& other)
    {
        std::swap(m_block, other.m_block);
        std::swap(m_count, other.m_count);
        std::swap(m_capacity, other.m_capacity);
        std::swap(m_step, other.m_step);
    }

    sMemoryBlock m_block;
    int m_count = 0, m_capacity = 0, m_step = 0;
};

// Makes room for one element in each array, so that running out of memory leaves all arrays equally long.
template<class... Arrays> void PrepareAll(Arrays&... arrays)
{
    (arrays.PrepareAdd(), ...);
}

} // namespace zantroq
