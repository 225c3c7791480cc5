// zantroq-chart --into: the chart in a window of another X11 program, which is this test.
#include "InstalledCopy.h"
#include "XServer.h"

#include <QElapsedTimer>
#include <QThread>

#include <cstdlib>
#include <functional>
#include <memory>
#include <xcb/xcb.h>

namespace zantroq::test {
namespace {

bool Await(const std::function<bool()>& done)
{
    QElapsedTimer clock;
    clock.start();
    while (!done() && clock.elapsed() < 60'000)
        QThread::msleep(20);
    return done();
}

class ForeignWindow : public CInstalledCopy
{
protected:
    void SetUp() override
    {
        CInstalledCopy::SetUp();
        m_connection = xcb_connect(m_server.Display().toLatin1(), nullptr);
        ASSERT_EQ(xcb_connection_has_error(m_connection), 0);
        const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        m_window = xcb_generate_id(m_connection);
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, screen->root, 30, 40, 640, 480, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0, nullptr);
        xcb_map_window(m_connection, m_window);
        xcb_flush(m_connection);
    }
    void TearDown() override
    {
        m_chart.kill();
        m_chart.waitForFinished();
        xcb_disconnect(m_connection);
        CInstalledCopy::TearDown();
    }

    QProcessEnvironment OnX11() const
    {
        QProcessEnvironment environment = Environment();
        environment.remove("QT_QPA_PLATFORM");
        environment.insert("DISPLAY", m_server.Display());
        return environment;
    }
    void StartChart(const QStringList& more = {})
    {
        m_chart.setProcessEnvironment(OnX11());
        m_chart.start(InPrefix("bin/zantroq-chart"),
                      QStringList{"SIM.CALM", "--into", QString::number(m_window)} + more);
        ASSERT_TRUE(m_chart.waitForStarted());
    }
    // Position and size of the one window inside this program's window.
    std::string Inside() const
    {
        std::unique_ptr<xcb_query_tree_reply_t, decltype(&std::free)> tree(
            xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, m_window), nullptr), &std::free);
        if (tree == nullptr || xcb_query_tree_children_length(tree.get()) != 1)
            return "";
        std::unique_ptr<xcb_get_geometry_reply_t, decltype(&std::free)> place(
            xcb_get_geometry_reply(
                m_connection, xcb_get_geometry(m_connection, *xcb_query_tree_children(tree.get())), nullptr),
            &std::free);
        if (place == nullptr)
            return "";
        return QString("%1,%2 %3x%4")
            .arg(place->x)
            .arg(place->y)
            .arg(place->width)
            .arg(place->height)
            .toStdString();
    }
    void Resize(std::uint32_t width, std::uint32_t height)
    {
        const std::uint32_t values[]{width, height};
        xcb_configure_window(m_connection, m_window, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT,
                             values);
        xcb_flush(m_connection);
    }
    sRun RunInto(const QString& id, const QStringList& more = {})
    {
        return RunProgram(InPrefix("bin/zantroq-chart"), QStringList{"SIM.CALM", "--into", id} + more,
                          OnX11());
    }

    CXServer m_server;
    xcb_connection_t* m_connection = nullptr;
    xcb_window_t m_window = 0;
    QProcess m_chart;
};

} // namespace

TEST_F(ForeignWindow, IsFilledByTheChartWhichFollowsItsSizeAndEndsWithIt)
{
    StartChart({"--feed", "embedded"});
    EXPECT_TRUE(Await([this] { return Inside() == "0,0 640x480"; })) << Inside();
    Resize(800, 333);
    EXPECT_TRUE(Await([this] { return Inside() == "0,0 800x333"; })) << Inside();
    xcb_destroy_window(m_connection, m_window);
    xcb_flush(m_connection);
    EXPECT_TRUE(m_chart.waitForFinished(60'000));
    EXPECT_EQ(m_chart.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(m_chart.exitCode(), 0);
}

TEST_F(ForeignWindow, ThatDoesNotExistIsReported)
{
    const sRun run = RunInto("0x1234567");
    EXPECT_EQ(run.ExitCode, 2);
    EXPECT_EQ(run.Err.toStdString(),
              "zantroq-chart: --into 19088743: there is no such window on this display; "
              "xwininfo reports the number of a window\n");
}

TEST_F(ForeignWindow, NumbersThatAreNoneAreReported)
{
    for (const char* id : {"", "0", "0x", "12x", "-1", "4294967296"}) {
        const sRun run = RunInto(id);
        EXPECT_EQ(run.ExitCode, 2) << id;
        EXPECT_TRUE(run.Err.contains("--into")) << run.Err.toStdString();
    }
}

TEST_F(ForeignWindow, GivesTheSizeAndShowsToAPerson)
{
    EXPECT_TRUE(RunInto("12", {"--size", "300x200"}).Err.contains("leave --size out"));
    EXPECT_TRUE(RunInto("12", {"--snapshot", "a.png"}).Err.contains("leave --snapshot"));
}

TEST_F(ForeignWindow, WithoutX11TheProgramSaysSo)
{
    const sRun run = RunProgram(InPrefix("bin/zantroq-chart"), {"SIM.CALM", "--into", "12"}, Environment());
    EXPECT_EQ(run.ExitCode, 2);
    EXPECT_TRUE(run.Err.contains("on X11 alone")) << run.Err.toStdString();
}

} // namespace zantroq::test
