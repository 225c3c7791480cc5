// The comma-separated fields of a line, as views into it. Keeps the first Most fields and ignores the rest of
// the line. A field that the line does not have throws std::invalid_argument. One thread.
#pragma once

#include "platform/parse/ByteMarks.h"

#include <array>
#include <bit>
#include <cstring>
#include <stdexcept>
#include <string_view>

namespace zantroq {

template<int Most> class CLineFields
{
public:
    explicit CLineFields(std::string_view line) : m_line(line.data())
    {
        m_starts[0] = 0;
        const int size = static_cast<int>(line.size());
        int at = 0;
        for (; at + BlockSize <= size; at += BlockSize)
            if (!TakeMarks(MarkEqual(m_line + at, ','), at))
                return;
        if (at < size && !TakeMarks(RestMarks(at, size), at))
            return;
        m_starts[++m_count] = size + 1;
    }

    int Count() const { return m_count; }

    std::string_view operator[](int field) const
    {
        if (field >= m_count)
            throw std::invalid_argument("line has too few fields");
        return At(field);
    }

    // The field without a check. REQUIRES: field < Count().
    std::string_view At(int field) const
    {
        return {m_line + m_starts[field],
                static_cast<std::size_t>(m_starts[field + 1] - m_starts[field] - 1)};
    }

    // Number of bytes of the line before the field. REQUIRES: field < Count().
    std::size_t Before(int field) const { return static_cast<std::size_t>(m_starts[field]); }

    // Points past the last character of the field. REQUIRES: field < Count().
    const char* End(int field) const { return m_line + m_starts[field + 1] - 1; }

    // Start position of each field, then the position where one more field would start: Count() + 1 numbers.
    const int* Starts() const { return m_starts.data(); }

private:
    static constexpr int BlockSize = 64;

    // Commas in the last, incomplete block, which starts at `at`. Reads nothing past the line.
    std::uint64_t RestMarks(int at, int size) const
    {
        if (size >= BlockSize)
            return MarkEqual(m_line + size - BlockSize, ',') >> (at + BlockSize - size);
        char block[BlockSize] = {};
        std::memcpy(block, m_line, static_cast<std::size_t>(size));
        return MarkEqual(block, ',');
    }

    // Returns false once all fields to keep are found.
    bool TakeStart(int start)
    {
        m_starts[++m_count] = start;
        return m_count < Most;
    }

    bool TakeMarks(std::uint64_t marks, int at)
    {
        for (; marks; marks &= marks - 1)
            if (!TakeStart(at + std::countr_zero(marks) + 1))
                return false;
        return true;
    }

    const char* m_line;
    int m_count = 0;
    std::array<int, Most + 1> m_starts; // field i: from m_starts[i] to the comma before m_starts[i + 1]
};

} // namespace zantroq
