// Signals end zantroq-chart like closing its window.
#include "Programs.h"

#include <QElapsedTimer>

#include <csignal>

namespace zantroq::test {
namespace {

class EndSignals : public CPrograms
{
protected:
    // A window without a display of a desktop.
    void Start(const QStringList& words)
    {
        QProcessEnvironment environment = Environment();
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        m_chart.setProcessEnvironment(environment);
        m_chart.setWorkingDirectory(m_folder.path());
        // The signals ignored by the test program itself must not matter.
        m_chart.setChildProcessModifier([] {
            for (const int number : {SIGTERM, SIGINT, SIGHUP})
                std::signal(number, SIG_DFL);
        });
        m_chart.start(ZANTROQ_CHART, words);
        ASSERT_TRUE(m_chart.waitForStarted(30'000));
    }
    void WaitForNotice(const QByteArray& words)
    {
        QElapsedTimer clock;
        clock.start();
        while (!m_err.contains(words) && clock.elapsed() < 60'000) {
            m_chart.waitForReadyRead(100);
            m_err += m_chart.readAllStandardError();
        }
        ASSERT_TRUE(m_err.contains(words)) << m_err.toStdString();
    }
    void WaitForFile(const QString& name)
    {
        QElapsedTimer clock;
        clock.start();
        while (!QFile::exists(Path(name)) && clock.elapsed() < 60'000)
            m_chart.waitForFinished(20);
        ASSERT_TRUE(QFile::exists(Path(name)));
    }
    // The exit code; -1 if the signal killed the process.
    int EndBy(int number)
    {
        EXPECT_EQ(::kill(static_cast<pid_t>(m_chart.processId()), number), 0);
        if (!m_chart.waitForFinished(30'000)) {
            ADD_FAILURE() << "signal " << number << " did not end the program";
            m_chart.kill();
            m_chart.waitForFinished();
        }
        m_err += m_chart.readAllStandardError();
        return m_chart.exitStatus() == QProcess::NormalExit ? m_chart.exitCode() : -1;
    }

    QProcess m_chart;
    QByteArray m_err;
};

} // namespace

TEST_F(EndSignals, EachOfThemEndsAWindowWithExitZero)
{
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        m_err.clear();
        Start({"--feed", "embedded", "SIM.A"});
        WaitForNotice("simulated history");
        EXPECT_EQ(EndBy(number), 0) << number << m_err.toStdString();
    }
}

TEST_F(EndSignals, ASnapshotUnderWayEndsWithThreeAndNoFile)
{
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        m_err.clear();
        Start({"--feed", "embedded", "--snapshot", "a.png", "--settle", "80000000", "SIM.A"});
        WaitForNotice("simulated history");
        EXPECT_EQ(EndBy(number), 3) << number;
        EXPECT_TRUE(m_err.endsWith("zantroq-chart: --snapshot a.png: a signal ended the program before every "
                                   "picture was written; run it again\n"))
            << m_err.toStdString();
        EXPECT_FALSE(QFile::exists(Path("a.png")));
    }
}

TEST_F(EndSignals, AScriptEndsWithExitZeroAtTheStepThatItHasReached)
{
    Write("script.txt", "snapshot 1.json\nwait 80000000\nsnapshot 2.json\n");
    Start({"--feed", "embedded", "--replay", "script.txt"});
    WaitForFile("1.json");
    EXPECT_EQ(EndBy(SIGTERM), 0) << m_err.toStdString();
    EXPECT_EQ(m_err.toStdString(), "");
    EXPECT_FALSE(QFile::exists(Path("2.json")));
}

TEST_F(EndSignals, AScriptInAWindowEndsAWaitForTheFeedWithExitZero)
{
    Write("script.txt", "symbol NOSUCH\ndraw\nsnapshot 1.json\ncommand 775\nwait complete 80000\n"
                        "snapshot 2.json\n");
    Start({"--feed", "embedded", "--replay", "script.txt", "--show"});
    WaitForFile("1.json");
    EXPECT_EQ(EndBy(SIGHUP), 0) << m_err.toStdString();
    EXPECT_FALSE(QFile::exists(Path("2.json")));
}

TEST_F(EndSignals, AHangUpThatIsIgnoredAtTheStartStaysIgnored)
{
    Write("script.txt", "snapshot 1.json\nwait 80000000\n");
    m_chart.setProcessEnvironment(Environment());
    m_chart.setWorkingDirectory(m_folder.path());
    m_chart.setChildProcessModifier([] { std::signal(SIGHUP, SIG_IGN); });
    m_chart.start(ZANTROQ_CHART, {"--feed", "embedded", "--replay", "script.txt"});
    WaitForFile("1.json");
    ASSERT_EQ(::kill(static_cast<pid_t>(m_chart.processId()), SIGHUP), 0);
    EXPECT_FALSE(m_chart.waitForFinished(300));
    EXPECT_EQ(EndBy(SIGTERM), 0);
}

} // namespace zantroq::test
