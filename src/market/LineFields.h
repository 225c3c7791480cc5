// The comma-separated fields of one line as views into it. Only the first Most fields are kept; what follows
// them is not looked at. A field that the line does not have fails with std::invalid_argument.
#pragma once

#include <array>
#include <stdexcept>
#include <string_view>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace zantroq {

template<int Most> class CLineFields
{
public:
    explicit CLineFields(std::string_view line) : m_line(line.data())
    {
        m_starts[0] = 0;
        const int size = static_cast<int>(line.size());
        int at = 0;
#if defined(__SSE2__)
        const __m128i comma = _mm_set1_epi8(',');
        for (; at + 16 <= size; at += 16) {
            const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(m_line + at));
            auto marks = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(block, comma)));
            for (; marks; marks &= marks - 1) {
                m_starts[++m_count] = at + __builtin_ctz(marks) + 1;
                if (m_count == Most)
                    return;
            }
        }
#endif
        for (; at < size; ++at) {
            if (m_line[at] != ',')
                continue;
            m_starts[++m_count] = at + 1;
            if (m_count == Most)
                return;
        }
        m_starts[++m_count] = size + 1;
    }

    int Count() const
    {
        return m_count;
    }

    std::string_view operator[](int field) const
    {
        if (field >= m_count)
            throw std::invalid_argument("line has too few fields");
        return {m_line + m_starts[field],
                static_cast<std::size_t>(m_starts[field + 1] - m_starts[field] - 1)};
    }

private:
    const char* m_line;
    int m_count = 0;
    std::array<int, Most + 1> m_starts; // field i runs from m_starts[i] to the comma before m_starts[i + 1]
};

} // namespace zantroq
