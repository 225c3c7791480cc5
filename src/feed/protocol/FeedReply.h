// Replies in the making. A reply writes itself in blocks as the reader takes them, so that two million lines
// to a slow reader cost one block of memory. Used on the feed's thread.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace zantroq::feed {

// A growing piece of text whose unused end can be written to directly.
class CTextBlock
{
public:
    std::string_view Text() const { return {m_text.get(), m_size}; }
    std::size_t Size() const { return m_size; }
    void Clear() { m_size = 0; }
    // Room for at least `count` more characters at the end; what was written there counts from Commit on.
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
    // Appends lines until the block holds at least `limit` characters or the reply ends; true while there is
    // more.
    virtual bool Write(CTextBlock& block, std::size_t limit) = 0;
};

// Text that is there already.
class CTextReply : public IFeedReply
{
public:
    explicit CTextReply(std::string text) : m_text(std::move(text)) {}
    bool Write(CTextBlock& block, std::size_t) override
    {
        block.Append(m_text);
        return false;
    }

private:
    const std::string m_text;
};

} // namespace zantroq::feed
