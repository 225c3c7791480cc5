// The in-process module: its exports, its header, and a host in C that knows only a ProgID.
#include "InstalledCopy.h"
#include "XServer.h"

#include <QElapsedTimer>
#include <QSet>
#include <QThread>

#include <cstdlib>
#include <functional>
#include <memory>
#include <xcb/xcb.h>

namespace zantroq::test {
namespace {

template<class TReply> using CReply = std::unique_ptr<TReply, decltype(&std::free)>;

bool Await(const std::function<bool()>& done)
{
    QElapsedTimer clock;
    clock.start();
    while (!done() && clock.elapsed() < 60'000)
        QThread::msleep(50);
    return done();
}

class Module : public CInstalledCopy
{
protected:
    QString File() const { return InPrefix("lib/zantroq/libzantroq-chart-module.so"); }
    void BuildHost()
    {
        const sRun built =
            RunProgram(Example("c-module/build.sh"), {Prefix()}, Environment(), m_folder.path());
        ASSERT_EQ(built.ExitCode, 0) << built.Err.toStdString();
    }
    // The window of the host on this display, in which the chart is the one window and fills it; 0 if none.
    static xcb_window_t WindowWithAChart(xcb_connection_t* display)
    {
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
        const CReply<xcb_query_tree_reply_t> top(
            xcb_query_tree_reply(display, xcb_query_tree(display, root), nullptr), &std::free);
        for (int i = 0; i < xcb_query_tree_children_length(top.get()); ++i) {
            const xcb_window_t candidate = xcb_query_tree_children(top.get())[i];
            const CReply<xcb_query_tree_reply_t> inside(
                xcb_query_tree_reply(display, xcb_query_tree(display, candidate), nullptr), &std::free);
            if (inside == nullptr || xcb_query_tree_children_length(inside.get()) != 1)
                continue;
            const auto asked = xcb_get_geometry(display, *xcb_query_tree_children(inside.get()));
            const CReply<xcb_get_geometry_reply_t> place(xcb_get_geometry_reply(display, asked, nullptr),
                                                         &std::free);
            if (place != nullptr && place->width == 900 && place->height == 640)
                return candidate;
        }
        return 0;
    }
    // The picture of a window of 900 x 640 pixels on a display of 32-bit pixels.
    static QImage PictureOf(xcb_connection_t* display, xcb_window_t window)
    {
        const auto asked =
            xcb_get_image(display, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0, 900, 640, 0xFFFFFFFF);
        const CReply<xcb_get_image_reply_t> image(xcb_get_image_reply(display, asked, nullptr), &std::free);
        if (image == nullptr || xcb_get_image_data_length(image.get()) != 900 * 640 * 4)
            return {};
        return QImage(xcb_get_image_data(image.get()), 900, 640, QImage::Format_RGB32).copy();
    }
    QProcessEnvironment HostEnvironment(const QString& display) const
    {
        QProcessEnvironment environment = Environment();
        environment.remove("QT_QPA_PLATFORM");
        environment.insert("DISPLAY", display);
        environment.insert("PATH", InPrefix("bin") + ':' + environment.value("PATH"));
        return environment;
    }
};

} // namespace

TEST_F(Module, ExportsFourFunctionsAndNothingElse)
{
    const sRun run = RunProgram("nm", {"-D", "--defined-only", "-P", File()}, Environment());
    ASSERT_EQ(run.ExitCode, 0) << run.Err.toStdString();
    QSet<QString> names;
    for (const QString& line : run.Out.split('\n', Qt::SkipEmptyParts))
        names << line.section(' ', 0, 1);
    const QSet<QString> expected{"DllCanUnloadNow T", "DllGetClassObject T", "DllRegisterServer T",
                                 "DllUnregisterServer T"};
    EXPECT_EQ(names, expected) << run.Out.toStdString();
}

TEST_F(Module, ItsHeaderCompilesAsC11)
{
    const QStringList words{"-std=c11",
                            "-pedantic",
                            "-Wall",
                            "-Wextra",
                            "-Werror",
                            "-x",
                            "c",
                            "-I" + InPrefix("include"),
                            "-fsyntax-only",
                            "-include",
                            "zantroq/module.h",
                            "/dev/null"};
    const sRun run = RunProgram("cc", words, Environment());
    EXPECT_EQ(run.ExitCode, 0) << run.Err.toStdString();
}

TEST_F(Module, AHostThatKnowsNoRecordsSaysSo)
{
    BuildHost();
    const QProcessEnvironment environment = HostEnvironment(":12345");
    const sRun unknown = RunProgram(Path("module-host"), {}, environment);
    EXPECT_EQ(unknown.ExitCode, 1);
    EXPECT_EQ(unknown.Err.toStdString(), "module-host: Brivane.Chart.1 is not registered\n");
    EXPECT_EQ(RunProgram(Path("module-host"), {"--register", File()}, environment).ExitCode, 0);
    const sRun blind = RunProgram(Path("module-host"), {}, environment);
    EXPECT_EQ(blind.ExitCode, 1);
    EXPECT_EQ(blind.Err.toStdString(), "module-host: there is no X server\n");
    EXPECT_EQ(blind.Out.toStdString(), "unloaded\n");
    EXPECT_EQ(RunProgram(Path("module-host"), {"--unregister", File()}, environment).ExitCode, 0);
    EXPECT_EQ(RunProgram(Path("module-host"), {}, environment).Err, unknown.Err);
}

TEST_F(Module, AHostInCFindsItByItsProgIdShowsALiveChartAndUnloadsIt)
{
    BuildHost();
    StartFeed();
    const CXServer server;
    const QProcessEnvironment environment = HostEnvironment(server.Display());
    ASSERT_EQ(RunProgram(Path("module-host"), {"--register", File()}, environment).ExitCode, 0);
    QProcess host;
    host.setProcessEnvironment(environment);
    host.start(Path("module-host"), {"SIM.CALM"});
    xcb_connection_t* const display = xcb_connect(server.Display().toLatin1(), nullptr);
    xcb_window_t window = 0;
    EXPECT_TRUE(Await([&] { return (window = WindowWithAChart(display)) != 0; }));
    // An empty window has a handful of colors, a chart with candles and texts has many.
    EXPECT_TRUE(Await([&] {
        PictureOf(display, window).save(Path("host.png"));
        return ColorsOf(Path("host.png"), QRect(0, 40, 900, 580)) > 20;
    }));
    ExpectAChart(Path("host.png"), QRect(0, 40, 900, 580));
    xcb_destroy_window(display, window);
    xcb_flush(display);
    EXPECT_TRUE(host.waitForFinished(60'000));
    EXPECT_EQ(host.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(host.exitCode(), 0);
    EXPECT_EQ(host.readAllStandardOutput().toStdString(), "chart: property 1 has changed\nunloaded\n");
    EXPECT_EQ(host.readAllStandardError().toStdString(), "");
    host.kill();
    host.waitForFinished();
    xcb_disconnect(display);
}

} // namespace zantroq::test
