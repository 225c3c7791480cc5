#include "control/module/OwnApplication.h"

#include <zantroq/module.h>

#include <QApplication>
#include <QThread>
#include <QTimer>

#include <array>
#include <clocale>
#include <memory>
#include <string>
#include <utility>
#include <xcb/xcb.h>

namespace zantroq {
namespace {

// The application keeps pointers to the words and to their number, so they must outlive it.
struct sOwnApplication
{
    int Count = 1;
    std::array<char, 21> Name{"zantroq-chart-module"};
    std::array<char, 10> Option{"-platform"};
    std::array<char, 4> Platform{"xcb"};
    std::array<char*, 4> Words{Name.data(), Option.data(), Platform.data(), nullptr};
    std::unique_ptr<QApplication> Application;
};

// Not freed when the process ends: a host that exits with controls alive must not lose the application first.
sOwnApplication* ownApplication = nullptr;

bool XServerAnswers()
{
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

// The toolkit sets the locale of the whole process from the environment, but the host decides on the locale.
class CKeepLocale
{
public:
    ~CKeepLocale() { std::setlocale(LC_ALL, m_locale.c_str()); }

private:
    const std::string m_locale = std::setlocale(LC_ALL, nullptr);
};

} // namespace

std::int32_t NeedApplication()
{
    if (QCoreApplication::instance() != nullptr) {
        const bool showsWindows = qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
        return showsWindows ? ZANTROQ_OK : ZANTROQ_NO_DISPLAY;
    }
    auto own = std::make_unique<sOwnApplication>();
    // Only X11 can show the chart in a host's window, so X11 is used even if the desktop prefers another display.
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (platform.isEmpty() || platform.startsWith("xcb")) {
        if (!XServerAnswers())
            return ZANTROQ_NO_DISPLAY; // the toolkit would end the process
        own->Count = 3;
    }
    const CKeepLocale keep;
    own->Application = std::make_unique<QApplication>(own->Count, own->Words.data());
    QApplication::setQuitOnLastWindowClosed(false);
    ownApplication = own.release();
    return ZANTROQ_OK;
}

bool IsApplicationThread()
{
    const QCoreApplication* const application = QCoreApplication::instance();
    return application == nullptr || application->thread() == QThread::currentThread();
}

void PumpApplication(int milliseconds)
{
    if (QCoreApplication::instance() == nullptr)
        return;
    if (milliseconds > 0) {
        QTimer wake;
        wake.setSingleShot(true);
        wake.start(milliseconds);
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QCoreApplication::processEvents();
    // A returning event loop of the toolkit does this, but here no event loop runs.
    if (ownApplication != nullptr)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void EndOwnApplication()
{
    delete std::exchange(ownApplication, nullptr);
}

} // namespace zantroq
