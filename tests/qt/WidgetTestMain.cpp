#include <QApplication>

#include <gtest/gtest.h>

// Widgets need an application object; no display does.
int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
