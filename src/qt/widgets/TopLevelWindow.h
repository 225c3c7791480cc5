// The host's top-level window as the chart window sees it. Chart window's thread.
#pragma once

#include "platform/WindowServices.h"

#include <QPoint>
#include <QSize>

class QWidget;

namespace zantroq {

class CTopLevelWindow : public ITopLevelWindow
{
public:
    // A widget inside the window; it may be moved to another window at any time.
    explicit CTopLevelWindow(QWidget& inside) : m_inside(inside) {}

    std::string Title() const override;
    void SetTitle(const std::string& title) override;
    sWindowRect NormalRect() const override;
    bool Maximized() const override;
    void SetCaption(const std::string& caption) override { m_caption = caption; }
    std::string Caption() const override { return m_caption; }
    void MoveTo(const sWindowRect& rect) override;
    void Maximize() override;
    sWindowRect VirtualScreen() const override;

private:
    QWidget& m_inside;
    std::string m_caption;
    // What MoveTo asked for last. It stands for the place where windows have none, and for place and size
    // inside another program's window, which stays as that program has it.
    QPoint m_place;
    QSize m_size;
};

} // namespace zantroq
