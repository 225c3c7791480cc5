#include "feed/protocol/FeedReply.h"

#include "feed/markets/TextWriter.h"

#include <algorithm>

namespace zantroq::feed {

char* CTextBlock::Reserve(std::size_t count)
{
    if (m_size + count > m_capacity) {
        const std::size_t capacity = std::max({m_size + count, m_capacity * 2, std::size_t{4096}});
        std::unique_ptr<char[]> text(new char[capacity]);
        if (m_size > 0)
            WriteText(text.get(), Text());
        m_text = std::move(text);
        m_capacity = capacity;
    }
    return m_text.get() + m_size;
}

void CTextBlock::Append(std::string_view text)
{
    Commit(WriteText(Reserve(text.size()), text));
}

} // namespace zantroq::feed
