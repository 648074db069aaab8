// The main of tests that paint: fonts and image formats need a QGuiApplication. Without a
// platform chosen, the offscreen one serves, so the tests run without a display.

#include <QGuiApplication>

#include <gtest/gtest.h>

#include <cstdlib>

int main(int argc, char** argv)
{
    if (!std::getenv("QT_QPA_PLATFORM"))
        setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
