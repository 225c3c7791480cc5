// Memory for vectors of a megabyte and more that are read in leaps: on large pages, where the system has
// them, since looking up small ones takes longer than the reading. What is smaller comes from the C library.
#pragma once

#include <cstddef>
#include <new>

namespace zantroq {

// Null when there is no such memory. To be given back with FreeLarge.
void* AllocateLarge(std::size_t bytes);
void FreeLarge(void* data);

// A standard allocator over it.
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
