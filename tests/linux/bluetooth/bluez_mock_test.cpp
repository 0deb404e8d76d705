// The battery reader over python-dbusmock's template of BlueZ: another author's idea of the service.

#include <gtest/gtest.h>

#include "accessories/bluetooth_battery_reader.h"
#include "fakes/fake_bluetooth.h"
#include "linux/bluetooth/bluez_central.h"
#include "linux/services/private_bus.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

const QString python = u"/usr/bin/python3"_s; // the one that packages of the distribution belong to

/// The template in a process of its own.
class MockedBluez {
  public:
    explicit MockedBluez(const QString& address) : connection_(address) {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DBUS_SYSTEM_BUS_ADDRESS"_s, address);
        process_.setProcessEnvironment(environment);
        process_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(python, {u"-m"_s, u"dbusmock"_s, u"--template"_s, u"bluez5"_s});
    }
    ~MockedBluez() {
        process_.kill();
        process_.waitForFinished();
    }

    bool call(const QString& path, const QString& interface, const QString& method, const QVariantList& arguments) {
        auto message = QDBusMessage::createMethodCall(u"org.bluez"_s, path, interface, method);
        message.setArguments(arguments);
        return connection_.bus().call(message).type() == QDBusMessage::ReplyMessage;
    }
    bool call(const QString& method, const QVariantList& arguments) {
        return call(u"/"_s, u"org.bluez.Mock"_s, method, arguments);
    }

  private:
    QProcess process_;
    BusConnection connection_;
};

bool hasMock() {
    return QProcess::execute(python, {u"-c"_s, u"import dbusmock"_s}) == 0;
}

TEST(BluezMockTest, FollowsAClassicDeviceThroughItsLife) {
    if (!hasMock())
        GTEST_SKIP() << "python3-dbusmock is not installed";
    PrivateBus bus;
    std::optional<MockedBluez> bluez(std::in_place, bus.address());
    fakes::FakeTimer* timer = nullptr;
    std::unique_ptr<BluetoothBatteryReader> reader;
    const auto read = [&] {
        const auto watch = std::make_shared<BluezWatch>(bus.address());
        auto ownTimer = std::make_unique<fakes::FakeTimer>();
        timer = ownTimer.get();
        reader = std::make_unique<BluetoothBatteryReader>(
            std::make_unique<BluezCentral>(watch), std::make_unique<BluezClassicDevices>(watch), std::move(ownTimer));
    };
    read();
    const auto says = [&](const std::string& text) {
        return spinUntil([&] {
            if (timer->fire)
                timer->fire();
            return reader->diagnostics() == text;
        });
    };
    const QString adapter = u"hci0"_s;
    const QString address = u"11:22:33:44:55:66"_s;
    const QString path = u"/org/bluez/hci0/dev_11_22_33_44_55_66"_s;
    const QString mock = u"org.freedesktop.DBus.Mock"_s;
    ASSERT_TRUE(spinUntil([&] { return bluez->call(u"AddAdapter"_s, {adapter, u"desk"_s}); }));
    ASSERT_TRUE(says("on, 0 with battery service | classic: ")) << reader->diagnostics();
    ASSERT_TRUE(bluez->call(u"AddDevice"_s, {adapter, address, u"My Phone"_s}));
    // The template's own methods for these have taken other arguments over the years.
    const QVariantMap connected{{u"Paired"_s, true}, {u"Connected"_s, true}, {u"Class"_s, 5898764U}};
    ASSERT_TRUE(bluez->call(path, mock, u"UpdateProperties"_s, {u"org.bluez.Device1"_s, connected}));
    ASSERT_TRUE(says("on, 0 with battery service | classic: My Phone [no value] class 2")) << reader->diagnostics();
    const QVariantMap level{{u"Percentage"_s, QVariant::fromValue(uchar{77})}};
    ASSERT_TRUE(bluez->call(path, mock, u"AddProperties"_s, {u"org.bluez.Battery1"_s, level}));
    read(); // the template adds properties without a word
    ASSERT_TRUE(says("on, 0 with battery service | classic: My Phone 77%")) << reader->diagnostics();
    const QVariantMap lower{{u"Percentage"_s, QVariant::fromValue(uchar{76})}};
    ASSERT_TRUE(bluez->call(path, mock, u"UpdateProperties"_s, {u"org.bluez.Battery1"_s, lower}));
    ASSERT_TRUE(says("on, 0 with battery service | classic: My Phone 76%")) << reader->diagnostics();
    bluez.reset();
    ASSERT_TRUE(says("unavailable, 0 with battery service | classic: My Phone 76%")) << reader->diagnostics();
    bluez.emplace(bus.address());
    ASSERT_TRUE(spinUntil([&] { return bluez->call(u"AddAdapter"_s, {adapter, u"desk"_s}); }));
    ASSERT_TRUE(says("on, 0 with battery service | classic: ")) << reader->diagnostics();
    ASSERT_TRUE(bluez->call(u"/org/bluez/hci0"_s, mock, u"UpdateProperties"_s,
                            {u"org.bluez.Adapter1"_s, QVariantMap{{u"Powered"_s, false}}}));
    ASSERT_TRUE(says("Bluetooth off, 0 with battery service | classic: ")) << reader->diagnostics();
}

} // namespace
} // namespace vantrix
