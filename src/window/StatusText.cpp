#include "window/StatusText.h"

#include "window/WindowTrends.h"

namespace zantroq {

void CStatusText::Message(const std::string& text)
{
    if (m_trends.State() != 0)
        return;
    m_message = text;
    SetPart(0, m_notice.empty() ? text : text + "  " + m_notice);
}

void CStatusText::SetNotice(const std::string& notice)
{
    if (notice == m_notice)
        return;
    m_notice = notice;
    Message(m_message);
}

void CStatusText::SetPart(int part, const std::string& text)
{
    m_parts.at(static_cast<std::size_t>(part)) = text;
    m_bar.SetPart(part, text);
}

} // namespace zantroq
