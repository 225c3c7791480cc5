// Many short texts in one block of memory, and the search for a substring in them.
#pragma once

#include "feed/markets/CaseFolding.h"
#include "platform/parse/ByteMarks.h"

#include <bit>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zantroq::feed {

// Filled once by Add and Close, then constant and safe to read from any thread.
class CTextTable
{
public:
    void Reserve(std::size_t texts, std::size_t bytes)
    {
        m_starts.reserve(texts + 1);
        m_bytes.reserve(bytes + Padding);
    }
    void Add(std::string_view text)
    {
        m_bytes.append(text);
        m_starts.push_back(m_bytes.size());
    }
    // Must be called after the last Add, before any search: the search reads past the last text.
    void Close()
    {
        m_textBytes = m_bytes.size();
        m_bytes.append(Padding, '\0');
    }

    std::size_t Size() const { return m_starts.size() - 1; }
    std::string_view operator[](std::size_t i) const
    {
        return {m_bytes.data() + m_starts[i], m_starts[i + 1] - m_starts[i]};
    }
    std::size_t TextBytes() const { return m_textBytes; }
    std::size_t OtherBytes() const
    {
        return m_starts.capacity() * sizeof m_starts[0] + m_bytes.capacity() - m_textBytes;
    }

    // Calls onText(i), in order, for each text from `from` up to but not including `to` that contains
    // `folded`. `folded` is 1 to LongestPiece bytes of folded ASCII text. Only the case of ASCII letters is
    // ignored.
    template<class TOnText>
    void FindAscii(std::string_view folded, std::size_t from, std::size_t to, TOnText onText) const;

    static constexpr std::size_t LongestPiece = 8192;

private:
    static constexpr std::size_t BlockSize = 64;
    static constexpr std::size_t Padding = BlockSize + LongestPiece;

    static std::uint64_t MarkLetter(const char* block, char folded)
    {
        const bool letter = folded >= 'a' && folded <= 'z';
        const std::uint64_t marks = MarkEqual(block, folded);
        return letter ? marks | MarkEqual(block, static_cast<char>(folded - 'a' + 'A')) : marks;
    }
    static bool EqualAscii(const char* text, std::string_view folded)
    {
        for (std::size_t i = 0; i < folded.size(); ++i)
            if (FoldAscii(text[i]) != folded[i])
                return false;
        return true;
    }

    std::string m_bytes;
    std::vector<std::uint64_t> m_starts{0}; // start of each text, then the end of the last text
    std::size_t m_textBytes = 0;
};

// A position is compared in full only if the first and the last byte match there. A few instructions test 64
// positions for that.
template<class TOnText>
void CTextTable::FindAscii(std::string_view folded, std::size_t from, std::size_t to, TOnText onText) const
{
    if (from >= to)
        return;
    const char first = folded.front(), last = folded.back();
    const std::size_t length = folded.size(), end = m_starts[to];
    std::size_t text = from;
    std::size_t least = m_starts[from]; // smaller positions belong to texts already done
    for (std::size_t block = least; block < end; block += BlockSize) {
        const char* const bytes = m_bytes.data() + block;
        std::uint64_t marks = MarkLetter(bytes, first) & MarkLetter(bytes + length - 1, last);
        for (; marks != 0; marks &= marks - 1) {
            const std::size_t place = block + static_cast<std::size_t>(std::countr_zero(marks));
            if (place < least || place >= end || !EqualAscii(m_bytes.data() + place, folded))
                continue;
            while (m_starts[text + 1] <= place)
                ++text;
            if (place + length > m_starts[text + 1])
                continue; // reaches into the next text
            onText(text);
            least = m_starts[text + 1];
        }
        // The text was found; the rest of it is skipped.
        if (least > block + BlockSize)
            block += (least - block) / BlockSize * BlockSize - BlockSize;
    }
}

} // namespace zantroq::feed
