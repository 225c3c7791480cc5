// Provides the control to Qt Designer's widget box and to forms that QUiLoader loads. Thread of the
// application's widgets.
#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace zantroq {

class CChartPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetInterface")
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    QString name() const override { return "zantroq::CChartCtrl"; }
    QString group() const override { return "Zantroq"; }
    QString toolTip() const override { return "Price chart with studies and live trades"; }
    QString whatsThis() const override { return toolTip(); }
    QString includeFile() const override { return "zantroq/ChartCtrl.h"; }
    QIcon icon() const override;
    bool isContainer() const override { return false; }
    QWidget* createWidget(QWidget* parent) override;
    QString domXml() const override;
};

} // namespace zantroq
