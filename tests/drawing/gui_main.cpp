// Test main for the pictures: text needs a QGuiApplication, and a display
// there need not be.

#include <QGuiApplication>
#include <gtest/gtest.h>

#include <cstdlib>

int main(int argc, char** argv)
{
    if (std::getenv("QT_QPA_PLATFORM") == nullptr) {
        setenv("QT_QPA_PLATFORM", "offscreen", 0);
    }
    QGuiApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
