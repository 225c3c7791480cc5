// A host whose window the chart places: placed-host TITLE SYMBOL. Prints the window's size and state once the
// chart is drawn, "620 460 normal" or "... maximized", and exits.
#include <zantroq/ChartCtrl.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <QVBoxLayout>

#include <cstdio>

namespace {

bool IsDrawn(const QWidget& chart)
{
    for (const QWidget* const child : chart.findChildren<QWidget*>())
        if (child->accessibleName() == "Status bar")
            return child->accessibleDescription().contains(" datapoints available.");
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (argc < 3)
        return 2;
    QWidget window;
    window.setWindowTitle(argv[1]);
    QVBoxLayout layout(&window);
    layout.setContentsMargins(0, 0, 0, 0);
    zantroq::CChartCtrl chart;
    layout.addWidget(&chart);
    chart.SetResizeParentWindow(true);
    window.show();
    chart.SetStockSymbol(argv[2]);
    QElapsedTimer clock;
    clock.start();
    QTimer look;
    look.callOnTimeout(&window, [&] {
        if (!IsDrawn(chart) && clock.elapsed() < 60'000)
            return;
        std::printf("%d %d %s\n", window.width(), window.height(),
                    window.isMaximized() ? "maximized" : "normal");
        QCoreApplication::exit(IsDrawn(chart) ? 0 : 3);
    });
    look.start(50);
    return QApplication::exec();
}
