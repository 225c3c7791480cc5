// The examples in Python, run with the installed copy and its feed.
#include "InstalledCopy.h"
#include "XServer.h"

namespace zantroq::test {
namespace {

class PythonHosts : public CInstalledCopy
{
};

} // namespace

TEST_F(PythonHosts, AGtkWindowShowsTheChartInside)
{
    const CXServer server;
    StartFeed();
    QProcessEnvironment environment = Environment();
    environment.remove("QT_QPA_PLATFORM");
    environment.insert("DISPLAY", server.Display());
    environment.insert("GDK_BACKEND", "x11");
    environment.insert("NO_AT_BRIDGE", "1"); // no service for screen readers on the test's bus
    environment.insert("QT_PLUGIN_PATH", ZANTROQ_TEST_PLUGINS);
    environment.insert("QT_QPA_GENERIC_PLUGINS", "zantroqwatch:" + Path("a.png"));
    const sRun run = RunProgram(
        "dbus-run-session", {"--", Example("python-gtk/chart_window.py"), Prefix(), "SIM.CALM"}, environment);
    EXPECT_EQ(run.ExitCode, 0) << run.Err.toStdString();
    EXPECT_TRUE(run.Out.startsWith("SIM.CALM|")) << (run.Out + run.Err).toStdString();
    ExpectAChart(Path("a.png"), QRect(0, 60, 880, 400));
}

TEST_F(PythonHosts, PicturesComeOverTheSessionBusWithoutAWindow)
{
    StartFeed();
    const sRun run = RunProgram(
        "dbus-run-session",
        {"--", Example("python-snapshot/snapshot.py"), Prefix(), m_folder.path(), "SIM.CALM", "SIM.WILD"},
        Environment());
    EXPECT_EQ(run.ExitCode, 0) << run.Err.toStdString();
    EXPECT_TRUE(run.Out.contains("changed: {'StockSymbol': 'SIM.WILD'}")) << run.Out.toStdString();
    ExpectAChart(Path("SIM.CALM.png"), QRect(0, 40, 900, 600));
    ExpectAChart(Path("SIM.WILD.png"), QRect(0, 40, 900, 600));
}

} // namespace zantroq::test
