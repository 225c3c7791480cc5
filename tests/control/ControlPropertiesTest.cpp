// The five properties as a host uses them: through the meta object and the accessors.
#include "ControlFixture.h"

#include "settings/WindowPosition.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QSignalSpy>

#include <algorithm>

namespace zantroq::test {
namespace {

class ControlProperties : public CControlFixture
{
};

QStringList OwnProperties(const QMetaObject& meta)
{
    QStringList names;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        names << meta.property(i).name();
    return names;
}

QMetaProperty Property(const char* name)
{
    const QMetaObject& meta = CChartCtrl::staticMetaObject;
    return meta.property(meta.indexOfProperty(name));
}

} // namespace

TEST_F(ControlProperties, AreTheFiveOfTheInterfaceAndNoOthers)
{
    EXPECT_EQ(OwnProperties(CChartCtrl::staticMetaObject),
              QStringList({"StockSymbol", "ResizeParentWindow", "Appearance", "BorderStyle", "Enabled"}));
}

TEST_F(ControlProperties, HaveChangeSignalsAndTheControlHasNoOtherSignalOrSlot)
{
    const QMetaObject& meta = CChartCtrl::staticMetaObject;
    QStringList signalsOfProperties, methods;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        signalsOfProperties << meta.property(i).notifySignal().name();
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods << meta.method(i).name();
    std::sort(signalsOfProperties.begin(), signalsOfProperties.end());
    std::sort(methods.begin(), methods.end());
    EXPECT_EQ(methods, signalsOfProperties);
    EXPECT_EQ(methods.size(), 5);
    EXPECT_EQ(methods.removeDuplicates(), 0);
}

TEST_F(ControlProperties, AFormStoresTheStockPropertiesAlone)
{
    EXPECT_FALSE(Property("StockSymbol").isStored());
    EXPECT_FALSE(Property("ResizeParentWindow").isStored());
    EXPECT_TRUE(Property("Appearance").isStored());
    EXPECT_TRUE(Property("BorderStyle").isStored());
    EXPECT_TRUE(Property("Enabled").isStored());
    for (const QString& name : OwnProperties(CChartCtrl::staticMetaObject)) {
        EXPECT_TRUE(Property(name.toUtf8()).isDesignable()) << name.toStdString();
        EXPECT_TRUE(Property(name.toUtf8()).isWritable()) << name.toStdString();
    }
}

TEST_F(ControlProperties, StartEmptyFlatWithoutABorderAndEnabled)
{
    const auto control = Make();
    EXPECT_EQ(control->property("StockSymbol"), QString());
    EXPECT_EQ(control->property("ResizeParentWindow"), false);
    EXPECT_EQ(control->property("Appearance"), 0);
    EXPECT_EQ(control->property("BorderStyle"), 0);
    EXPECT_EQ(control->property("Enabled"), true);
}

TEST_F(ControlProperties, ReportAChangeOnce)
{
    const auto control = Make();
    const QSignalSpy symbol(control.get(), &CChartCtrl::StockSymbolChanged);
    const QSignalSpy resize(control.get(), &CChartCtrl::ResizeParentWindowChanged);
    const QSignalSpy appearance(control.get(), &CChartCtrl::AppearanceChanged);
    const QSignalSpy border(control.get(), &CChartCtrl::BorderStyleChanged);
    const QSignalSpy enabled(control.get(), &CChartCtrl::EnabledChanged);
    for (int time = 0; time < 2; ++time) {
        EXPECT_TRUE(control->setProperty("StockSymbol", "AAA"));
        EXPECT_TRUE(control->setProperty("ResizeParentWindow", true));
        EXPECT_TRUE(control->setProperty("Appearance", 1));
        EXPECT_TRUE(control->setProperty("BorderStyle", 1));
        EXPECT_TRUE(control->setProperty("Enabled", false));
    }
    ASSERT_EQ(symbol.size(), 1);
    EXPECT_EQ(symbol[0][0], "AAA");
    ASSERT_EQ(resize.size(), 1);
    EXPECT_EQ(resize[0][0], true);
    ASSERT_EQ(appearance.size(), 1);
    EXPECT_EQ(appearance[0][0], 1);
    ASSERT_EQ(border.size(), 1);
    EXPECT_EQ(border[0][0], 1);
    ASSERT_EQ(enabled.size(), 1);
    EXPECT_EQ(enabled[0][0], false);
}

TEST_F(ControlProperties, AValueOutsideItsRangeChangesNothing)
{
    const auto control = Make();
    control->SetAppearance(1);
    control->SetBorderStyle(1);
    const QSignalSpy appearance(control.get(), &CChartCtrl::AppearanceChanged);
    const QSignalSpy border(control.get(), &CChartCtrl::BorderStyleChanged);
    for (const int wrong : {-1, 2, 65'536, 65'537}) {
        control->SetAppearance(wrong);
        control->SetBorderStyle(wrong);
    }
    EXPECT_EQ(control->Appearance(), 1);
    EXPECT_EQ(control->BorderStyle(), 1);
    EXPECT_EQ(appearance.size() + border.size(), 0);
}

TEST_F(ControlProperties, EnabledFollowsADisabledParentAndItsReturn)
{
    QWidget parent;
    parent.setEnabled(false);
    CChartCtrl* const control = Make(&parent).release();
    const QSignalSpy enabled(control, &CChartCtrl::EnabledChanged);
    EXPECT_EQ(control->property("Enabled"), false);
    parent.setEnabled(true);
    EXPECT_EQ(control->property("Enabled"), true);
    ASSERT_EQ(enabled.size(), 1);
    EXPECT_EQ(enabled[0][0], true);
}

TEST_F(ControlProperties, AnEmptySymbolLeavesTheChartOnShow)
{
    const auto control = Make();
    control->SetStockSymbol("AAA");
    ASSERT_TRUE(AwaitDrawn(*control));
    const std::string received = m_feed.Lookup.Received();
    control->SetStockSymbol("");
    EXPECT_EQ(control->StockSymbol(), "");
    EXPECT_EQ(control->windowTitle(), "AAA - Chart");
    EXPECT_EQ(Window(*control).Loading(), 0);
    EXPECT_TRUE(PumpUntil([&] { return Points(*control) == 30; }));
    EXPECT_EQ(m_feed.Lookup.Received(), received) << "nothing was asked for";
}

TEST_F(ControlProperties, TheSameSymbolAgainIsDrawnAnewWithoutAChangeSignal)
{
    const auto control = Make();
    control->SetStockSymbol("AAA");
    ASSERT_TRUE(AwaitDrawn(*control));
    const QSignalSpy symbol(control.get(), &CChartCtrl::StockSymbolChanged);
    control->SetStockSymbol("AAA");
    EXPECT_EQ(Window(*control).Loading(), 1);
    EXPECT_TRUE(AwaitDrawn(*control));
    EXPECT_EQ(symbol.size(), 0);
}

TEST_F(ControlProperties, ASymbolThatTheUserDrawsDoesNotChangeTheHosts)
{
    const auto control = Make();
    control->SetStockSymbol("AAA");
    ASSERT_TRUE(AwaitDrawn(*control));
    Window(*control).Services().Symbol.SetText("BBB");
    Window(*control).OnSymbolEnter();
    ASSERT_TRUE(AwaitDrawn(*control));
    EXPECT_EQ(control->windowTitle(), "BBB - Chart");
    EXPECT_EQ(control->StockSymbol(), "AAA");
}

TEST_F(ControlProperties, TheParentWindowIsPlacedInEitherOrderOfSymbolAndRequest)
{
    SaveWindowPosition(*m_key, "AAA - Chart", {{30, 40, 530, 440}, false});
    QWidget host;
    CChartCtrl* const control = Make(&host).release();
    host.setGeometry(0, 0, 700, 600);
    control->SetStockSymbol("AAA");
    EXPECT_EQ(host.geometry(), QRect(0, 0, 700, 600)) << "nobody asked for a place";
    control->SetResizeParentWindow(true);
    EXPECT_EQ(host.geometry(), QRect(30, 40, 500, 400));
    control->SetResizeParentWindow(false);
    host.setGeometry(0, 0, 700, 600);
    control->SetStockSymbol("AAA");
    EXPECT_EQ(host.geometry(), QRect(0, 0, 700, 600));
}

TEST_F(ControlProperties, AMaximizedPlaceMaximizesTheHost)
{
    SaveWindowPosition(*m_key, "Host", {{30, 40, 530, 440}, true});
    QWidget host;
    host.setWindowTitle("Host");
    CChartCtrl* const control = Make(&host).release();
    control->SetResizeParentWindow(true);
    EXPECT_TRUE(host.isMaximized());
}

} // namespace zantroq::test
