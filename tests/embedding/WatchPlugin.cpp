// Watches a host from inside without changing it: QT_QPA_GENERIC_PLUGINS=zantroqwatch:FILE loads this into
// any Qt program. Once every chart control of the program reports its data points, the plugin writes a
// picture of the first window into FILE, prints a line for each control, and ends the program with 0; after a
// minute it ends it with 3.
#include <QApplication>
#include <QElapsedTimer>
#include <QGenericPlugin>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <cstdio>

namespace {

QList<QWidget*> Controls()
{
    QList<QWidget*> controls;
    for (QWidget* const widget : QApplication::allWidgets())
        if (widget->inherits("zantroq::CChartCtrl"))
            controls << widget;
    return controls;
}

QString StatusOf(const QWidget& control)
{
    for (const QWidget* const child : control.findChildren<QWidget*>())
        if (child->accessibleName() == "Status bar")
            return child->accessibleDescription();
    return {};
}

bool IsDrawn(const QWidget& control)
{
    return StatusOf(control).contains(" datapoints available.");
}

class CWatch : public QObject
{
public:
    explicit CWatch(const QString& file) : m_file(file)
    {
        m_clock.start();
        m_timer.callOnTimeout(this, [this] { Look(); });
        m_timer.start(50);
    }

private:
    void Look()
    {
        const QList<QWidget*> controls = Controls();
        const bool drawn =
            !controls.isEmpty() && std::all_of(controls.begin(), controls.end(),
                                               [](const QWidget* control) { return IsDrawn(*control); });
        if (!drawn && m_clock.elapsed() < 60'000)
            return;
        m_timer.stop();
        for (const QWidget* const control : controls)
            std::printf("%s|%s|%s\n", qPrintable(control->property("StockSymbol").toString()),
                        qPrintable(StatusOf(*control)), qPrintable(control->window()->windowTitle()));
        std::fflush(stdout);
        if (drawn)
            controls.front()->window()->grab().save(m_file);
        QCoreApplication::exit(drawn ? 0 : 3);
    }

    const QString m_file;
    QElapsedTimer m_clock;
    QTimer m_timer;
};

} // namespace

class CWatchPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "watch.json")

public:
    QObject* create(const QString&, const QString& file) override { return new CWatch(file); }
};

#include "WatchPlugin.moc"
