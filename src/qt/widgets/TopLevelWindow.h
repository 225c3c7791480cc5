// Implements the interface of the host's top-level window. Chart window's thread.
#pragma once

#include "platform/WindowServices.h"

#include <QPoint>
#include <QSize>

class QWidget;

namespace zantroq {

class CTopLevelWindow : public ITopLevelWindow
{
public:
    // `inside` is a widget in the window; it may be moved to another window at any time.
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
    // The last rectangle passed to MoveTo. Replaces the position where windows have none, and position and
    // size inside a window of another program, which decides them itself.
    QPoint m_place;
    QSize m_size;
};

} // namespace zantroq
