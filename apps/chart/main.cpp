// zantroq-chart: shows a chart in a window, or writes it to files without one.
#include "CommandLine.h"
#include "EndSignals.h"
#include "Session.h"

#include "qt/widgets/DesktopLook.h"

#include <QApplication>
#include <QHashFunctions>
#include <QStyle>
#include <QStyleFactory>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>
#include <system_error>

namespace {

constexpr const char* NoMemory = "there is not enough memory for this chart; make --size smaller, or leave "
                                 "more memory to the program";

[[noreturn]] void EndWithoutMemory()
{
    std::fprintf(stderr, "zantroq-chart: %s\n", NoMemory);
    std::_Exit(zantroq::ExitNotWritten);
}

// Handles exceptions that nobody can catch: on another thread, or through the toolkit.
std::terminate_handler TerminateOtherwise = nullptr;

void OnTerminate()
{
    try {
        if (const std::exception_ptr thrown = std::current_exception())
            std::rethrow_exception(thrown);
    } catch (const std::bad_alloc&) {
        EndWithoutMemory();
    } catch (const std::system_error& error) { // no room for the stack of a thread
        if (error.code() == std::errc::resource_unavailable_try_again)
            EndWithoutMemory();
    } catch (...) {
        // An error of the program itself, reported by the usual handler.
    }
    TerminateOtherwise();
}

// The toolkit aborts the program if it finds no display; the user gets a sentence and an exit code instead.
void OnToolkitMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtFatalMsg) {
        zantroq::Complain("no window can be opened on this display; set DISPLAY, or give --snapshot FILE to "
                          "draw a picture without one");
        std::_Exit(zantroq::ExitUsage);
    }
    // A user who draws a picture need not know what the desktop lacks.
    const bool ofDesktop =
        QByteArray(context.category).startsWith("qt.qpa") || message.startsWith("QStandardPaths");
    if (type != QtDebugMsg && type != QtInfoMsg && !ofDesktop)
        std::fprintf(stderr, "zantroq-chart: %s\n", qPrintable(message));
}

constexpr const char* LookVariable = "ZANTROQ_LOOK";

bool IsLook(const QByteArray& look)
{
    return look.isEmpty() || look == "system" || look == "light" || look == "dark";
}

void TakeLook(const QByteArray& look)
{
    if (look == "dark")
        QApplication::setPalette(zantroq::DarkPalette());
    else if (look == "light")
        QApplication::setPalette(QApplication::style()->standardPalette());
}

} // namespace

namespace zantroq {
namespace {

int RunProgram(int argc, char** argv)
{
    int exitCode = ExitDone;
    const auto line = ReadCommandLine(argc, argv, exitCode);
    if (!line)
        return exitCode;
    if (!line->NeedsDisplay()) {
        // Makes the program independent of the desktop's environment variables.
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qunsetenv("QT_QPA_PLATFORMTHEME");
        qunsetenv("QT_STYLE_OVERRIDE");
        // The order of fonts in a PDF file depends on a hash.
        QHashSeed::setDeterministicGlobalSeed();
    }
    const QByteArray look = line->NeedsDisplay() ? qgetenv(LookVariable) : QByteArray();
    if (!IsLook(look)) {
        Complain(std::string(LookVariable) + "=" + look.toStdString() +
                 ": not a look; use light, dark or system");
        return ExitUsage;
    }
    // A window of another program is an X11 window, even on a desktop that also has Wayland.
    if (line->Into && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") &&
        !qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "xcb");
    CatchEndSignals();
    qInstallMessageHandler(OnToolkitMessage);
    if (qEnvironmentVariableIsEmpty("QT_STYLE_OVERRIDE"))
        QApplication::setStyle("Fusion");
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    int count = 1; // the toolkit must not read the arguments
    QApplication application(count, argv);
    QApplication::setApplicationName("zantroq-chart");
    QApplication::setApplicationVersion(ZANTROQ_VERSION);
    TakeLook(look);
    return CSession(*line).Run();
}

} // namespace
} // namespace zantroq

int main(int argc, char** argv)
{
    std::signal(SIGPIPE, SIG_IGN); // a closed connection or pipe is an error of one call
    TerminateOtherwise = std::set_terminate(OnTerminate);
    try {
        return zantroq::RunProgram(argc, argv);
    } catch (const std::bad_alloc&) {
        zantroq::Complain(NoMemory);
        return zantroq::ExitNotWritten;
    }
}
