// The status bar's three parts. Part 0 holds the running messages, which are held back while a trendline mode
// is armed so that its prompt stays readable; prompts are written whatever is armed. Chart window's thread.
#pragma once

#include "platform/WindowServices.h"

#include <array>
#include <string>

namespace zantroq {

class IWindowTrends;

class CStatusText : public IStatusBar
{
public:
    explicit CStatusText(IStatusBar& bar) : m_bar(bar) {}
    void SetTrends(const IWindowTrends* trends) { m_trends = trends; }

    void Message(const std::string& text);
    // Stands behind the messages until it is taken away with an empty text.
    void SetNotice(const std::string& notice);
    void SetPart(int part, const std::string& text) override; // unconditional: prompts, and parts 1 and 2
    const std::string& Part(int part) const { return m_parts.at(static_cast<std::size_t>(part)); }

private:
    IStatusBar& m_bar;
    const IWindowTrends* m_trends = nullptr; // not owned
    std::string m_message, m_notice;
    std::array<std::string, 3> m_parts;
};

} // namespace zantroq
