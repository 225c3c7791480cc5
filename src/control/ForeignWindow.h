// A window of another program on X11 with a widget in it: the widget fills the window and follows its size. When
// the window goes away, the widget is hidden and its owner is notified. Thread of the application's widgets.
#pragma once

#include <QObject>
#include <QSize>
#include <QString>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <memory>

class QSocketNotifier;
class QWidget;
class QWindow;
struct xcb_connection_t;

namespace zantroq {

class CForeignWindow : public QObject
{
public:
    // Returns null and sets `wrong` to a sentence if the platform is not X11 or has no such window.
    static std::unique_ptr<CForeignWindow> Find(std::uint32_t id, QString& wrong);
    // Hides the widget and removes it from the window.
    ~CForeignWindow() override;

    // Shows the widget in the window. Call once; the widget must outlive this object.
    void Take(QWidget& widget);

    std::function<void()> Gone; // called once, after the window was destroyed

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    explicit CForeignWindow(std::uint32_t id);
    bool Open(QString& wrong);
    void ReadEvents();
    void Fit();
    void TakeKeyboard();
    void End();

    const std::uint32_t m_id;
    // A separate connection, because the toolkit's connection reports no events of windows that are not its
    // own.
    xcb_connection_t* m_connection = nullptr;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QTimer m_patience; // runs while an embedder may hand the keyboard over
    std::unique_ptr<QWindow> m_window;
    QWidget* m_widget = nullptr; // not owned
    QSize m_size;                // size of the window in pixels of the screen
    bool m_gone = false;
};

} // namespace zantroq
