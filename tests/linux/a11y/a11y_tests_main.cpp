#include <QApplication>

#include <gmock/gmock.h>

#include "app/accessible_application.h"

// Run on a session bus and a screen of its own, from which the accessibility bus is started.
int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    QApplication application(argc, argv);
    vantrix::installAccessibleApplication();
    return RUN_ALL_TESTS();
}
