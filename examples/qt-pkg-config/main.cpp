// Two charts side by side in one window, on one connection to the feed: two-charts [SYMBOL [SYMBOL]]
#include <zantroq/ChartCtrl.h>

#include <QApplication>
#include <QSplitter>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QSplitter window;
    for (int i = 1; i <= 2; ++i) {
        auto* chart = new zantroq::CChartCtrl(&window);
        chart->SetAppearance(1);
        chart->SetStockSymbol(argc > i ? argv[i] : i == 1 ? "SIM.CALM" : "SIM.WILD");
    }
    window.resize(1200, 600);
    window.show();
    return QApplication::exec();
}
