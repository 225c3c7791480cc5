// Reads two short numbers at once. Each half of a 128-bit word holds the eight characters before the end of
// one number; characters up to and including the last comma before the number are ignored. Needs SSE2, which
// every 64-bit PC has. Any thread.
#pragma once

#if defined(__SSE2__)

#include "platform/parse/DigitBlock.h"

#include <bit>
#include <cstdint>
#include <emmintrin.h>

namespace zantroq {

class CDigitPair
{
public:
    // Reads all eight bytes before each end.
    CDigitPair(const char* firstEnd, const char* secondEnd)
    {
        const __m128i text = Join(firstEnd - 8, secondEnd - 8);
        const __m128i commas = _mm_cmpeq_epi8(text, _mm_set1_epi8(','));
        __m128i foreign = _mm_or_si128(commas, _mm_srli_epi64(commas, 8));
        foreign = _mm_or_si128(foreign, _mm_srli_epi64(foreign, 16));
        foreign = _mm_or_si128(foreign, _mm_srli_epi64(foreign, 32));
        m_digits = _mm_andnot_si128(foreign, _mm_xor_si128(text, _mm_set1_epi8('0')));
    }

    // One bit for each byte that is not a digit; the first number has the lowest eight bits.
    unsigned MarkNoDigits() const
    {
        const __m128i excess = _mm_subs_epu8(m_digits, _mm_set1_epi8(9));
        return Mask(_mm_cmpeq_epi8(excess, _mm_setzero_si128())) ^ 0xFFFFu;
    }

    // Removes the decimal point from each number that has one. Returns false if a number has another
    // character that is not a digit; the pair must not be used then. `powers` becomes the divisor of each
    // number.
    bool TakePoints(__m128d& powers)
    {
        const __m128i points = _mm_cmpeq_epi8(m_digits, _mm_set1_epi8('.' ^ '0'));
        const unsigned marks = Mask(points), first = marks & 0xFF, second = marks >> 8;
        if (marks != MarkNoDigits() || (first & (first - 1)) != 0 || (second & (second - 1)) != 0)
            return false;
        const sPoint &a = Points[std::countr_zero(first | 0x100)],
                     &b = Points[std::countr_zero(second | 0x100)];
        const __m128i whole = Join(&a.Whole, &b.Whole);
        const __m128i digits = _mm_andnot_si128(points, m_digits);
        m_digits =
            _mm_or_si128(_mm_slli_epi64(_mm_and_si128(digits, whole), 8), _mm_andnot_si128(whole, digits));
        powers = _mm_set_pd(b.Power, a.Power);
        return true;
    }

    // The values of two pairs as 32-bit integers, in order. REQUIRES: digits only.
    static __m128i Values(const CDigitPair& a, const CDigitPair& b)
    {
        const __m128i fours = _mm_packs_epi32(a.Fours(), b.Fours());
        return _mm_madd_epi16(fours, _mm_set1_epi32(10000 | 1 << 16));
    }

private:
    // For a decimal point in byte i of a half; i is 8 if there is none.
    struct sPoint
    {
        std::uint64_t Whole; // mask of the bytes before the point
        double Power;        // 10 to the number of digits after the point
    };
    static constexpr sPoint Points[9] = {
        {0, 1e7},          {0xFF, 1e6},         {0xFFFF, 1e5},         {0xFFFFFF, 1e4},
        {0xFFFFFFFF, 1e3}, {0xFFFFFFFFFF, 1e2}, {0xFFFFFFFFFFFF, 1e1}, {0xFFFFFFFFFFFFFF, 1e0},
        {0, 1e0}};

    static __m128i Join(const void* low, const void* high)
    {
        return _mm_unpacklo_epi64(_mm_loadl_epi64(static_cast<const __m128i*>(low)),
                                  _mm_loadl_epi64(static_cast<const __m128i*>(high)));
    }

    static unsigned Mask(__m128i bytes) { return static_cast<unsigned>(_mm_movemask_epi8(bytes)); }

    // The value of each group of four digits.
    __m128i Fours() const
    {
        const __m128i tens =
            _mm_mullo_epi16(_mm_and_si128(m_digits, _mm_set1_epi16(0xFF)), _mm_set1_epi16(10));
        const __m128i pairs = _mm_add_epi16(tens, _mm_srli_epi16(m_digits, 8));
        return _mm_madd_epi16(pairs, _mm_set1_epi32(100 | 1 << 16));
    }

    __m128i m_digits; // characters minus '0'; 0 for ignored characters
};

} // namespace zantroq

#endif
