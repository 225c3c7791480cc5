// Cuts a stream of bytes into lines, in place and without sockets. The caller receives into Room() and calls
// Received, which passes on every complete line. CR and LF each end a line, so CR LF yields an empty line
// after the actual one. An incomplete line stays at the start of the buffer; if one line fills the buffer,
// Room() stays empty for ever. One thread.
#pragma once

#include "platform/parse/ByteMarks.h"

#include <bit>
#include <cstring>
#include <memory>
#include <span>
#include <string_view>

namespace zantroq {

class CLineCutter
{
public:
    static constexpr int LookupCapacity = 65536;
    static constexpr int StreamCapacity = 4096;

    // A line fits if it has fewer than `capacity` bytes, line end included.
    explicit CLineCutter(int capacity)
        : m_capacity(capacity), m_buffer(new char[static_cast<std::size_t>(capacity) + BlockSize]())
    {
    }

    // The free part of the buffer: capacity - 1 - Pending() bytes.
    std::span<char> Room()
    {
        return {m_buffer.get() + m_pending, static_cast<std::size_t>(m_capacity - 1 - m_pending)};
    }

    // Number of bytes of the incomplete line.
    int Pending() const { return m_pending; }

    // The caller has written `bytes` bytes to the start of Room(). Calls onLine(std::string_view) for each
    // line without its line end; the view is valid during the call. A line is cut at its first zero byte, as
    // in a C string.
    template<class OnLine> void Received(int bytes, OnLine&& onLine)
    {
        char* const buffer = m_buffer.get();
        const int total = m_pending + bytes;
        int start = 0, at = m_pending;
        ForEachMark(buffer, at, total, [&](int mark) {
            if (buffer[mark] == '\0') {
                if (m_zero < 0)
                    m_zero = mark - start;
                return;
            }
            const int length = m_zero < 0 ? mark - start : m_zero;
            const int first = start;
            start = mark + 1;
            m_zero = -1;
            onLine(std::string_view(buffer + first, static_cast<std::size_t>(length)));
        });
        m_pending = total - start;
        if (start > 0 && m_pending > 0)
            std::memmove(buffer, buffer + start, static_cast<std::size_t>(m_pending));
    }

private:
    static constexpr int BlockSize = 64;

    // Calls onMark, in order, with the position of each CR, LF and zero byte from `at` up to but not
    // including `total`.
    template<class OnMark> static void ForEachMark(const char* buffer, int at, int total, OnMark&& onMark)
    {
        // The buffer ends with a spare block; marks at or after `total` are masked out.
        for (; at < total; at += BlockSize) {
            std::uint64_t marks = MarkAtMost(buffer + at, '\r');
            if (total - at < BlockSize)
                marks &= (1ull << (total - at)) - 1;
            for (; marks; marks &= marks - 1) {
                const int mark = at + std::countr_zero(marks);
                const char found = buffer[mark];
                if (found == '\n' || found == '\r' || found == '\0')
                    onMark(mark);
            }
        }
    }

    const int m_capacity;
    const std::unique_ptr<char[]> m_buffer;
    int m_pending = 0;
    int m_zero = -1; // offset of the first zero byte in the incomplete line; -1: none
};

} // namespace zantroq
