// Prefetches memory that is about to be accessed in an order that the processor cannot predict. Hints only;
// other compilers than GCC and clang ignore them. Any thread.
#pragma once

#include <cstddef>

namespace zantroq {

inline void Prefetch(const double* values, std::size_t count)
{
#ifdef __GNUC__
    constexpr std::size_t line = 8; // numbers per cache line
    for (std::size_t i = 0; i < count; i += line)
        __builtin_prefetch(values + i);
    __builtin_prefetch(values + count - 1);
#else
    static_cast<void>(values);
    static_cast<void>(count);
#endif
}

inline void Prefetch(const double* value)
{
#ifdef __GNUC__
    __builtin_prefetch(value);
#else
    static_cast<void>(value);
#endif
}

// Prefetches the memory of a pixel for writing.
inline void PrefetchPixel(const void* pixel)
{
#ifdef __GNUC__
    __builtin_prefetch(pixel, 1);
#else
    static_cast<void>(pixel);
#endif
}

} // namespace zantroq
