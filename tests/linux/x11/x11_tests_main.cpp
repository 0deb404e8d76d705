#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "xcb");
    // The toolkit must neither find a desktop's bus nor start one.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    qunsetenv("QT_SCALE_FACTOR");
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
