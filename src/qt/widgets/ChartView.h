// The widget of the chart window: bars at the top, panes, scroll bar and status bar. It provides the chart
// window's services and turns events into calls of the window, which decides the layout. Chart window's
// thread.
#pragma once

#include "qt/widgets/ChartBars.h"
#include "qt/widgets/ChartScrollBar.h"
#include "qt/widgets/ContextMenuPopup.h"
#include "qt/widgets/PaneWidget.h"
#include "qt/widgets/StatusLine.h"
#include "qt/widgets/TopLevelWindow.h"
#include "qt/widgets/WindowTimer.h"

#include <QWidget>

#include <array>

namespace zantroq {

class CChartDlg;

class CChartView : public QWidget, public IPaneHost, public IPointerFeedback, private IPaneEvents
{
public:
    explicit CChartView(QWidget* parent);
    ~CChartView() override;

    // The services of this widget, with a message box and a context menu for a person or a script.
    sWindowServices Services(IMessageBox& box, IContextMenu& menu);
    // Sends events to the window from now on, until Detach. Creates the widgets of its panes.
    void Attach(CChartDlg& window);
    void Detach();

    CChartBars& Bars() { return *m_bars; }
    CStatusLine& Status() { return *m_status; }
    CChartScrollBar& Scroll() { return *m_scroll; }
    CPaneWidget* Pane(int number) { return m_panes.at(static_cast<std::size_t>(number)); }
    CContextMenuPopup& Menu() { return m_menu; }

    // Enables the wheel, arrow keys, Ctrl with +, - and P, F10 and the menu key. Initially on.
    void SetConveniences(bool on);
    bool Conveniences() const { return m_conveniences; }

    bool MayRun(int command) const; // true if it is enabled and no chart is loading
    void RunCommand(int command);   // only if it may run

    // Sets the client size of the chart window, visible or not.
    void SetClientSize(int width, int height);

    // IPaneHost
    int ClientWidth() const override { return width(); }
    int ClientHeight() const override { return height(); }
    int ToolBarHeight() const override { return m_barHeight; }
    void PlacePane(int pane, bool visible, int left, int top, int width, int height) override;
    void PlaceBars(int scrollTop, int statusTop) override;
    void SetControlsEnabled(bool enabled) override;

    // IPointerFeedback
    void SetCursor(CursorShape shape) override;
    void ShowDragLine(int y) override;
    void HideDragLine() override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void PaneMouseDown(int control, int button, int shift, int x, int y) override;
    void PaneMouseMove(int control, int button, int shift, int x, int y) override;
    void PaneMouseUp(int control, int button, int shift, int x, int y) override;
    void PaneKey(int control, int code) override;

    void LayOut();
    void OpenMenuByKey();
    void BringSymbolBack(); // the symbol on show, into its box
    // A half-drawn line or a mode of the trendlines, else the note at a point; false: there is neither.
    bool Cancel();
    bool MayScroll() const;

    CChartBars* m_bars;
    CChartScrollBar* m_scroll;
    CStatusLine* m_status;
    QWidget* m_dragLine;
    std::array<CPaneWidget*, 11> m_panes{};
    CWindowTimer m_timer;
    CTopLevelWindow m_top;
    CContextMenuPopup m_menu;
    CChartDlg* m_window = nullptr; // not owned
    int m_barHeight = 0;
    int m_wheel = 0; // rotation below one notch, in eighths of a degree
    bool m_conveniences = true;
};

} // namespace zantroq
