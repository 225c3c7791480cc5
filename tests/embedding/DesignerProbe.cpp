// Qt Designer's own editor without windows: puts a chart on a form, sets all five properties in the property
// editor's sheet, and saves the form. QT_PLUGIN_PATH must contain the plugin's folder. Prints
//
//     box GROUP NAME          the chart's position in the widget box
//     icon yes|no             whether it has an icon there
//     property NAME shown|hidden
//
// and then the saved form.
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerWidgetBoxInterface>
#include <QtDesigner/QExtensionManager>
#include <QtDesigner/abstractwidgetdatabase.h>

#include <QApplication>
#include <QIcon>

#include <cstdio>

namespace {

constexpr const char* ControlClass = "zantroq::CChartCtrl";

const char* const Form = R"(<ui version="4.0"><class>Form</class>
<widget class="QWidget" name="Form"><widget class="zantroq::CChartCtrl" name="chart"/></widget></ui>)";

void PrintBox(QDesignerFormEditorInterface& core)
{
    QDesignerWidgetBoxInterface* const box = QDesignerComponents::createWidgetBox(&core, nullptr);
    core.setWidgetBox(box);
    for (int category = 0; category < box->categoryCount(); ++category)
        for (int place = 0; place < box->widgetCount(category); ++place)
            if (box->widget(category, place).domXml().contains(ControlClass))
                std::printf("box %s %s\n", qPrintable(box->category(category).name()),
                            qPrintable(box->widget(category, place).name()));
    const QDesignerWidgetDataBaseInterface& known = *core.widgetDataBase();
    const int index = known.indexOfClassName(ControlClass);
    std::printf("icon %s\n", index >= 0 && !known.item(index)->icon().pixmap(22, 22).isNull() ? "yes" : "no");
}

void SetAndPrint(QDesignerPropertySheetExtension& sheet, const char* name, const QVariant& value)
{
    const int index = sheet.indexOf(name);
    std::printf("property %s %s\n", name, index >= 0 && sheet.isVisible(index) ? "shown" : "hidden");
    if (index < 0)
        return;
    sheet.setProperty(index, value);
    sheet.setChanged(index, true);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QDesignerComponents::initializeResources();
    QDesignerFormEditorInterface* const core = QDesignerComponents::createFormEditor(&application);
    QDesignerComponents::createTaskMenu(core, &application);
    new QDesignerIntegration(core, &application);
    QDesignerComponents::initializePlugins(core);
    PrintBox(*core);
    QDesignerFormWindowInterface* const form = core->formWindowManager()->createFormWindow();
    if (!form->setContents(QString(Form)))
        return 1;
    QWidget* const chart = form->findChild<QWidget*>("chart");
    auto* const sheet = chart == nullptr
                            ? nullptr
                            : qt_extension<QDesignerPropertySheetExtension*>(core->extensionManager(), chart);
    if (sheet == nullptr)
        return 1;
    SetAndPrint(*sheet, "StockSymbol", "SIM.CALM");
    SetAndPrint(*sheet, "ResizeParentWindow", true);
    SetAndPrint(*sheet, "Appearance", 1);
    SetAndPrint(*sheet, "BorderStyle", 1);
    SetAndPrint(*sheet, "Enabled", false);
    std::printf("%s\n", qPrintable(form->contents()));
}
