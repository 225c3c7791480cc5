#include "control/designer/ChartPlugin.h"

#include <zantroq/ChartCtrl.h>

#include <QIcon>

namespace zantroq {

QIcon CChartPlugin::icon() const
{
    return QIcon(":/zantroq/designer/zantroq-chart.svg");
}

QWidget* CChartPlugin::createWidget(QWidget* parent)
{
    return new CChartCtrl(parent);
}

QString CChartPlugin::domXml() const
{
    return R"(<ui language="c++" displayname="Chart">
 <widget class="zantroq::CChartCtrl" name="chart">
  <property name="geometry"><rect><x>0</x><y>0</y><width>620</width><height>460</height></rect></property>
 </widget>
</ui>)";
}

} // namespace zantroq
