#include "qt/widgets/TopLevelWindow.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace zantroq {
namespace {

sWindowRect FromRect(const QRect& rect)
{
    return {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}

// On Wayland a window can neither set nor read its position.
bool WindowsHavePlaces()
{
    return !QGuiApplication::platformName().startsWith("wayland");
}

// True inside a window of another program, which decides the position.
bool IsEmbedded(const QWidget& window)
{
    return window.windowHandle() != nullptr && window.windowHandle()->parent() != nullptr;
}

} // namespace

// The toolkit uses "[*]" as its mark of changed documents and "[*][*]" for the text "[*]".
std::string CTopLevelWindow::Title() const
{
    QString text = m_inside.window()->windowTitle();
    return text.replace("[*][*]", "[*]").toStdString();
}

void CTopLevelWindow::SetTitle(const std::string& title)
{
    QString text = QString::fromStdString(title);
    m_inside.window()->setWindowTitle(text.replace("[*]", "[*][*]"));
}

sWindowRect CTopLevelWindow::NormalRect() const
{
    const QWidget& window = *m_inside.window();
    if (IsEmbedded(window) && m_size.isValid())
        return FromRect(QRect(m_place, m_size));
    const QRect normal = window.normalGeometry();
    const bool restored = !window.isMaximized() && !window.isFullScreen() && !window.isMinimized();
    QRect rect = restored || normal.isEmpty() ? window.geometry() : normal;
    if (!WindowsHavePlaces())
        rect.moveTopLeft(m_place);
    return FromRect(rect);
}

bool CTopLevelWindow::Maximized() const
{
    return m_inside.window()->isMaximized();
}

void CTopLevelWindow::MoveTo(const sWindowRect& rect)
{
    m_place = {rect.Left, rect.Top};
    const QSize size(rect.Right - rect.Left, rect.Bottom - rect.Top);
    m_size = size;
    if (IsEmbedded(*m_inside.window()))
        return;
    if (WindowsHavePlaces())
        m_inside.window()->setGeometry(QRect(m_place, size));
    else
        m_inside.window()->resize(size);
}

void CTopLevelWindow::Maximize()
{
    if (IsEmbedded(*m_inside.window()))
        return;
    m_inside.window()->setWindowState(m_inside.window()->windowState() | Qt::WindowMaximized);
}

sWindowRect CTopLevelWindow::VirtualScreen() const
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? FromRect(screen->virtualGeometry()) : sWindowRect{0, 0, 1024, 768};
}

} // namespace zantroq
