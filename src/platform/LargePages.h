// Memory for vectors that are read in random order. Blocks of a megabyte and more use large pages where the
// system has them, because address translation with small pages takes longer than the reading itself. Smaller
// blocks come from the C library. Any thread.
#pragma once

#include <cstddef>
#include <new>

namespace zantroq {

// Returns null if memory is short. Release with FreeLarge.
void* AllocateLarge(std::size_t bytes);
void FreeLarge(void* data);

// A standard allocator that uses AllocateLarge.
template<class T> struct CLargePages
{
    using value_type = T;

    CLargePages() = default;
    template<class U> CLargePages(const CLargePages<U>&) {}

    T* allocate(std::size_t count)
    {
        void* const data =
            count > static_cast<std::size_t>(-1) / 2 / sizeof(T) ? nullptr : AllocateLarge(count * sizeof(T));
        if (!data)
            throw std::bad_alloc();
        return static_cast<T*>(data);
    }
    void deallocate(T* data, std::size_t) { FreeLarge(data); }

    template<class U> bool operator==(const CLargePages<U>&) const { return true; }
};

} // namespace zantroq
