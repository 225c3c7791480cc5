// The module in a process that has a QApplication of its own.
#include "control/module/LoadedModule.h"

#include <QApplication>
#include <QThread>
#include <QWidget>

namespace zantroq::test {
namespace {

class ModuleInAQtHost : public CLoadedModule
{
protected:
    static QWidget* ChartWidget()
    {
        for (QWidget* const widget : QApplication::topLevelWidgets())
            if (widget->inherits("zantroq::CChartCtrl"))
                return widget;
        return nullptr;
    }
};

} // namespace

TEST_F(ModuleInAQtHost, UsesTheHostsApplicationAndLeavesItAlone)
{
    const QCoreApplication* const before = QCoreApplication::instance();
    sZantroqControl* const control = Create();
    EXPECT_EQ(control->Table->Place(control, 0), ZANTROQ_OK);
    ASSERT_NE(ChartWidget(), nullptr);
    EXPECT_TRUE(ChartWidget()->isVisible());
    control->Table->Release(control);
    EXPECT_EQ(ChartWidget(), nullptr);
    Unload();
    EXPECT_EQ(QCoreApplication::instance(), before);
}

TEST_F(ModuleInAQtHost, LivesOnTheHostsEventLoopWithoutPump)
{
    sZantroqControl* const control = Create();
    EXPECT_EQ(PutSymbol(control, "AAA"), ZANTROQ_OK);
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    const auto drawn = [] {
        for (const QWidget* const child : ChartWidget()->findChildren<QWidget*>())
            if (child->accessibleName() == "Status bar")
                return child->accessibleDescription().contains(" datapoints available.");
        return false;
    };
    while (!drawn() && std::chrono::steady_clock::now() < end)
        QApplication::processEvents(QEventLoop::AllEvents, 10);
    EXPECT_TRUE(drawn());
    control->Table->Release(control);
}

TEST_F(ModuleInAQtHost, AControlReleasedInANotificationOutsideOfACallEndsWithTheNextEvents)
{
    sZantroqControl* const control = Create();
    const ZantroqChanged release = [](void* user, std::int32_t) {
        auto* const released = static_cast<sZantroqControl*>(user);
        released->Table->Release(released);
    };
    control->Table->Notify(control, release, control);
    ChartWidget()->setEnabled(false);
    EXPECT_NE(ChartWidget(), nullptr); // its change is still on the way through the toolkit
    QApplication::processEvents();
    EXPECT_EQ(ChartWidget(), nullptr);
}

} // namespace zantroq::test
