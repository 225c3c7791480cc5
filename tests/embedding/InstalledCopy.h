// An installed copy of the project, made once for all tests of the program: installed into one folder and
// then moved to another outside the build tree. Also runs programs of the copy and hosts built against it,
// with separate settings and a separate feed.
#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace zantroq::test {

struct sRun
{
    int ExitCode = -1;
    QString Out, Err;
};

inline sRun RunProgram(const QString& program, const QStringList& words,
                       const QProcessEnvironment& environment, const QString& folder = QDir::tempPath())
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(program, words);
    if (!process.waitForFinished(300'000)) {
        ADD_FAILURE() << program.toStdString() << " did not end: " << process.errorString().toStdString();
        process.kill();
        process.waitForFinished();
    }
    sRun run;
    run.ExitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    run.Out = QString::fromUtf8(process.readAllStandardOutput());
    run.Err = QString::fromUtf8(process.readAllStandardError());
    return run;
}

class CInstalledCopy : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        if (Installed())
            return;
        auto folder = std::make_unique<QTemporaryDir>(QDir::tempPath() + "/zantroq-embedding-XXXXXX");
        const QString first = folder->filePath("first"), moved = folder->filePath("moved");
        const sRun run = RunProgram(ZANTROQ_CMAKE, {"--install", ZANTROQ_BUILD_FOLDER, "--prefix", first},
                                    QProcessEnvironment::systemEnvironment());
        ASSERT_EQ(run.ExitCode, 0) << run.Err.toStdString();
        ASSERT_TRUE(QDir().rename(first, moved));
        Installed() = std::move(folder);
    }
    void SetUp() override { ASSERT_NE(Installed(), nullptr); }
    void TearDown() override
    {
        m_feed.terminate();
        if (m_feed.state() != QProcess::NotRunning && !m_feed.waitForFinished(10'000))
            m_feed.kill();
        m_feed.waitForFinished();
    }

    static QString Prefix() { return Installed()->filePath("moved"); }
    static QString InPrefix(const QString& path) { return Prefix() + "/" + path; }
    static QString Example(const QString& path) { return QString(ZANTROQ_SOURCE_FOLDER "/examples/") + path; }
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    // Without a display, the user's settings and the build tree.
    QProcessEnvironment Environment() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_SCALE_FACTOR", "QT_PLUGIN_PATH",
                                 "LD_LIBRARY_PATH", "ZANTROQ_DATA", "PKG_CONFIG_PATH"})
            environment.remove(name);
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        environment.insert("XDG_RUNTIME_DIR", m_folder.path());
        environment.insert("ZANTROQ_SETTINGS", Path("settings.db"));
        return environment;
    }

    // The standard error of a host, without a line that the offscreen platform writes for every window.
    static QString Complaints(const sRun& run)
    {
        return QString(run.Err).remove("This plugin does not support propagateSizeHints()\n");
    }

    // Runs a host until all its charts are drawn, and saves a picture of its window.
    sRun RunWatched(const QString& program, const QStringList& words, const QString& picture)
    {
        QProcessEnvironment environment = Environment();
        environment.insert("QT_PLUGIN_PATH", ZANTROQ_TEST_PLUGINS);
        environment.insert("QT_QPA_GENERIC_PLUGINS", "zantroqwatch:" + picture);
        return RunProgram(program, words, environment, m_folder.path());
    }

    // The feed of the copy on two free ports, which are stored in the test's settings.
    void StartFeed()
    {
        m_feed.setProcessEnvironment(Environment());
        m_feed.start(InPrefix("bin/zantroq-feed"), {"--lookup-port", "0", "--level1-port", "0"});
        ASSERT_TRUE(m_feed.waitForReadyRead(60'000)) << m_feed.readAllStandardError().toStdString();
        const QString line = m_feed.readLine();
        const auto ports =
            QRegularExpression("127\\.0\\.0\\.1:(\\d+) and 127\\.0\\.0\\.1:(\\d+)").match(line);
        ASSERT_TRUE(ports.hasMatch()) << line.toStdString();
        Set({"--key", "Software\\Zantro\\Quovex\\Startup", "set", "LookupPort", ports.captured(1)});
        Set({"--key", "Software\\Zantro\\Quovex\\Startup", "set", "Level1Port", ports.captured(2)});
    }
    void Set(const QStringList& words)
    {
        const sRun run = RunProgram(InPrefix("bin/zantroq-settings"), words, Environment());
        ASSERT_EQ(run.ExitCode, 0) << run.Err.toStdString();
    }

    // Builds the CMake project of an example against the copy. Returns the folder with its program.
    QString BuildExample(const QString& name)
    {
        const QString folder = Path(name);
        const QStringList configure{"-S",
                                    Example(name),
                                    "-B",
                                    folder,
                                    "-DCMAKE_PREFIX_PATH=" + Prefix(),
                                    "-DCMAKE_CXX_COMPILER=" ZANTROQ_CXX};
        const sRun configured = RunProgram(ZANTROQ_CMAKE, configure, Environment());
        EXPECT_EQ(configured.ExitCode, 0) << (configured.Out + configured.Err).toStdString();
        const sRun built = RunProgram(ZANTROQ_CMAKE, {"--build", folder}, Environment());
        EXPECT_EQ(built.ExitCode, 0) << (built.Out + built.Err).toStdString();
        return folder;
    }

    static int ColorsOf(const QString& file, const QRect& part)
    {
        const QImage picture = QImage(file).copy(part);
        QSet<QRgb> colors;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                colors << picture.pixel(x, y);
        return static_cast<int>(colors.size());
    }

    // Expects a chart: candles, axes and labels give many colors, none of which covers nearly all of the
    // picture.
    static void ExpectAChart(const QString& file, const QRect& part)
    {
        const QImage picture(file);
        ASSERT_TRUE(picture.rect().contains(part)) << picture.width() << " x " << picture.height();
        QHash<QRgb, int> colors;
        for (int y = part.top(); y <= part.bottom(); ++y)
            for (int x = part.left(); x <= part.right(); ++x)
                ++colors[picture.pixel(x, y)];
        EXPECT_GT(colors.size(), 20);
        for (const int count : colors)
            EXPECT_LT(count, 0.97 * part.width() * part.height());
    }

    QTemporaryDir m_folder;
    QProcess m_feed;

private:
    static std::unique_ptr<QTemporaryDir>& Installed()
    {
        static std::unique_ptr<QTemporaryDir> folder;
        return folder;
    }
};

} // namespace zantroq::test
