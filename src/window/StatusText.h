// The three parts of the status bar. Messages go to part 0. While a trendline mode is active, messages are
// ignored so that the prompt of the mode stays visible; prompts are always shown. Chart window's thread.
#pragma once

#include "platform/WindowServices.h"

#include <array>
#include <string>

namespace zantroq {

class IWindowTrends;

class CStatusText : public IStatusBar
{
public:
    // Nothing is owned. The constructor stores `trends` but does not call it.
    CStatusText(IStatusBar& bar, const IWindowTrends& trends) : m_bar(bar), m_trends(trends) {}

    void Message(const std::string& text);
    // Shown after each message until it is cleared with an empty text.
    void SetNotice(const std::string& notice);
    void SetPart(int part, const std::string& text) override; // always shown: prompts, and parts 1 and 2
    const std::string& Part(int part) const { return m_parts.at(static_cast<std::size_t>(part)); }

private:
    IStatusBar& m_bar;
    const IWindowTrends& m_trends;
    std::string m_message, m_notice;
    std::array<std::string, 3> m_parts;
};

} // namespace zantroq
