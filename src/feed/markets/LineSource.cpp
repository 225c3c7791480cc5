#include "feed/markets/LineSource.h"

#include "feed/markets/CsvLine.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zantroq::feed {

bool CTextLines::Next(std::string_view& line)
{
    if (!TakeLine(m_text, line))
        return false;
    line = line.substr(0, LongestLine + 1);
    return true;
}

CFileLines::~CFileLines()
{
    if (m_file >= 0)
        close(m_file);
}

bool CFileLines::Open(const std::filesystem::path& path)
{
    m_file = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat status;
    if (m_file < 0 || fstat(m_file, &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    m_block = std::make_unique<char[]>(BlockSize);
    return true;
}

void CFileLines::Rewind()
{
    m_begin = m_end = 0;
    m_afterReturn = m_atEnd = false;
    m_failed = m_failed || lseek(m_file, 0, SEEK_SET) != 0;
}

// Moves the unread bytes to the front of the block and fills the rest; false if no byte was added.
bool CFileLines::ReadBlock()
{
    if (m_atEnd || m_failed)
        return false;
    std::memmove(m_block.get(), m_block.get() + m_begin, m_end - m_begin);
    m_end -= m_begin;
    m_begin = 0;
    ssize_t count = 0;
    do
        count = read(m_file, m_block.get() + m_end, BlockSize - m_end);
    while (count < 0 && errno == EINTR);
    m_failed = count < 0;
    m_atEnd = count == 0;
    if (count <= 0)
        return false;
    m_end += static_cast<std::size_t>(count);
    return true;
}

std::size_t CFileLines::FindLineEnd(std::size_t from) const
{
    const char* const block = m_block.get();
    std::size_t end = m_end;
    if (const void* const feed = std::memchr(block + from, '\n', end - from))
        end = static_cast<std::size_t>(static_cast<const char*>(feed) - block);
    if (const void* const carriage = std::memchr(block + from, '\r', end - from))
        end = static_cast<std::size_t>(static_cast<const char*>(carriage) - block);
    return end;
}

void CFileLines::StepOverLineEnd(std::size_t at)
{
    m_afterReturn = m_block[at] == '\r';
    m_begin = at + 1;
}

void CFileLines::SkipRestOfLine()
{
    for (;;) {
        const std::size_t end = FindLineEnd(m_begin);
        if (end < m_end) {
            StepOverLineEnd(end);
            return;
        }
        m_begin = m_end;
        if (!ReadBlock())
            return;
    }
}

bool CFileLines::Next(std::string_view& line)
{
    if (m_begin == m_end && !ReadBlock())
        return false;
    if (m_afterReturn && m_block[m_begin] == '\n') {
        m_afterReturn = false;
        ++m_begin;
        return Next(line);
    }
    m_afterReturn = false;
    std::size_t end = FindLineEnd(m_begin);
    while (end == m_end && end - m_begin <= LongestLine) {
        const std::size_t looked = end - m_begin;
        const bool more = ReadBlock();
        end = FindLineEnd(m_begin + looked);
        if (!more)
            break;
    }
    const std::size_t size = end - m_begin;
    if (size > LongestLine) {
        // Reading on to find the end of the line overwrites its beginning in the block.
        m_tooLong.assign(m_block.get() + m_begin, LongestLine + 1);
        line = m_tooLong;
        SkipRestOfLine();
        return true;
    }
    line = {m_block.get() + m_begin, size};
    if (end < m_end)
        StepOverLineEnd(end);
    else
        m_begin = m_end;
    return true;
}

std::size_t CFileLines::CountLines(std::size_t atLeast)
{
    std::size_t count = 0;
    for (std::string_view line; Next(line);)
        count += line.size() >= atLeast ? 1 : 0;
    Rewind();
    return count;
}

} // namespace zantroq::feed
