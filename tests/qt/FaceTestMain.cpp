#include <QApplication>
#include <QStyleFactory>

#include <gtest/gtest.h>

// Widgets need an application object; no display does.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication::setStyle("Fusion");
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
