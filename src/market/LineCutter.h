// Cuts a stream of bytes into lines, in place and without sockets: the reader receives into Room(), says how
// many bytes came, and gets every line that is now whole. A carriage return and a line feed each end a line,
// so that a CR LF pair gives an empty line behind the real one. A partial line waits at the start of the
// buffer; when one line fills the buffer, Room() is empty for good. Belongs to the thread that reads.
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

    // A line, its end included, fits when it has fewer than `capacity` bytes.
    explicit CLineCutter(int capacity)
        : m_capacity(capacity), m_buffer(new char[static_cast<std::size_t>(capacity) + BlockSize]())
    {
    }

    // Where the next bytes go: at most capacity - 1 - Pending() of them.
    std::span<char> Room()
    {
        return {m_buffer.get() + m_pending, static_cast<std::size_t>(m_capacity - 1 - m_pending)};
    }

    // Bytes of the partial line that waits for its end.
    int Pending() const { return m_pending; }

    // `bytes` have been written to the start of Room(). Calls onLine(std::string_view) for each line, without
    // its end; the view holds during the call. As a line is a C text to its readers, it ends at a zero byte
    // if it has one.
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

    // Calls onMark with the position of each CR, LF and zero byte from `at` to `total`, in order.
    template<class OnMark> static void ForEachMark(const char* buffer, int at, int total, OnMark&& onMark)
    {
        // The buffer has a spare block behind it; what is read past `total` is masked out.
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
    int m_zero = -1; // where the partial line has its first zero byte; -1: nowhere
};

} // namespace zantroq
