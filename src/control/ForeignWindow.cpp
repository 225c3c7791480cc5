#include "control/ForeignWindow.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSocketNotifier>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>
#include <xcb/xcb.h>

namespace zantroq {
namespace {

constexpr int EmbedderPatience = 200; // milliseconds for the embedder to pass on the keyboard

template<class TReply> using CReply = std::unique_ptr<TReply, decltype(&std::free)>;

} // namespace

CForeignWindow::CForeignWindow(std::uint32_t id) : m_id(id)
{
    m_patience.setSingleShot(true);
    m_patience.callOnTimeout(this, [this] { TakeKeyboard(); });
}

CForeignWindow::~CForeignWindow()
{
    if (m_widget != nullptr) {
        m_widget->removeEventFilter(this);
        m_widget->hide();
        // Otherwise the toolkit's window would be deleted together with its parent while the widget still
        // uses it.
        if (QWindow* const handle = m_widget->windowHandle())
            handle->setParent(nullptr);
    }
    m_notifier.reset();
    if (m_connection != nullptr)
        xcb_disconnect(m_connection);
}

std::unique_ptr<CForeignWindow> CForeignWindow::Find(std::uint32_t id, QString& wrong)
{
    std::unique_ptr<CForeignWindow> window(new CForeignWindow(id));
    return window->Open(wrong) ? std::move(window) : nullptr;
}

bool CForeignWindow::Open(QString& wrong)
{
    if (QGuiApplication::platformName() != "xcb") {
        wrong = QString("windows of other programs can be entered on X11 alone, and this display is \"%1\"; "
                        "start it with QT_QPA_PLATFORM=xcb and DISPLAY set")
                    .arg(QGuiApplication::platformName());
        return false;
    }
    m_connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(m_connection) != 0) {
        wrong = "the X server takes no more connections; close another program";
        return false;
    }
    // Watch the window first, so that changes between the two requests are reported.
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    const auto watch = xcb_change_window_attributes_checked(m_connection, m_id, XCB_CW_EVENT_MASK, &mask);
    const CReply<xcb_generic_error_t> watchError(xcb_request_check(m_connection, watch), &std::free);
    const CReply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, m_id), nullptr), &std::free);
    if (watchError != nullptr || geometry == nullptr) {
        wrong = "there is no such window on this display; xwininfo reports the number of a window";
        return false;
    }
    m_size = {geometry->width, geometry->height};
    m_window.reset(QWindow::fromWinId(m_id));
    m_notifier =
        std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(m_connection), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] { ReadEvents(); });
    return true;
}

void CForeignWindow::Take(QWidget& widget)
{
    m_widget = &widget;
    widget.winId(); // creates the toolkit's window
    widget.windowHandle()->setParent(m_window.get());
    Fit();
    widget.installEventFilter(this);
    widget.windowHandle()->installEventFilter(this); // mouse presses on all children of the widget
    widget.show();
    Fit();
    ReadEvents();
}

bool CForeignWindow::eventFilter(QObject* object, QEvent* event)
{
    if (object == m_widget && (event->type() == QEvent::Move || event->type() == QEvent::Resize))
        QMetaObject::invokeMethod(
            this, [this] { Fit(); }, Qt::QueuedConnection);
    if (object != m_widget && event->type() == QEvent::MouseButtonPress)
        m_patience.start(EmbedderPatience);
    return QObject::eventFilter(object, event);
}

void CForeignWindow::ReadEvents()
{
    while (const auto event = CReply<xcb_generic_event_t>(xcb_poll_for_event(m_connection), &std::free)) {
        const int type = event->response_type & 0x7f;
        if (type == XCB_CONFIGURE_NOTIFY) {
            const auto& configure = *reinterpret_cast<const xcb_configure_notify_event_t*>(event.get());
            m_size = {configure.width, configure.height};
            Fit();
        }
        if (type == XCB_DESTROY_NOTIFY)
            return End();
    }
    if (xcb_connection_has_error(m_connection) != 0)
        End();
}

void CForeignWindow::Fit()
{
    if (m_widget == nullptr || m_gone)
        return;
    const double ratio = m_widget->devicePixelRatioF();
    const QRect all(0, 0, std::max(1, static_cast<int>(std::ceil(m_size.width() / ratio))),
                    std::max(1, static_cast<int>(std::ceil(m_size.height() / ratio))));
    if (m_widget->geometry() != all)
        m_widget->setGeometry(all);
}

// A window without an embedding protocol does not pass on the keyboard, so a clicked chart takes it.
void CForeignWindow::TakeKeyboard()
{
    if (m_gone || m_widget == nullptr || m_widget->windowHandle() == nullptr ||
        QGuiApplication::focusWindow() != nullptr)
        return;
    xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT,
                        static_cast<std::uint32_t>(m_widget->windowHandle()->winId()), XCB_CURRENT_TIME);
    xcb_flush(m_connection);
}

void CForeignWindow::End()
{
    if (std::exchange(m_gone, true))
        return;
    m_notifier->setEnabled(false);
    // The server has destroyed the toolkit's window with its parent. It is made anew when the widget is shown again.
    if (m_widget != nullptr && m_widget->windowHandle() != nullptr) {
        m_widget->hide();
        m_widget->windowHandle()->destroy();
    }
    if (Gone)
        QMetaObject::invokeMethod(
            this, [this] { Gone(); }, Qt::QueuedConnection);
}

} // namespace zantroq
