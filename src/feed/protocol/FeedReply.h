// Replies that are written piece by piece: in blocks, so that two million lines for a slow reader need one
// block of memory, and in slices of time, so that no client waits for the whole reply of another. Feed thread
// only.
#pragma once

#include "feed/markets/WorkSlice.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace zantroq::feed {

// A growing text; callers can write directly into its unused end.
class CTextBlock
{
public:
    std::string_view Text() const { return {m_text.get(), m_size}; }
    std::size_t Size() const { return m_size; }
    void Clear() { m_size = 0; }
    // Returns the end of the text, with room for at least `count` more characters. What the caller writes
    // there becomes text with Commit.
    char* Reserve(std::size_t count);
    void Commit(const char* end) { m_size = static_cast<std::size_t>(end - m_text.get()); }
    void Append(std::string_view text);

private:
    std::unique_ptr<char[]> m_text;
    std::size_t m_size = 0, m_capacity = 0;
};

class IFeedReply
{
public:
    virtual ~IFeedReply() = default;
    // Appends lines until the block holds at least `limit` characters, the slice is over or the reply ends.
    // Implementations ask the slice after each line and after each step that writes no line.
    virtual WorkProgress Write(CTextBlock& block, std::size_t limit, CWorkSlice& slice) = 0;
};

// A reply whose text is known at construction.
class CTextReply : public IFeedReply
{
public:
    explicit CTextReply(std::string text) : m_text(std::move(text)) {}
    WorkProgress Write(CTextBlock& block, std::size_t, CWorkSlice&) override
    {
        block.Append(m_text);
        return WorkProgress::Ended;
    }

private:
    const std::string m_text;
};

} // namespace zantroq::feed
