// The plugin in Qt Designer's own editor. No feed runs: the chart on the form must do no harm.
#include "InstalledCopy.h"

namespace zantroq::test {
namespace {

class Designer : public CInstalledCopy
{
protected:
    void SetUp() override
    {
        CInstalledCopy::SetUp();
        QProcessEnvironment environment = Environment();
        environment.insert("QT_PLUGIN_PATH", InPrefix("lib/qt6/plugins"));
        environment.insert("HOME", m_folder.path());
        m_run = RunProgram(ZANTROQ_DESIGNER_PROBE, {}, environment);
        ASSERT_EQ(m_run.ExitCode, 0) << m_run.Err.toStdString();
    }
    bool Says(const QString& line) const { return m_run.Out.split('\n').contains(line); }

    sRun m_run;
};

} // namespace

TEST_F(Designer, HasTheChartInItsWidgetBoxWithAnIcon)
{
    EXPECT_TRUE(Says("box Zantroq Chart")) << m_run.Out.toStdString();
    EXPECT_TRUE(Says("icon yes"));
}

TEST_F(Designer, ShowsTheFivePropertiesInItsEditor)
{
    for (const char* name : {"StockSymbol", "ResizeParentWindow", "Appearance", "BorderStyle", "Enabled"})
        EXPECT_TRUE(Says(QString("property %1 shown").arg(name))) << m_run.Out.toStdString();
}

TEST_F(Designer, SavesTheStockPropertiesIntoAFormAndNotWhatAHostSetsEveryTime)
{
    EXPECT_TRUE(m_run.Out.contains("name=\"Appearance\"")) << m_run.Out.toStdString();
    EXPECT_TRUE(m_run.Out.contains("name=\"BorderStyle\""));
    EXPECT_TRUE(m_run.Out.contains("name=\"Enabled\""));
    EXPECT_FALSE(m_run.Out.contains("name=\"StockSymbol\""));
    EXPECT_FALSE(m_run.Out.contains("name=\"ResizeParentWindow\""));
    EXPECT_FALSE(m_run.Out.contains("SIM.CALM"));
    EXPECT_TRUE(m_run.Out.contains("<header location=\"global\">zantroq/ChartCtrl.h</header>") ||
                m_run.Out.contains("<header>zantroq/ChartCtrl.h</header>"));
}

} // namespace zantroq::test
