// The battery reader over BlueZ's objects, on a bus of the tests' own.

#include "accessories/bluetooth_battery_reader.h"
#include "fakes/fake_bluetooth.h"
#include "linux/bluetooth/bluez_central.h"
#include "linux/bluetooth/fake_bluez.h"
#include "linux/services/private_bus.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString adapterPath = u"/org/bluez/hci0"_s;
const QString mousePath = u"/org/bluez/hci0/dev_AA_BB_CC_DD_EE_01"_s;
const QString headsetPath = u"/org/bluez/hci0/dev_AA_BB_CC_DD_EE_02"_s;
const QString batteryUUID = u"0000180f-0000-1000-8000-00805f9b34fb"_s;
const QString informationUUID = u"0000180a-0000-1000-8000-00805f9b34fb"_s;
constexpr uint headsetClass = 0x240404;

QVariantMap level(int value) {
    return {{u"Percentage"_s, QVariant::fromValue(static_cast<uchar>(value))}};
}

QVariantMap powered(bool on) {
    return {{u"Powered"_s, on}};
}

QVariantMap mouse(bool isConnected = true) {
    return {{u"Connected"_s, isConnected},
            {u"Alias"_s, u"Desk Mouse"_s},
            {u"Name"_s, u"BLE-M1"_s},
            {u"Address"_s, u"AA:BB:CC:DD:EE:01"_s},
            {u"UUIDs"_s, QStringList{batteryUUID}},
            {u"ServicesResolved"_s, true},
            {u"RSSI"_s, QVariant::fromValue(qint16{-60})}};
}

QVariantMap headset() {
    return {{u"Connected"_s, true},
            {u"Alias"_s, u"AA-BB-CC-DD-EE-02"_s}, // it has no name
            {u"Address"_s, u"AA:BB:CC:DD:EE:02"_s},
            {u"Class"_s, headsetClass}};
}

struct BluezTest : testing::Test {
    /// Starts reading, with a timer that the test fires.
    void read(std::chrono::milliseconds retry = BluezWatch::usualRetry) {
        auto link = std::make_shared<BusLink>(bus.address(), std::chrono::milliseconds(5));
        auto watch = std::make_shared<BluezWatch>(std::move(link), retry);
        auto ownTimer = std::make_unique<fakes::FakeTimer>();
        timer = ownTimer.get();
        reader = std::make_unique<BluetoothBatteryReader>(
            std::make_unique<BluezCentral>(watch), std::make_unique<BluezClassicDevices>(watch), std::move(ownTimer));
    }

    /// Starts with a service that is there already.
    bool begin(const std::string& text) {
        EXPECT_TRUE(bluez.appear());
        read();
        return saysSoon(text);
    }

    /// The match rules of everybody on the bus.
    int matchRules() {
        static const QString stats = u"org.freedesktop.DBus.Debug.Stats"_s;
        BusConnection asker(bus.address());
        const auto message =
            QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, stats, u"GetStats"_s);
        const auto reply = asker.bus().call(message).arguments();
        return reply.isEmpty() ? -1 : qdbus_cast<QVariantMap>(reply[0]).value(u"MatchRules"_s, -1).toInt();
    }

    bool saysSoon(const std::string& text) {
        return spinUntil([&] { return reader->diagnostics() == text; }) ||
               (ADD_FAILURE() << reader->diagnostics(), false);
    }

    /// The same, asking all the while, as the timer would.
    bool saysOnceAsked(const std::string& text) {
        return spinUntil([&] {
                   if (timer->fire)
                       timer->fire();
                   return reader->diagnostics() == text;
               }) ||
               (ADD_FAILURE() << reader->diagnostics(), false);
    }

    /// Whatever the service has sent so far has arrived once this did.
    bool levelGets(int percent) {
        bluez.change(mousePath, bluez::battery, level(percent));
        return spinUntil(
            [&] { return !reader->readings().empty() && reader->readings()[0].battery.percent == percent; });
    }

    void addAdapterAndMouse() {
        bluez.put(adapterPath, bluez::adapter, powered(true));
        bluez.put(mousePath, bluez::device, mouse());
        bluez.put(mousePath, bluez::battery, level(64));
    }

    PrivateBus bus;
    FakeBluez bluez{bus.address()};
    std::unique_ptr<BluetoothBatteryReader> reader;
    fakes::FakeTimer* timer = nullptr;
};

