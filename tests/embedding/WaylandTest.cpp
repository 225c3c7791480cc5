// On Wayland windows cannot set their position. The control restores size and state there and reports
// nothing.
#include "InstalledCopy.h"

#include <QThread>

namespace zantroq::test {
namespace {

class Wayland : public CInstalledCopy
{
protected:
    void SetUp() override
    {
        CInstalledCopy::SetUp();
        StartFeed();
        QProcessEnvironment environment = Environment();
        environment.remove("QT_QPA_PLATFORM");
        m_compositor.setProcessEnvironment(environment);
        m_compositor.setProcessChannelMode(QProcess::MergedChannels);
        m_compositor.start("weston", {"--backend=headless-backend.so", "--socket=wayland-test",
                                      "--width=1280", "--height=960", "--idle-time=0", "--no-config"});
        ASSERT_TRUE(m_compositor.waitForStarted()) << m_compositor.errorString().toStdString();
        for (int time = 0; time < 600 && !QFileInfo::exists(Path("wayland-test")); ++time) {
            ASSERT_EQ(m_compositor.state(), QProcess::Running) << m_compositor.readAll().toStdString();
            m_compositor.waitForReadyRead(50);
        }
        ASSERT_TRUE(QFileInfo::exists(Path("wayland-test")));
    }
    void TearDown() override
    {
        m_compositor.terminate();
        if (!m_compositor.waitForFinished(10'000))
            m_compositor.kill();
        m_compositor.waitForFinished();
        CInstalledCopy::TearDown();
    }

    sRun RunHost(const QString& title)
    {
        QProcessEnvironment environment = Environment();
        environment.insert("QT_QPA_PLATFORM", "wayland");
        environment.insert("WAYLAND_DISPLAY", "wayland-test");
        return RunProgram(ZANTROQ_PLACED_HOST, {title, "SIM.CALM"}, environment);
    }
    QString Stored(const QString& name)
    {
        return RunProgram(InPrefix("bin/zantroq-settings"), {"get", name}, Environment()).Out.trimmed();
    }

private:
    QProcess m_compositor;
};

} // namespace

TEST_F(Wayland, AStoredPlaceRestoresTheSizeAndIsKeptAsItWas)
{
    // 40, 30, 740, 530: left, top, right, bottom, the low byte first
    const QString place = "280000001e000000e402000012020000";
    Set({"set", "RectPosition.Placed", place, "--type", "binary"});
    const sRun run = RunHost("Placed");
    EXPECT_EQ(run.ExitCode, 0) << run.Err.toStdString();
    EXPECT_EQ(run.Out.toStdString(), "700 500 normal\n");
    EXPECT_EQ(run.Err.toStdString(), "");
    EXPECT_EQ(Stored("RectPosition.SIM.CALM - Chart").toStdString(), place.toStdString());
}

TEST_F(Wayland, AStoredMaximizedWindowIsMaximized)
{
    Set({"set", "RectPosition.Placed", "280000001e000000e402000012020000", "--type", "binary"});
    Set({"set", "RectPosition.Placed.Maximized", "1", "--type", "dword"});
    const sRun run = RunHost("Placed");
    EXPECT_EQ(run.ExitCode, 0) << run.Err.toStdString();
    EXPECT_TRUE(run.Out.endsWith(" maximized\n")) << run.Out.toStdString();
    EXPECT_EQ(run.Err.toStdString(), "");
    EXPECT_EQ(Stored("RectPosition.SIM.CALM - Chart.Maximized").toStdString(), "1");
}

TEST_F(Wayland, WithoutAStoredPlaceTheWindowTakesTheUsualSize)
{
    const sRun run = RunHost("Nowhere");
    EXPECT_EQ(run.ExitCode, 0) << run.Err.toStdString();
    EXPECT_EQ(run.Out.toStdString(), "620 460 normal\n");
    EXPECT_EQ(run.Err.toStdString(), "");
}

} // namespace zantroq::test
