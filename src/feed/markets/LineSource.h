// The lines of a text in memory or of a file. A file is read in blocks, so that its size does not matter. One
// thread at a time.
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace zantroq::feed {

// Longer lines are never kept whole.
inline constexpr std::size_t LongestLine = 65'536;

class ILineSource
{
public:
    virtual ~ILineSource() = default;
    // The next line without its end, valid until the next call; CR LF, LF and a lone CR all end a line. Of a
    // line longer than LongestLine only its first LongestLine + 1 bytes are handed out. False at the end, and
    // after a failed read.
    virtual bool Next(std::string_view& line) = 0;
    // How many lines of at least so many bytes there are; 0 where finding out would cost more than it saves.
    virtual std::size_t CountLines(std::size_t atLeast) = 0;
    // Whether the text ended early because it could not be read on.
    virtual bool HasFailed() const { return false; }
};

class CTextLines : public ILineSource
{
public:
    explicit CTextLines(std::string_view text) : m_text(text) {}
    bool Next(std::string_view& line) override;
    std::size_t CountLines(std::size_t) override { return 0; }

private:
    std::string_view m_text;
};

class CFileLines : public ILineSource
{
public:
    CFileLines() = default;
    ~CFileLines() override;
    CFileLines(const CFileLines&) = delete;
    CFileLines& operator=(const CFileLines&) = delete;

    // False when the file cannot be opened or is no plain file: opening a pipe would wait for a writer.
    bool Open(const std::filesystem::path& path);
    bool Next(std::string_view& line) override;
    // Reads the whole file and begins anew.
    std::size_t CountLines(std::size_t atLeast) override;
    bool HasFailed() const override { return m_failed; }

private:
    static constexpr std::size_t BlockSize = 256 * 1024; // room for the longest line

    bool ReadBlock();
    void SkipRestOfLine();
    // The first line end from `from` on, or m_end.
    std::size_t FindLineEnd(std::size_t from) const;
    void StepOverLineEnd(std::size_t at);
    void Rewind();

    int m_file = -1;
    std::unique_ptr<char[]> m_block;
    std::string m_tooLong;              // the start of the line handed out last, where it was too long
    std::size_t m_begin = 0, m_end = 0; // bytes of the block not yet handed out
    bool m_afterReturn = false;         // a line feed that comes next belongs to the line before
    bool m_atEnd = false, m_failed = false;
};

} // namespace zantroq::feed
