// Shows a pane and reports its mouse and key events in pixels of the pane. It decides nothing. Chart window's
// thread.
#pragma once

#include "qt/paint/PanePainter.h"
#include "scene/Chart2D.h"

#include <QWidget>

namespace zantroq {

class IPaneEvents
{
public:
    virtual ~IPaneEvents() = default;
    // Button: 0 none, 1 left, 2 right. Shift: the sum of 1 shift, 2 control and 4 alt.
    virtual void PaneMouseDown(int control, int button, int shift, int x, int y) = 0;
    virtual void PaneMouseMove(int control, int button, int shift, int x, int y) = 0;
    virtual void PaneMouseUp(int control, int button, int shift, int x, int y) = 0;
    virtual void PaneKey(int control, int code) = 0; // a key that produces a character
};

class CPaneWidget : public QWidget, public IPaneView
{
public:
    // Neither the scene nor the events are owned; both must outlive the widget.
    CPaneWidget(QWidget* parent, int control, CChart2D& pane, IPaneEvents& events);
    ~CPaneWidget() override;

    void SetManner(PaneManner manner);
    int Control() const { return m_control; }
    void PaneChanged() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void Refresh();

    const int m_control;
    CChart2D& m_pane;
    IPaneEvents& m_events;
    CPanePainter m_painter;
    bool m_refreshAsked = false;
};

} // namespace zantroq
