#include "accessories/bluetooth_battery_reader.h"

#include <gmock/gmock.h>

#include "fakes/fake_bluetooth.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using State = BluetoothState;

struct BluetoothBatteryReaderTest : ::testing::Test {
    BluetoothBatteryReaderTest() {
        Bluetooth bundle = system.make();
        reader = std::make_unique<BluetoothBatteryReader>(std::move(bundle.central), std::move(bundle.classicDevices),
                                                          std::move(bundle.timer));
        reader->onChange = [this] { ++changes; };
    }

    std::shared_ptr<fakes::FakePeripheral> add(const std::string& id, std::optional<std::string> name = {}) {
        auto peripheral = std::make_shared<fakes::FakePeripheral>(id, std::move(name));
        system.central->peripherals.push_back(peripheral);
        return peripheral;
    }

    fakes::FakeBluetooth system;
    std::unique_ptr<BluetoothBatteryReader> reader;
    int changes = 0;
};

TEST_F(BluetoothBatteryReaderTest, RefreshesWhenPoweredOnAndRegularlyFromThenOn) {
    EXPECT_EQ(reader->diagnostics(), "starting, 0 with battery service | classic: ");
    system.central->become(State::poweredOff);
    EXPECT_EQ(changes, 1);
    system.central->become(State::poweredOn);
    system.central->become(State::poweredOff);
    system.timer->fire(); // does nothing while off
    EXPECT_EQ(system.central->listings, 1);
    system.central->become(State::poweredOn);
    system.timer->fire();
    EXPECT_EQ(system.central->listings, 3);
    EXPECT_EQ(system.timer->schedules, 1);
}

TEST_F(BluetoothBatteryReaderTest, ConnectsDiscoversReadsAndSubscribes) {
    const auto mouse = add("1", "Quick Mouse");
    mouse->value = {64};
    mouse->connected = false;
    system.central->become(State::poweredOn);
    EXPECT_THAT(system.central->connecting, ElementsAre("1"));
    EXPECT_THAT(mouse->asked, IsEmpty());
    system.central->delegate->didConnect(*mouse);
    EXPECT_THAT(mouse->asked, ElementsAre("services", "characteristics of service", "read level", "subscribe level"));
    EXPECT_THAT(batteriesOf(reader->readings()),
                ElementsAre(AccessoryBattery{"Quick Mouse", 64, false, "computermouse"}));
    EXPECT_EQ(reader->readings()[0].address, "AA:1");
    EXPECT_EQ(reader->readings()[0].identifier, "1");
}

TEST_F(BluetoothBatteryReaderTest, TakesLevelsAsTheyAre) {
    const auto device = add("1");
    system.central->become(State::poweredOn);
    device->tell({7, 1});
    device->tell({});
    device->tell({9}, "2A29"); // another characteristic
    EXPECT_THAT(batteriesOf(reader->readings()),
                ElementsAre(AccessoryBattery{"Bluetooth device", 7, false, "dot.radiowaves.left.and.right"}));
    device->tell({8}, "00002A19-0000-1000-8000-00805F9B34FB");
    EXPECT_EQ(reader->readings()[0].battery.percent, 8);
    device->tell({0xff});
    EXPECT_EQ(reader->readings()[0].battery.percent, 100);
    EXPECT_EQ(changes, 1 + 3) << "the state and what was a level";
}

TEST_F(BluetoothBatteryReaderTest, KeepsLevelsWhileOffAndDropsWhatARefreshNoLongerFinds) {
    const auto keyboard = add("b", "Keyboard");
    const auto mouse = add("a", "Mouse");
    keyboard->value = {50};
    mouse->value = {60};
    system.central->become(State::poweredOn);
    system.central->become(State::poweredOff);
    EXPECT_EQ(reader->readings().size(), 2u);
    system.central->current = State::poweredOn;
    system.central->peripherals = {std::make_shared<fakes::FakePeripheral>("b", "Board")};
    changes = 0;
    system.timer->fire();
    system.timer->fire(); // nothing new
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(mouse->delegate, nullptr);
    EXPECT_EQ(keyboard->delegate, nullptr) << "another object took its place";
    EXPECT_EQ(reader->diagnostics(), "Bluetooth off, 1 with battery service: Board 50% | classic: ");
    system.central->peripherals = {mouse};
    mouse->value.reset();
    system.timer->fire();
    EXPECT_THAT(reader->readings(), IsEmpty()) << "its old level is forgotten";
}

TEST_F(BluetoothBatteryReaderTest, ListsClassicDevices) {
    constexpr int audio = 4;
    constexpr int peripheral = 5;
    system.classic->devices = {
        {"Buds", "00:01", true, audio, {.left = 40, .right = 30, .box = 90}},
        {"", "00-0a", true, peripheral, {.combined = 120}},
        {"Travel Mouse", "00:04", true, peripheral, {}},
        {"Far away", "00:05", false, audio, {.single = 50}},
    };
    system.central->become(State::poweredOn);
    EXPECT_THAT(batteriesOf(reader->classic()),
                ElementsAre(AccessoryBattery{"Buds", 30, false, "headphones"},
                            AccessoryBattery{"Buds case", 90, false, "earbuds.case"},
                            AccessoryBattery{"00-0a", 100, false, "dot.radiowaves.left.and.right"}));
    EXPECT_EQ(reader->diagnostics(),
              "on, 0 with battery service | classic: Buds 30%, 00-0a 100%, Travel Mouse [no value] class 5");
}

TEST_F(BluetoothBatteryReaderTest, LeavesNothingBehindThatCallsIt) {
    const auto mouse = add("1", "Mouse");
    system.central->become(State::poweredOn);
    const auto fire = system.timer->fire;
    changes = 0;
    reader.reset();
    mouse->value = {1}; // what a refresh would find
    fire();             // as if it had been under way
    EXPECT_EQ(mouse->delegate, nullptr);
    EXPECT_EQ(mouse->asked.size(), 4u) << "no question but those of the first refresh";
    EXPECT_EQ(changes, 0);
}

} // namespace
} // namespace vantrix
