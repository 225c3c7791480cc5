// The trendlines of a chart window: their lists and the mouse state machine. Implements the interface that
// the window uses. Chart window's thread.
#pragma once

#include "drawing/PriceSource.h"
#include "platform/WindowServices.h"
#include "trends/TrendInteraction.h"
#include "trends/TrendLists.h"
#include "window/WindowTrends.h"

#include <functional>

namespace zantroq {

class CTrendDrawing : public IWindowTrends
{
public:
    // `prompt` writes a text to part 0 of the status bar, also while a mode is active. Nothing is owned; all
    // arguments must outlive this object.
    CTrendDrawing(IPaneWindow& window, const IPriceSource& prices, IMessageBox& box, IWindowTimer& timer,
                  std::function<void(const std::string&)> prompt);

    int State() const override { return m_machine.State(); }
    void ResetState() override { m_machine.OnNewChart(); }
    void RemoveAll() override { m_machine.OnRequest(); }
    int Count() const override { return m_lists.Count(); }
    void OnCommand(int command) override { m_machine.OnCommand(command); }
    void OnMouseDown(int control, int button, int x, int y) override
    {
        m_machine.OnMouseDown(control, button, x, y);
    }
    void OnMouseMove(int /*control*/, int x, int y) override { m_machine.OnMouseMove(x, y); }
    void OnTimer() override { m_machine.OnFlashTimer(); }
    ITrendLayer* Layer() override { return &m_lists; }
    std::vector<sTrendRecord> Records() const override;
    void ApplyStyles() override;

    CTrendLists& Lists() { return m_lists; }

private:
    class CPromptBar : public IStatusBar
    {
    public:
        explicit CPromptBar(std::function<void(const std::string&)> prompt) : m_prompt(std::move(prompt)) {}
        void SetPart(int, const std::string& text) override { m_prompt(text); }

    private:
        std::function<void(const std::string&)> m_prompt;
    };

    IPaneWindow& m_window;
    CPromptBar m_bar;
    CTrendLists m_lists;
    CTrendInteraction m_machine;
};

} // namespace zantroq