TEST_F(BluezTest, ReadsLevelsThatTheServicePublishes) {
    addAdapterAndMouse();
    bluez.put(headsetPath, bluez::device, headset());
    bluez.put(headsetPath, bluez::battery, level(80));
    ASSERT_TRUE(begin("on, 1 with battery service: Desk Mouse 64% | classic: AA:BB:CC:DD:EE:02 80%"));
    EXPECT_THAT(batteriesOf(reader->all()),
                ElementsAre(AccessoryBattery{"Desk Mouse", 64, false, "computermouse"},
                            AccessoryBattery{"AA:BB:CC:DD:EE:02", 80, false, "headphones"}));
    EXPECT_EQ(reader->all()[0].address, "AA:BB:CC:DD:EE:01");
    EXPECT_TRUE(levelGets(63));
    bluez.change(mousePath, bluez::battery, level(255));
    EXPECT_TRUE(spinUntil([&] { return reader->readings()[0].battery.percent == 100; }));
    EXPECT_EQ(bluez.asked.size(), 1u) << "the objects are asked for once, and no device ever";
}

TEST_F(BluezTest, SaysWhyThereIsNothing) {
    read();
    ASSERT_TRUE(saysSoon("unavailable, 0 with battery service | classic: ")) << "nobody is there";
    ASSERT_TRUE(bluez.appear());
    spinUntil([&] { return bluez.count(u"GetManagedObjects") == 1; });
    bluez.put(adapterPath, bluez::adapter, powered(false));
    ASSERT_TRUE(saysSoon("Bluetooth off, 0 with battery service | classic: "));
    bluez.put(u"/org/bluez/hci1"_s, bluez::adapter, powered(true));
    ASSERT_TRUE(saysSoon("on, 0 with battery service | classic: ")) << "one of two adapters is enough";
    bluez.change(u"/org/bluez/hci1"_s, bluez::adapter, powered(false));
    ASSERT_TRUE(saysSoon("Bluetooth off, 0 with battery service | classic: "));
    bluez.remove(adapterPath);
    bluez.remove(u"/org/bluez/hci1"_s);
    ASSERT_TRUE(saysSoon("unavailable, 0 with battery service | classic: "));
    bluez.resign();
    bluez.error = QDBusError::AccessDenied;
    ASSERT_TRUE(bluez.appear());
    ASSERT_TRUE(saysSoon("permission denied (System Settings > Privacy > Bluetooth), 0 with battery service | "
                         "classic: "));
    bus.kill();
    ASSERT_TRUE(saysSoon("unavailable, 0 with battery service | classic: "));
    bus.start(); // with another daemon
    FakeBluez successor(bus.address());
    ASSERT_TRUE(successor.appear());
    successor.put(adapterPath, bluez::adapter, powered(true));
    ASSERT_TRUE(saysSoon("on, 0 with battery service | classic: "));
    bus.kill();
    read(); // without a bus from the start
    ASSERT_TRUE(saysSoon("unavailable, 0 with battery service | classic: "));
}

TEST_F(BluezTest, ABusThatHangsHoldsNothingUp) {
    read();
    ASSERT_TRUE(saysSoon("unavailable, 0 with battery service | classic: "));
    ASSERT_TRUE(bluez.appear()); // the bus has told everybody by now
    bus.freeze();
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_FALSE(spinUntil([] { return false; }, std::chrono::milliseconds(100)));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5));
}

TEST_F(BluezTest, FollowsTheServiceThroughRestarts) {
    addAdapterAndMouse();
    read();
    ASSERT_TRUE(saysSoon("unavailable, 0 with battery service | classic: "));
    const int rules = matchRules();
    EXPECT_NE(rules, 0);
    for (int restart = 0; restart < 3; ++restart) {
        ASSERT_TRUE(bluez.appear());
        ASSERT_TRUE(saysSoon("on, 1 with battery service: Desk Mouse 64% | classic: "));
        ASSERT_TRUE(levelGets(50 + restart));
        bluez.resign();
        const std::string last = std::to_string(50 + restart);
        ASSERT_TRUE(saysSoon("unavailable, 1 with battery service: Desk Mouse " + last + "% | classic: "));
        EXPECT_EQ(reader->readings()[0].address, "AA:BB:CC:DD:EE:01");
        EXPECT_TRUE(spinUntil([&] { return matchRules() == rules; })) << "its signals are no longer asked for";
        bluez.change(mousePath, bluez::battery, level(64));
    }
}

