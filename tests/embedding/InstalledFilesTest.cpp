// The files below the install prefix, and their use after the prefix was moved.
#include "InstalledCopy.h"

#include <QDirIterator>

namespace zantroq::test {
namespace {

class InstalledFiles : public CInstalledCopy
{
};

QByteArray Bytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TEST_F(InstalledFiles, AreWhereHostsLookForThem)
{
    for (const char* path :
         {"bin/zantroq-chart", "bin/zantroq-feed", "bin/zantroq-settings", "include/zantroq/ChartCtrl.h",
          "lib/libzantroq-chart.so", "lib/libzantroq-chart.so.1", "lib/pkgconfig/zantroq-chart.pc",
          "lib/cmake/ZantroqChart/ZantroqChartConfig.cmake",
          "lib/qt6/plugins/designer/libzantroq-chart-designer.so", "lib/zantroq/libzantroq-chart-module.so",
          "include/zantroq/module.h", "share/zantroq-chart/data/GOOG.daily.csv"})
        EXPECT_TRUE(QFileInfo::exists(InPrefix(path))) << path;
}

TEST_F(InstalledFiles, TextFilesNameNeitherTheBuildTreeNorTheFirstPlace)
{
    int files = 0;
    for (const char* folder : {"include", "lib/cmake", "lib/pkgconfig"})
        for (QDirIterator it(InPrefix(folder), QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
            const QByteArray text = Bytes(it.next());
            EXPECT_FALSE(text.contains(ZANTROQ_BUILD_FOLDER)) << it.filePath().toStdString();
            EXPECT_FALSE(text.contains(ZANTROQ_SOURCE_FOLDER)) << it.filePath().toStdString();
            EXPECT_FALSE(text.contains("/first")) << it.filePath().toStdString();
            ++files;
        }
    EXPECT_GE(files, 6);
}

TEST_F(InstalledFiles, HeadersIncludeOneAnotherQtAndTheStandardLibraryAlone)
{
    const QRegularExpression include("^\\s*#\\s*include\\s*[<\"]([^>\"]+)[>\"]",
                                     QRegularExpression::MultilineOption);
    const QRegularExpression allowed("^(zantroq/.*|Q[A-Z]\\w*|[a-z_]+(\\.h)?)$");
    int includes = 0;
    for (QDirIterator it(InPrefix("include/zantroq"), QDir::Files); it.hasNext();) {
        const QString text = Bytes(it.next());
        for (auto found = include.globalMatch(text); found.hasNext(); ++includes) {
            const QString header = found.next().captured(1);
            EXPECT_TRUE(allowed.match(header).hasMatch())
                << it.filePath().toStdString() << ": " << header.toStdString();
            if (header.startsWith("zantroq/")) {
                EXPECT_TRUE(QFileInfo::exists(InPrefix("include/" + header))) << header.toStdString();
            }
        }
    }
    EXPECT_GE(includes, 4);
}

TEST_F(InstalledFiles, EachHeaderCompilesByItself)
{
    QProcessEnvironment environment = Environment();
    environment.insert("PKG_CONFIG_PATH", InPrefix("lib/pkgconfig"));
    const sRun flags = RunProgram(ZANTROQ_PKG_CONFIG, {"--cflags", "zantroq-chart"}, environment);
    ASSERT_EQ(flags.ExitCode, 0) << flags.Err.toStdString();
    for (QDirIterator it(InPrefix("include/zantroq"), {"*.h"}, QDir::Files); it.hasNext();) {
        const QString header = it.next();
        const sRun run = RunProgram(ZANTROQ_CXX,
                                    QStringList{"-std=c++17", "-Wall", "-Wextra", "-Werror", "-fsyntax-only",
                                                "-x", "c++", "-include", header, "/dev/null"} +
                                        QProcess::splitCommand(flags.Out.trimmed()),
                                    environment);
        EXPECT_EQ(run.ExitCode, 0) << header.toStdString() << '\n' << run.Err.toStdString();
    }
}

TEST_F(InstalledFiles, TheProgramServesTheRecordingsThatWereInstalledWithIt)
{
    const QString here = InPrefix("share/zantroq-chart/data/HERE.daily.csv");
    ASSERT_TRUE(QFile::copy(InPrefix("share/zantroq-chart/data/GOOG.daily.csv"), here));
    const sRun run = RunProgram(
        InPrefix("bin/zantroq-chart"),
        {"HERE", "--data", "daily", "--feed", "embedded", "--snapshot", Path("chart.json")}, Environment());
    QFile::remove(here);
    EXPECT_EQ(run.ExitCode, 0) << run.Err.toStdString();
    EXPECT_TRUE(Bytes(Path("chart.json")).contains("\"symbol\": \"HERE\""));
}

} // namespace zantroq::test
