#include "qt/widgets/PaneWidget.h"

#include "window/WindowCommands.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>

namespace zantroq {
namespace {

int ButtonNumber(Qt::MouseButton button)
{
    return button == Qt::LeftButton ? MouseLeft : button == Qt::RightButton ? MouseRight : MouseNone;
}

int HeldButton(Qt::MouseButtons buttons)
{
    if (buttons.testFlag(Qt::LeftButton))
        return MouseLeft;
    return buttons.testFlag(Qt::RightButton) ? MouseRight : MouseNone;
}

int ShiftState(Qt::KeyboardModifiers modifiers)
{
    return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) | (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

// The code of a key that produces a character; 0 for any other key.
int CharacterCode(const QKeyEvent& event)
{
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return 0;
    const QString text = event.text();
    return text.size() == 1 && text[0].isPrint() ? text[0].toUpper().unicode() : 0;
}

} // namespace

CPaneWidget::CPaneWidget(QWidget* parent, int control, CChart2D& pane, IPaneEvents& events)
    : QWidget(parent), m_control(control), m_pane(pane), m_events(events), m_painter(pane)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(control == FirstPaneControl ? QString("Price pane")
                                                  : QString("Study pane %1").arg(control - FirstPaneControl));
    hide();
    m_pane.SetView(this);
}

CPaneWidget::~CPaneWidget()
{
    m_pane.SetView(nullptr);
}

void CPaneWidget::SetManner(PaneManner manner)
{
    m_painter.SetManner(manner);
    update();
}

// Changes in one turn of the event loop are painted together.
void CPaneWidget::PaneChanged()
{
    if (m_refreshAsked || !isVisible())
        return;
    m_refreshAsked = true;
    QMetaObject::invokeMethod(this, &CPaneWidget::Refresh, Qt::QueuedConnection);
}

void CPaneWidget::Refresh()
{
    m_refreshAsked = false;
    m_painter.Picture(devicePixelRatioF());
    update(m_painter.Damage());
}

void CPaneWidget::paintEvent(QPaintEvent* event)
{
    const QImage& picture = m_painter.Picture(devicePixelRatioF());
    QPainter painter(this);
    if (!picture.isNull())
        painter.drawImage(QPoint(0, 0), picture);
    // Changes after the request for this update may be outside its area.
    if (!event->rect().contains(m_painter.Damage()))
        update(m_painter.Damage());
}

void CPaneWidget::mousePressEvent(QMouseEvent* event)
{
    const int button = ButtonNumber(event->button());
    if (button != MouseNone)
        m_events.PaneMouseDown(m_control, button, ShiftState(event->modifiers()), event->pos().x(),
                               event->pos().y());
}

void CPaneWidget::mouseMoveEvent(QMouseEvent* event)
{
    m_events.PaneMouseMove(m_control, HeldButton(event->buttons()), ShiftState(event->modifiers()),
                           event->pos().x(), event->pos().y());
}

void CPaneWidget::mouseReleaseEvent(QMouseEvent* event)
{
    const int button = ButtonNumber(event->button());
    if (button != MouseNone)
        m_events.PaneMouseUp(m_control, button, ShiftState(event->modifiers()), event->pos().x(),
                             event->pos().y());
}

void CPaneWidget::keyPressEvent(QKeyEvent* event)
{
    if (const int code = CharacterCode(*event); code != 0)
        m_events.PaneKey(m_control, code);
    else
        event->ignore(); // handled by the window
}

// The chart window opens the menu for the right button; a request from the keyboard goes to the view.
void CPaneWidget::contextMenuEvent(QContextMenuEvent* event)
{
    event->setAccepted(event->reason() == QContextMenuEvent::Mouse);
}

} // namespace zantroq
