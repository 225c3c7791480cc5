// Splits the bytes that a client sends into command lines. CR and LF both end a line. One thread at a time.
#pragma once

#include <string>
#include <string_view>

namespace zantroq::feed {

class CClientLines
{
public:
    // In bytes, longer than any command. A longer line is reported once and dropped up to its end.
    static constexpr std::size_t MaxLine = 8192;

    // Calls onLine(std::string_view) for each complete line, in order, and onTooLong() for each line that
    // exceeds MaxLine. The view is valid during the call. An incomplete line is kept for the next Take.
    template<class TOnLine, class TOnTooLong>
    void Take(std::string_view bytes, TOnLine onLine, TOnTooLong onTooLong)
    {
        for (const char c : bytes) {
            if (c == '\r' || c == '\n') {
                if (!m_dropping)
                    onLine(std::string_view(m_line));
                m_line.clear();
                m_dropping = false;
            } else if (!m_dropping) {
                m_line += c;
                if (m_line.size() > MaxLine) {
                    m_line.clear();
                    m_dropping = true;
                    onTooLong();
                }
            }
        }
    }

private:
    std::string m_line;
    bool m_dropping = false;
};

} // namespace zantroq::feed
