// Finds bytes in a block of 64: bit i of the result is set if byte i matches. Reads all 64 bytes. Any thread.
#pragma once

#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace zantroq {

#if defined(__SSE2__)

namespace detail {

template<class Compare> std::uint64_t MarksOf64(const char* block, Compare&& compare)
{
    const auto quarter = [&](int i) -> std::uint64_t {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(block) + i);
        return static_cast<unsigned>(_mm_movemask_epi8(compare(bytes)));
    };
    return quarter(0) | quarter(1) << 16 | quarter(2) << 32 | quarter(3) << 48;
}

} // namespace detail

inline std::uint64_t MarkEqual(const char* block, char wanted)
{
    const __m128i all = _mm_set1_epi8(wanted);
    return detail::MarksOf64(block, [&](__m128i bytes) { return _mm_cmpeq_epi8(bytes, all); });
}

// Marks bytes up to and including `greatest`, compared as unsigned numbers.
inline std::uint64_t MarkAtMost(const char* block, char greatest)
{
    const __m128i all = _mm_set1_epi8(greatest);
    return detail::MarksOf64(block,
                             [&](__m128i bytes) { return _mm_cmpeq_epi8(_mm_min_epu8(bytes, all), bytes); });
}

#else

inline std::uint64_t MarkEqual(const char* block, char wanted)
{
    std::uint64_t marks = 0;
    for (int i = 0; i < 64; ++i)
        marks |= static_cast<std::uint64_t>(block[i] == wanted) << i;
    return marks;
}

inline std::uint64_t MarkAtMost(const char* block, char greatest)
{
    std::uint64_t marks = 0;
    for (int i = 0; i < 64; ++i)
        marks |= static_cast<std::uint64_t>(static_cast<unsigned char>(block[i]) <=
                                            static_cast<unsigned char>(greatest))
                 << i;
    return marks;
}

#endif

} // namespace zantroq
