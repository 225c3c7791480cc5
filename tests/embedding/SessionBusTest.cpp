// The chart's five properties and its picture on a session bus.
#include "InstalledCopy.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusInterface>
#include <QDBusReply>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QThread>

namespace zantroq::test {
namespace {

class SessionBus : public CInstalledCopy
{
protected:
    void SetUp() override
    {
        CInstalledCopy::SetUp();
        m_daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        while (!m_daemon.canReadLine() && m_daemon.waitForReadyRead(60'000))
            ;
        m_address = QString::fromLatin1(m_daemon.readLine()).trimmed();
        ASSERT_FALSE(m_address.isEmpty()) << m_daemon.readAllStandardError().toStdString();
    }
    void TearDown() override
    {
        m_chart.kill();
        m_chart.waitForFinished();
        QDBusConnection::disconnectFromBus("test");
        m_daemon.terminate();
        m_daemon.waitForFinished();
        CInstalledCopy::TearDown();
    }

    // Starts the program and waits until its service exists.
    void StartChart()
    {
        QProcessEnvironment environment = Environment();
        environment.insert("DBUS_SESSION_BUS_ADDRESS", m_address);
        m_chart.setProcessEnvironment(environment);
        m_chart.start(InPrefix("bin/zantroq-chart"), {"--feed", "embedded"});
        ASSERT_TRUE(m_chart.waitForStarted());
        m_service = QString("org.zantroq.Chart.pid%1").arg(m_chart.processId());
        QElapsedTimer clock;
        clock.start();
        while (!Bus().interface()->isServiceRegistered(m_service) && clock.elapsed() < 60'000)
            QThread::msleep(20);
    }
    QDBusConnection Bus() const { return QDBusConnection::connectToBus(m_address, "test"); }
    QDBusMessage Call(const char* interface, const char* method, const QVariantList& words) const
    {
        QDBusMessage call =
            QDBusMessage::createMethodCall(m_service, "/org/zantroq/Chart/1", interface, method);
        call.setArguments(words);
        return Bus().call(call, QDBus::Block, 60'000);
    }
    QVariant Get(const char* name) const
    {
        const QDBusReply<QDBusVariant> reply =
            Call("org.freedesktop.DBus.Properties", "Get", {"org.zantroq.Chart1", name});
        return reply.value().variant();
    }
    // Returns the name of the error, or an empty text if the value was accepted.
    std::string Put(const char* name, const QVariant& value) const
    {
        return Call("org.freedesktop.DBus.Properties", "Set",
                    {"org.zantroq.Chart1", name, QVariant::fromValue(QDBusVariant(value))})
            .errorName()
            .toStdString();
    }
    QDBusMessage Snapshot(const QString& path) const
    {
        return Call("org.zantroq.Chart1", "Snapshot", {path});
    }

    QProcess m_daemon, m_chart;
    QString m_address, m_service;
};

} // namespace

TEST_F(SessionBus, FivePropertiesAreReadAndWritten)
{
    StartChart();
    EXPECT_EQ(Get("StockSymbol"), QVariant(QString()));
    EXPECT_EQ(Get("ResizeParentWindow"), QVariant(false));
    EXPECT_EQ(Get("Appearance"), QVariant::fromValue<short>(0));
    EXPECT_EQ(Get("BorderStyle"), QVariant::fromValue<short>(0));
    EXPECT_EQ(Get("Enabled"), QVariant(true));
    EXPECT_EQ(Put("StockSymbol", "SIM.CALM"), "");
    EXPECT_EQ(Put("ResizeParentWindow", true), "");
    EXPECT_EQ(Put("Appearance", 1), "");
    EXPECT_EQ(Put("BorderStyle", QVariant::fromValue<short>(1)), "");
    EXPECT_EQ(Put("Enabled", false), "");
    EXPECT_EQ(Get("StockSymbol"), QVariant("SIM.CALM"));
    EXPECT_EQ(Get("ResizeParentWindow"), QVariant(true));
    EXPECT_EQ(Get("Appearance"), QVariant::fromValue<short>(1));
    EXPECT_EQ(Get("BorderStyle"), QVariant::fromValue<short>(1));
    EXPECT_EQ(Get("Enabled"), QVariant(false));
}

TEST_F(SessionBus, ValuesThatAPropertyDoesNotTakeAreErrorsAndChangeNothing)
{
    StartChart();
    const std::string invalid = "org.freedesktop.DBus.Error.InvalidArgs";
    EXPECT_EQ(Put("Appearance", 2), invalid);
    EXPECT_EQ(Put("Appearance", "1"), invalid);
    EXPECT_EQ(Put("BorderStyle", -1), invalid);
    EXPECT_EQ(Put("Enabled", 0), invalid);
    EXPECT_EQ(Put("StockSymbol", 7), invalid);
    EXPECT_EQ(Put("Symbol", "A"), "org.freedesktop.DBus.Error.UnknownProperty");
    EXPECT_EQ(Get("Appearance"), QVariant::fromValue<short>(0));
    EXPECT_EQ(Get("Enabled"), QVariant(true));
    EXPECT_EQ(Get("StockSymbol"), QVariant(QString()));
}

TEST_F(SessionBus, ASnapshotWaitsForTheChartThatWasAskedFor)
{
    StartChart();
    EXPECT_EQ(Put("StockSymbol", "SIM.CALM"), "");
    EXPECT_EQ(Snapshot(Path("a.png")).errorMessage().toStdString(), "");
    ExpectAChart(Path("a.png"), QRect(0, 40, 900, 600));
}

TEST_F(SessionBus, ASnapshotThatCannotBeWrittenIsAnError)
{
    StartChart();
    EXPECT_EQ(Snapshot(Path("a.xyz")).errorName().toStdString(), "org.freedesktop.DBus.Error.Failed");
    EXPECT_EQ(Snapshot("/nowhere/a.png").errorName().toStdString(), "org.freedesktop.DBus.Error.Failed");
    EXPECT_EQ(Snapshot("a.png").errorName().toStdString(), "org.freedesktop.DBus.Error.InvalidArgs");
}

TEST_F(SessionBus, WithoutABusTheProgramSaysNothing)
{
    QProcessEnvironment environment = Environment();
    environment.remove("DBUS_SESSION_BUS_ADDRESS");
    environment.insert("QT_PLUGIN_PATH", ZANTROQ_TEST_PLUGINS);
    environment.insert("QT_QPA_GENERIC_PLUGINS", "zantroqwatch:" + Path("a.png"));
    StartFeed();
    const sRun run = RunProgram(InPrefix("bin/zantroq-chart"), {"SIM.CALM"}, environment);
    EXPECT_EQ(run.ExitCode, 0);
    EXPECT_EQ(run.Err.toStdString(), "zantroq-chart: SIM.CALM: simulated market, not genuine prices\n");
}

} // namespace zantroq::test
