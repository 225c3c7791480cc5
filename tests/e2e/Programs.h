// Runs the built programs like a user or a script: in separate processes, with separate settings, in a folder
// that is deleted after the test.
#pragma once

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace zantroq::test {

struct sRun
{
    int ExitCode = -1;
    std::string Out, Err;
};

class CPrograms : public testing::Test
{
protected:
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    // Without a display, unless a test sets one.
    QProcessEnvironment Environment() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_SCALE_FACTOR"})
            environment.remove(name);
        environment.insert("ZANTROQ_SETTINGS", Path("settings.db"));
        return environment;
    }

    sRun Run(const QString& program, const QStringList& words, const QProcessEnvironment& environment)
    {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_folder.path());
        process.start(program, words);
        if (!process.waitForFinished(90'000)) {
            ADD_FAILURE() << program.toStdString() << " did not end: " << words.join(' ').toStdString();
            process.kill();
            process.waitForFinished();
        }
        sRun run;
        run.ExitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        run.Out = process.readAllStandardOutput().toStdString();
        run.Err = process.readAllStandardError().toStdString();
        return run;
    }
    sRun Chart(const QStringList& words) { return Run(ZANTROQ_CHART, words, Environment()); }
    sRun Settings(const QStringList& words) { return Run(ZANTROQ_SETTINGS_PROGRAM, words, Environment()); }

    QByteArray Bytes(const QString& name) const
    {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void Write(const QString& name, const std::string& text) const
    {
        std::ofstream(Path(name).toStdString(), std::ios::binary) << text;
    }

    QTemporaryDir m_folder;
};

// zantroq-feed on two free ports, which are stored in the test's settings.
class CProgramsWithFeed : public CPrograms
{
protected:
    void StartFeed(const QStringList& words = {})
    {
        m_feed.setProcessEnvironment(Environment());
        m_feed.start(ZANTROQ_FEED, QStringList({"--lookup-port", "0", "--level1-port", "0"}) + words);
        ASSERT_TRUE(m_feed.waitForReadyRead(30'000)) << m_feed.readAllStandardError().toStdString();
        const auto line = QString::fromUtf8(m_feed.readLine());
        const auto ports =
            QRegularExpression("^listening on 127\\.0\\.0\\.1:(\\d+) and 127\\.0\\.0\\.1:(\\d+)\n$")
                .match(line);
        ASSERT_TRUE(ports.hasMatch()) << line.toStdString();
        SetPorts(ports.captured(1), ports.captured(2));
    }
    void SetPorts(const QString& lookup, const QString& level1)
    {
        const QString key = "Software\\Zantro\\Quovex\\Startup";
        ASSERT_EQ(Settings({"--key", key, "set", "LookupPort", lookup}).ExitCode, 0);
        ASSERT_EQ(Settings({"--key", key, "set", "Level1Port", level1}).ExitCode, 0);
    }
    void TearDown() override
    {
        m_feed.terminate();
        if (m_feed.state() != QProcess::NotRunning && !m_feed.waitForFinished(10'000))
            m_feed.kill();
    }

    QProcess m_feed;
};

} // namespace zantroq::test