TEST_F(BluezTest, DevicesComeAndGo) {
    bluez.put(adapterPath, bluez::adapter, powered(true));
    ASSERT_TRUE(begin("on, 0 with battery service | classic: "));
    bluez.put(mousePath, bluez::device, mouse(false));
    bluez.change(mousePath, bluez::device, {{u"Connected"_s, true}});
    ASSERT_TRUE(saysSoon("on, 1 with battery service | classic: "));
    bluez.put(mousePath, bluez::battery, level(9)); // some seconds later
    ASSERT_TRUE(saysSoon("on, 1 with battery service: Desk Mouse 9% | classic: "));
    bluez.change(mousePath, bluez::device, {{u"Alias"_s, u"Renamed"_s}});
    ASSERT_TRUE(saysSoon("on, 1 with battery service: Renamed 9% | classic: "));
    bluez.change(mousePath, bluez::device, {{u"Connected"_s, false}});
    ASSERT_TRUE(saysSoon("on, 0 with battery service | classic: "));
    bluez.put(headsetPath, bluez::device, headset());
    ASSERT_TRUE(saysSoon("on, 0 with battery service | classic: AA:BB:CC:DD:EE:02 [no value] class 4"));
    bluez.put(headsetPath, bluez::battery, level(60));
    ASSERT_TRUE(saysSoon("on, 0 with battery service | classic: AA:BB:CC:DD:EE:02 60%"));
    bluez.remove(headsetPath);
    ASSERT_TRUE(saysSoon("on, 0 with battery service | classic: "));
    bluez.put(mousePath, bluez::device, mouse());
    ASSERT_TRUE(saysSoon("on, 1 with battery service: Desk Mouse 9% | classic: "));
    bluez.remove(adapterPath); // its devices are not always taken back
    bluez.put(u"/org/bluez/hci1"_s, bluez::adapter, powered(true));
    ASSERT_TRUE(saysSoon("on, 0 with battery service | classic: "));
}

