// A host that links the library: chart-host [SYMBOL]
#include <zantroq/ChartCtrl.h>

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    zantroq::CChartCtrl chart;
    chart.resize(900, 700);
    chart.SetStockSymbol(argc > 1 ? argv[1] : "SIM.CALM");
    chart.show();
    return QApplication::exec();
}
