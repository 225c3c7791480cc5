// The Qt examples, built against the installed copy and run with its feed until their charts are drawn.
#include "InstalledCopy.h"

namespace zantroq::test {
namespace {

class QtHosts : public CInstalledCopy
{
};

} // namespace

TEST_F(QtHosts, ACMakeProjectFindsThePackageAndShowsALiveChart)
{
    const QString folder = BuildExample("qt-cmake");
    StartFeed();
    const sRun run = RunWatched(folder + "/chart-host", {"SIM.CALM"}, Path("a.png"));
    EXPECT_EQ(run.ExitCode, 0) << run.Err.toStdString();
    EXPECT_TRUE(
        QRegularExpression("^SIM\\.CALM\\|\\d+ datapoints available\\.  Displaying \\d+\\.\\|SIM\\.CALM - "
                           "Chart\n$")
            .match(run.Out)
            .hasMatch())
        << run.Out.toStdString();
    EXPECT_EQ(Complaints(run).toStdString(), "");
    ExpectAChart(Path("a.png"), QRect(0, 40, 900, 600));
}

TEST_F(QtHosts, PkgConfigIsEnoughAndTwoChartsLiveInOneProcess)
{
    QProcessEnvironment environment = Environment();
    environment.insert("PKG_CONFIG_PATH", InPrefix("lib/pkgconfig"));
    environment.insert("CXX", ZANTROQ_CXX);
    const sRun built = RunProgram(Example("qt-pkg-config/build.sh"), {}, environment, m_folder.path());
    ASSERT_EQ(built.ExitCode, 0) << built.Err.toStdString();
    StartFeed();
    const sRun run = RunWatched(Path("two-charts"), {"SIM.CALM", "SIM.WILD"}, Path("b.png"));
    EXPECT_EQ(run.ExitCode, 0) << run.Err.toStdString();
    EXPECT_TRUE(run.Out.contains("SIM.CALM|") && run.Out.contains("SIM.WILD|")) << run.Out.toStdString();
    EXPECT_EQ(Complaints(run).toStdString(), "");
    ExpectAChart(Path("b.png"), QRect(0, 40, 590, 500));
    ExpectAChart(Path("b.png"), QRect(610, 40, 590, 500));
}

TEST_F(QtHosts, AFormLoadedAtRunTimeShowsALiveChartWithoutLinkingTheLibrary)
{
    const QString folder = BuildExample("designer-form");
    const sRun linked = RunProgram("ldd", {folder + "/form-host"}, Environment());
    EXPECT_FALSE(linked.Out.contains("zantroq")) << linked.Out.toStdString();
    StartFeed();
    const sRun run = RunWatched(folder + "/form-host",
                                {Example("designer-form/chart.ui"), Prefix(), "SIM.CALM"}, Path("c.png"));
    EXPECT_EQ(run.ExitCode, 0) << run.Err.toStdString();
    EXPECT_TRUE(run.Out.startsWith("SIM.CALM|")) << run.Out.toStdString();
    EXPECT_EQ(Complaints(run).toStdString(), "");
    ExpectAChart(Path("c.png"), QRect(10, 80, 880, 550));
}

} // namespace zantroq::test