TEST_F(BluezTest, TellsPeripheralsFromClassicDevices) {
    bluez.put(adapterPath, bluez::adapter, powered(true));
    ASSERT_TRUE(begin("on, 0 with battery service | classic: "));
    const struct {
        const char* name;
        QStringList services;
        std::optional<uint> deviceClass;
        bool tellsLevel;
        const char* text;
    } cases[] = {
        {"LE", {batteryUUID}, {}, true, "on, 1 with battery service: X 5% | classic: "},
        {"of both kinds", {batteryUUID}, headsetClass, true, "on, 1 with battery service: X 5% | classic: "},
        {"LE, its services untold", {}, {}, true, "on, 1 with battery service: X 5% | classic: "},
        {"LE without a battery", {informationUUID}, {}, false, "on, 0 with battery service | classic: "},
        {"classic", {}, 0x2580, true, "on, 0 with battery service | classic: X 5%"},
        {"classic without a battery", {}, 0x2580, false, "on, 0 with battery service | classic: X [no value] class 5"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        QVariantMap device{{u"Connected"_s, true}, {u"Name"_s, u"X"_s}, {u"UUIDs"_s, c.services}};
        if (c.deviceClass)
            device.insert(u"Class"_s, *c.deviceClass);
        bluez.put(mousePath, bluez::device, device);
        if (c.tellsLevel)
            bluez.put(mousePath, bluez::battery, level(5));
        EXPECT_TRUE(saysOnceAsked(c.text));
        bluez.remove(mousePath);
        EXPECT_TRUE(saysOnceAsked("on, 0 with battery service | classic: "));
    }
}

TEST_F(BluezTest, ReadsTheCharacteristicWhereTheServiceExportsIt) {
    const QString service = mousePath + u"/service0010"_s;
    const QString characteristic = service + u"/char0011"_s;
    bluez.put(adapterPath, bluez::adapter, powered(true));
    bluez.put(mousePath, bluez::device, mouse());
    bluez.put(service, bluez::gattService,
              {{u"UUID"_s, batteryUUID}, {u"Device"_s, QVariant::fromValue(QDBusObjectPath(mousePath))}});
    bluez.put(characteristic, bluez::gattCharacteristic,
              {{u"UUID"_s, u"00002a19-0000-1000-8000-00805f9b34fb"_s},
               {u"Service"_s, QVariant::fromValue(QDBusObjectPath(service))}});
    bluez.value = QByteArray(1, 33);
    ASSERT_TRUE(begin("on, 1 with battery service: Desk Mouse 33% | classic: "));
    bluez.change(characteristic, bluez::gattCharacteristic, {{u"Value"_s, QByteArray(1, 32)}});
    ASSERT_TRUE(saysSoon("on, 1 with battery service: Desk Mouse 32% | classic: "));
    bluez.change(characteristic, bluez::gattCharacteristic, {{u"Value"_s, QByteArray()}});
    bluez.value = QByteArray("\xff more", 6);
    timer->fire();
    ASSERT_TRUE(saysSoon("on, 1 with battery service: Desk Mouse 100% | classic: "));
    EXPECT_EQ(bluez.count(u"ReadValue"), 2);
    EXPECT_EQ(bluez.count(u"StartNotify"), 1);
    bluez.hangs = true;
    for (int refresh = 0; refresh < 10; ++refresh)
        timer->fire();
    bluez.change(characteristic, bluez::gattCharacteristic, {{u"Value"_s, QByteArray(1, 31)}});
    ASSERT_TRUE(saysSoon("on, 1 with battery service: Desk Mouse 31% | classic: "));
    EXPECT_EQ(bluez.count(u"ReadValue"), 3) << "one at a time";
    bluez.remove(characteristic);
    bluez.resign();
    ASSERT_TRUE(spinUntil([&] { return reader->diagnostics().starts_with("unavailable"); }));
    reader.reset(); // with a read still unanswered
}

TEST_F(BluezTest, SlowAnswersAreTakenWhenTheyCome) {
    addAdapterAndMouse();
    bluez.hangs = true;
    ASSERT_TRUE(bluez.appear());
    read();
    ASSERT_TRUE(spinUntil([&] { return bluez.count(u"GetManagedObjects") == 1; }));
    EXPECT_EQ(reader->diagnostics(), "starting, 0 with battery service | classic: ");
    bluez.change(mousePath, bluez::battery, level(63)); // will come with the objects
    bluez.answer(bluez.asked.back());
    ASSERT_TRUE(saysSoon("on, 1 with battery service: Desk Mouse 63% | classic: "));

    bluez.resign();
    ASSERT_TRUE(bluez.appear());
    ASSERT_TRUE(spinUntil([&] { return bluez.count(u"GetManagedObjects") == 2; }));
    bluez.resign(); // it has gone before it answers
    FakeBluez successor(bus.address());
    successor.put(adapterPath, bluez::adapter, powered(false));
    ASSERT_TRUE(successor.appear());
    ASSERT_TRUE(spinUntil([&] { return reader->diagnostics().starts_with("Bluetooth off"); }));
    bluez.answer(bluez.asked.back());
    addAdapterAndMouse(); // told by one that has resigned
    successor.change(adapterPath, bluez::adapter, powered(true));
    ASSERT_TRUE(saysSoon("on, 0 with battery service | classic: "));
}

TEST_F(BluezTest, SurvivesWhatMakesNoSense) {
    addAdapterAndMouse();
    ASSERT_TRUE(begin("on, 1 with battery service: Desk Mouse 64% | classic: "));
    const QString properties = u"org.freedesktop.DBus.Properties"_s;
    const QVariant path = QVariant::fromValue(QDBusObjectPath(mousePath));
    for (const QVariantList& arguments : {QVariantList{},
                                          {1},
                                          {u"org.bluez.Device1"_s},
                                          {bluez::battery, 5, QStringList()},
                                          {path, path, path},
                                          {bluez::battery, QVariantMap(), 1}}) {
        bluez.emitSignal(mousePath, properties, u"PropertiesChanged"_s, arguments);
        for (const auto& member : {u"InterfacesAdded"_s, u"InterfacesRemoved"_s})
            bluez.emitSignal(u"/"_s, u"org.freedesktop.DBus.ObjectManager"_s, member, arguments);
    }
    // What is no level leaves the last one.
    for (const QVariant& wrong : {QVariant(5), QVariant(u"5"_s), path, QVariant(QStringList{u"5"_s}), QVariant(5.0)})
        bluez.change(mousePath, bluez::battery, {{u"Percentage"_s, wrong}});
    for (const char* name : {"Connected", "Name", "Alias", "Address", "Class", "UUIDs", "ServicesResolved"})
        bluez.put(headsetPath, bluez::device, {{QString::fromLatin1(name), path}, {u"Connected"_s, 1}});
    bluez.change(u"/unheard/of"_s, bluez::device, {{u"Connected"_s, true}});
    bluez.emitSignal(
        mousePath, properties, u"PropertiesChanged"_s,
        {bluez::device, QVariantMap{{u"Alias"_s, 7}, {u"Name"_s, QByteArray("x")}}, QStringList{u"Name"_s}});
    ASSERT_TRUE(levelGets(30));
    timer->fire();
    EXPECT_EQ(reader->diagnostics(), "on, 1 with battery service: Bluetooth device 30% | classic: ");

    for (const QVariantList& answer : {QVariantList{}, {1}, {QVariantMap()}, {u"objects"_s, u"more"_s}}) {
        bluez.resign();
        bluez.always = answer;
        bluez.asked.clear();
        ASSERT_TRUE(bluez.appear());
        ASSERT_TRUE(spinUntil([&] { return !bluez.asked.empty(); }));
        ASSERT_TRUE(spinUntil([&] { return reader->diagnostics().starts_with("unavailable"); }));
    }
}

TEST_F(BluezTest, AsksAgainWhenTheFirstAnswerWasNone) {
    addAdapterAndMouse();
    bluez.error = QDBusError::NoMemory;
    ASSERT_TRUE(bluez.appear());
    read(std::chrono::milliseconds(1));
    ASSERT_TRUE(spinUntil([&] { return bluez.asked.size() > 2; }));
    EXPECT_TRUE(reader->diagnostics().starts_with("unavailable"));
    bluez.error = QDBusError::NoError;
    ASSERT_TRUE(saysSoon("on, 1 with battery service: Desk Mouse 64% | classic: "));
}

} // namespace
} // namespace vantrix
