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
    // Nothing is owned. The constructor keeps `trends` and asks nothing of them.
    CStatusText(IStatusBar& bar, const IWindowTrends& trends) : m_bar(bar), m_trends(trends) {}

    void Message(const std::string& text);
    // Follows every message until it is cleared with an empty text.
    void SetNotice(const std::string& notice);
    void SetPart(int part, const std::string& text) override; // unconditional: prompts, and parts 1 and 2
    const std::string& Part(int part) const { return m_parts.at(static_cast<std::size_t>(part)); }

private:
    IStatusBar& m_bar;
    const IWindowTrends& m_trends;
    std::string m_message, m_notice;
    std::array<std::string, 3> m_parts;
};

} // namespace zantroq
