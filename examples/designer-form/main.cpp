// A host that does not link the library: it loads a form and finds the control in it by its name.
// form-host FORM.ui PREFIX [SYMBOL], where PREFIX is the folder into which Zantroq Chart was installed
#include <QApplication>
#include <QFile>
#include <QUiLoader>
#include <QWidget>

#include <memory>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (argc < 3)
        qFatal("usage: form-host FORM.ui PREFIX [SYMBOL]");
    QUiLoader loader;
    loader.addPluginPath(QString(argv[2]) + "/lib/qt6/plugins/designer");
    QFile form(argv[1]);
    const std::unique_ptr<QWidget> window(form.open(QIODevice::ReadOnly) ? loader.load(&form) : nullptr);
    QWidget* const chart = window != nullptr ? window->findChild<QWidget*>("chart") : nullptr;
    if (chart == nullptr)
        qFatal("%s: no form with a chart in it", argv[1]);
    chart->setProperty("StockSymbol", argc > 3 ? argv[3] : "SIM.CALM");
    window->show();
    return QApplication::exec();
}
