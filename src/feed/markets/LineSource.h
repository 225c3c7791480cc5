// The lines of a text in memory or of a file. A file is read in blocks, so a large file needs no more memory
// than a small one. One thread at a time.
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace zantroq::feed {

// In bytes. Of a longer line only the beginning is kept.
inline constexpr std::size_t LongestLine = 65'536;

class ILineSource
{
public:
    virtual ~ILineSource() = default;
    // Returns the next line without its line end; the view is valid until the next call. CR LF, LF and a lone
    // CR all end a line. Of a line longer than LongestLine, the first LongestLine + 1 bytes are returned.
    // Returns false at the end and after a failed read.
    virtual bool Next(std::string_view& line) = 0;
    // The number of lines of at least `atLeast` bytes; 0 if counting would cost more than it saves.
    virtual std::size_t CountLines(std::size_t atLeast) = 0;
    // True if a read failed before the end of the text.
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

    // Returns false if the file cannot be opened or is not a regular file. (Opening a pipe would wait for a
    // writer.)
    bool Open(const std::filesystem::path& path);
    bool Next(std::string_view& line) override;
    // Reads the whole file once; Next then starts at the first line again.
    std::size_t CountLines(std::size_t atLeast) override;
    bool HasFailed() const override { return m_failed; }

private:
    static constexpr std::size_t BlockSize = 256 * 1024; // room for the longest line

    bool ReadBlock();
    void SkipRestOfLine();
    // The position of the first line end at or after `from`; m_end if there is none.
    std::size_t FindLineEnd(std::size_t from) const;
    void StepOverLineEnd(std::size_t at);
    void Rewind();

    int m_file = -1;
    std::unique_ptr<char[]> m_block;
    std::string m_tooLong;              // beginning of the line returned last, if it was too long
    std::size_t m_begin = 0, m_end = 0; // bytes of the block not returned yet
    bool m_afterReturn = false; // the last line ended in CR, so a line feed that follows belongs to it
    bool m_atEnd = false, m_failed = false;
};

} // namespace zantroq::feed
