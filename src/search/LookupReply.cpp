#include "search/LookupReply.h"

#include "platform/parse/LeadingNumber.h"

namespace zantroq {

bool CLookupReply::Take(std::string_view block)
{
    block = block.substr(0, block.find('\0'));
    if (const std::size_t marker = block.find("!ENDMSG!"); marker != std::string_view::npos) {
        block = block.substr(0, marker);
        // Removes the line end of this block only; a line end from an earlier block stays, and its row with
        // it.
        const std::size_t last = block.find_last_not_of("\r\n");
        m_text.append(block.substr(0, last == std::string_view::npos ? 0 : last + 1));
        return false;
    }
    if (block.find("!SYNTAX_ERROR!") != std::string_view::npos) {
        m_text.clear();
        return false;
    }
    m_text.append(block);
    return true;
}

bool CLookupReply::ReadId(std::string_view token, unsigned& id)
{
    id = static_cast<unsigned>(TextToInt(token));
    return id < LookupRows;
}

} // namespace zantroq
