// The horizontal scroll bar below the panes. The chart window decides the effect of every action, so the
// widget only reports actions and shows the position that the window sets; only a dragged thumb moves by
// itself. Chart window's thread.
#pragma once

#include "platform/WindowServices.h"
#include "window/WindowCommands.h"

#include <QContextMenuEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <functional>

namespace zantroq {

class CChartScrollBar : public QScrollBar, public IScrollBar
{
public:
    static constexpr int BarHeight = 15;

    explicit CChartScrollBar(QWidget* parent);

    std::function<void(ScrollCode, int position)> OnScroll;

    void SetRange(int minimum, int maximum) override;
    void SetPage(int page) override;
    void SetPosition(int position) override;
    int Position() const override { return m_position; }
    int Maximum() const override { return m_maximum; }
    int Page() const override { return m_page; }
    void SetVisible(bool visible) override;
    bool Visible() const override { return m_visible; }

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); } // handled by the window
    void contextMenuEvent(QContextMenuEvent* event) override { event->accept(); }

private:
    void Show();
    void OnAction(int action);
    void OnReleased();

    int m_minimum = 0, m_maximum = 0, m_page = 1, m_position = 0;
    bool m_visible = false;
};

} // namespace zantroq
