#include "qt/widgets/ChartView.h"

#include "drawing/HistPriceChart.h"
#include "window/ChartDlg.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cstdlib>
#include <string_view>

namespace zantroq {
namespace {

constexpr int DragLineHeight = 5;
constexpr int WheelNotch = 120, StepsANotch = 3;

// The dotted line that follows a dragged border; visible on dark and on light panes.
class CDragLine : public QWidget
{
public:
    explicit CDragLine(QWidget* parent) : QWidget(parent)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), QColor(255, 255, 255, 200));
        painter.fillRect(rect(), QBrush(Qt::black, Qt::Dense4Pattern));
    }
};

// Key codes below 128 are the characters on the keys. Returns 0 if the key runs no command.
int CommandOfKey(const QKeyEvent& event)
{
    if (!event.modifiers().testFlag(Qt::ControlModifier))
        return 0;
    for (const sToolbarCommand& row : ToolbarCommands)
        for (const char key : std::string_view(row.CtrlKeys))
            if (event.key() == key)
                return row.Command;
    return 0;
}

} // namespace

CChartView::CChartView(QWidget* parent)
    : QWidget(parent),
      m_bars(new CChartBars(this)),
      m_scroll(new CChartScrollBar(this)),
      m_status(new CStatusLine(this)),
      m_dragLine(new CDragLine(this)),
      m_top(*this)
{
    SetConveniences(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName("Chart window");
    m_menu.ToGlobal = [this](int pane, int x, int y) {
        const QWidget* widget = m_panes.at(static_cast<std::size_t>(pane));
        return widget != nullptr ? widget->mapToGlobal(QPoint(x, y)) : mapToGlobal(QPoint(x, y));
    };
}

CChartView::~CChartView()
{
    Detach();
}

sWindowServices CChartView::Services(IMessageBox& box, IContextMenu& menu)
{
    return {m_timer,
            *m_status,
            box,
            *m_scroll,
            m_bars->Commands(),
            m_bars->Symbol(),
            m_bars->Type(),
            m_bars->Interval(),
            m_top,
            *this,
            *this,
            menu};
}

void CChartView::Attach(CChartDlg& window)
{
    m_window = &window;
    for (int number = 0; number < PaneControls; ++number)
        m_panes[static_cast<std::size_t>(number)] =
            new CPaneWidget(this, FirstPaneControl + number, window.Pane(number), *this);
    SetConveniences(m_conveniences);
    setFocusProxy(m_panes.front()); // so that a symbol can be typed at once
    m_dragLine->raise();
    m_timer.OnTick = [this](int id) { m_window->OnTimer(id); };
    m_scroll->OnScroll = [this](ScrollCode code, int position) {
        if (MayScroll())
            m_window->OnHScroll(code, position);
    };
    m_bars->Commands().OnCommand = [this](int command) { m_window->OnCommand(command); };
    m_bars->Symbol().OnChanged = [this] { m_window->OnSymbolChanged(); };
    m_bars->Symbol().OnEnter = [this] { m_window->OnSymbolEnter(); };
    m_bars->Symbol().OnEscape = [this] { BringSymbolBack(); };
    m_bars->Type().OnChosen = [this] { m_window->OnDataTypeChanged(0); };
    m_bars->Interval().OnChosen = [this] { m_window->OnIntervalChanged(); };
    m_menu.OnPicked = [this](int command) {
        if (m_window != nullptr)
            m_window->OnMenuCommand(command);
    };
    m_barHeight = m_bars->LayOut(width());
}

void CChartView::Detach()
{
    if (m_window == nullptr)
        return;
    m_window = nullptr;
    m_timer.OnTick = [](int) {};
    m_scroll->OnScroll = [](ScrollCode, int) {};
    m_bars->Commands().OnCommand = [](int) {};
    m_bars->Symbol().OnChanged = m_bars->Symbol().OnEnter = m_bars->Symbol().OnEscape = [] {};
    m_bars->Type().OnChosen = m_bars->Interval().OnChosen = [] {};
    for (CPaneWidget*& pane : m_panes) {
        delete pane;
        pane = nullptr;
    }
}

void CChartView::SetConveniences(bool on)
{
    m_conveniences = on;
    m_bars->Symbol().SetConveniences(on);
    m_status->SetGrowing(on);
    for (CPaneWidget* pane : m_panes)
        if (pane != nullptr)
            pane->SetManner(on ? PaneManner::Convenient : PaneManner::Plain);
}

void CChartView::SetClientSize(int width, int height)
{
    const bool same = size() == QSize(width, height);
    resize(width, height);
    // A hidden widget gets its resize event only when it is shown.
    if (!same && !isVisible())
        LayOut();
}

void CChartView::LayOut()
{
    m_barHeight = m_bars->LayOut(width());
    m_bars->setGeometry(0, 0, width(), m_barHeight);
    if (m_window != nullptr && width() > 0 && height() > 0)
        m_window->OnResize();
}

void CChartView::resizeEvent(QResizeEvent*)
{
    LayOut();
}

void CChartView::PlacePane(int pane, bool visible, int left, int top, int width, int height)
{
    CPaneWidget* widget = Pane(pane);
    if (widget == nullptr)
        return;
    widget->setGeometry(left, top, width, height);
    widget->setVisible(visible);
}

void CChartView::PlaceBars(int scrollTop, int statusTop)
{
    m_scroll->setGeometry(0, scrollTop, width(), CChartScrollBar::BarHeight);
    m_status->setGeometry(0, statusTop, width(), CStatusLine::LineHeight);
}

void CChartView::SetControlsEnabled(bool enabled)
{
    m_scroll->setEnabled(enabled);
    m_bars->Commands().setEnabled(enabled);
}

void CChartView::SetCursor(CursorShape shape)
{
    const Qt::CursorShape wanted = shape == CursorShape::Split ? Qt::SplitVCursor : Qt::ArrowCursor;
    for (CPaneWidget* pane : m_panes)
        if (pane != nullptr && pane->cursor().shape() != wanted)
            pane->setCursor(wanted);
}

void CChartView::ShowDragLine(int y)
{
    const CPaneWidget* first = Pane(0);
    const int top = (first != nullptr ? first->y() : m_barHeight) + y - DragLineHeight / 2;
    m_dragLine->setGeometry(0, top, width(), DragLineHeight);
    m_dragLine->show();
}

void CChartView::HideDragLine()
{
    m_dragLine->hide();
}

void CChartView::PaneMouseDown(int control, int button, int shift, int x, int y)
{
    m_window->OnChartMouseDown(control, button, shift, x, y);
}

void CChartView::PaneMouseMove(int control, int button, int shift, int x, int y)
{
    m_window->OnChartMouseMove(control, button, shift, x, y);
}

void CChartView::PaneMouseUp(int control, int button, int shift, int x, int y)
{
    m_window->OnChartMouseUp(control, button, shift, x, y);
}

void CChartView::PaneKey(int control, int code)
{
    m_window->OnKeyPress(control, code);
}

bool CChartView::MayScroll() const
{
    return m_window != nullptr && m_scroll->isEnabledTo(this) && m_scroll->Visible();
}

bool CChartView::MayRun(int command) const
{
    return m_window != nullptr && m_bars->Commands().isEnabledTo(this) &&
           m_bars->Commands().IsEnabled(command);
}

void CChartView::BringSymbolBack()
{
    m_bars->Symbol().SetText(m_window->CurrentSymbol());
    m_window->OnSymbolChanged();
    m_panes.front()->setFocus(Qt::OtherFocusReason);
}

bool CChartView::Cancel()
{
    if (m_window->Trends().State() != 0) {
        m_window->OnChartMouseDown(FirstPaneControl, MouseRight, 0, 0, 0);
        return true;
    }
    CPaneLabels& labels = m_window->Pane(0).PaneLabels();
    if (labels.Count() < ReadoutLabel || !labels.Item(ReadoutLabel).Shown())
        return false;
    labels.Item(ReadoutLabel).SetShown(false);
    return true;
}

void CChartView::RunCommand(int command)
{
    if (MayRun(command))
        m_window->OnCommand(command);
}

void CChartView::keyPressEvent(QKeyEvent* event)
{
    if (!m_conveniences || m_window == nullptr)
        return QWidget::keyPressEvent(event);
    if (const int command = CommandOfKey(*event); command != 0)
        return RunCommand(command);
    const auto scroll = [this](ScrollCode code) {
        if (MayScroll())
            m_window->OnHScroll(code, 0);
    };
    switch (event->key()) {
    case Qt::Key_Left:
        return scroll(ScrollCode::LineLeft);
    case Qt::Key_Right:
        return scroll(ScrollCode::LineRight);
    case Qt::Key_PageUp:
        return scroll(ScrollCode::PageLeft);
    case Qt::Key_PageDown:
        return scroll(ScrollCode::PageRight);
    case Qt::Key_Home:
        return scroll(ScrollCode::LeftEnd);
    case Qt::Key_End:
        return scroll(ScrollCode::RightEnd);
    case Qt::Key_Escape:
        return Cancel() ? event->accept() : QWidget::keyPressEvent(event);
    case Qt::Key_F10:
    case Qt::Key_Menu:
        return OpenMenuByKey();
    default:
        QWidget::keyPressEvent(event);
    }
}

void CChartView::wheelEvent(QWheelEvent* event)
{
    if (!m_conveniences || m_window == nullptr)
        return QWidget::wheelEvent(event);
    event->accept();
    const QPoint turn = event->angleDelta();
    // On some desktops Alt makes the wheel horizontal; both directions scroll.
    m_wheel += std::abs(turn.y()) >= std::abs(turn.x()) ? turn.y() : turn.x();
    for (; std::abs(m_wheel) >= WheelNotch; m_wheel -= m_wheel > 0 ? WheelNotch : -WheelNotch) {
        const bool away = m_wheel > 0;
        if (event->modifiers().testFlag(Qt::ControlModifier)) {
            RunCommand(away ? CommandZoomIn : CommandZoomOut);
            continue;
        }
        for (int step = 0; step < StepsANotch && MayScroll(); ++step)
            m_window->OnHScroll(away ? ScrollCode::LineLeft : ScrollCode::LineRight, 0);
    }
}

void CChartView::contextMenuEvent(QContextMenuEvent* event)
{
    event->setAccepted(event->reason() != QContextMenuEvent::Mouse && m_conveniences);
    // The menu key also arrives as a key event and is handled there.
}

void CChartView::OpenMenuByKey()
{
    int number = 0;
    for (int pane = 0; pane < PaneControls; ++pane)
        if (m_panes[static_cast<std::size_t>(pane)] != nullptr &&
            m_panes[static_cast<std::size_t>(pane)]->hasFocus())
            number = pane;
    const CPaneWidget* pane = Pane(number);
    m_window->OpenPaneMenu(number, pane->width() / 2, pane->height() / 2);
}

// Paints the gaps between bars and panes.
void CChartView::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), palette().color(QPalette::Window));
}

} // namespace zantroq
