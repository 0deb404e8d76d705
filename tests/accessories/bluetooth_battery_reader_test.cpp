#include "accessories/bluetooth_battery_reader.h"

#include <gmock/gmock.h>

#include "fakes/fake_bluetooth.h"

namespace vantrix {
namespace {

using ::testing::_;
using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::IsEmpty;
using State = BluetoothState;

class BluetoothBatteryReaderTest : public ::testing::Test {
  protected:
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
    EXPECT_EQ(system.timer->schedules, 0);
    system.central->become(State::poweredOn);
    system.central->become(State::poweredOff);
    system.timer->fire(); // does nothing while off
    EXPECT_EQ(system.central->listings, 1);
    system.central->become(State::poweredOn);
    system.timer->fire();
    EXPECT_EQ(system.central->listings, 3);
    EXPECT_EQ(system.timer->schedules, 1);
}

TEST_F(BluetoothBatteryReaderTest, DiscoversReadsAndSubscribes) {
    const auto mouse = add("1", "Quick Mouse");
    mouse->value = {64, 1, 2};
    system.central->become(State::poweredOn);
    EXPECT_THAT(mouse->asked, ElementsAre("services", "characteristics of service", "read level", "subscribe level"));
    EXPECT_THAT(reader->readings(), ElementsAre(AccessoryBattery{"Quick Mouse", 64, false, "computermouse"}));
    EXPECT_EQ(reader->readings()[0].address, "AA:1");
    mouse->tell({63});
    EXPECT_EQ(reader->readings()[0].percent, 63);
    EXPECT_TRUE(system.central->connecting.empty());
}

TEST_F(BluetoothBatteryReaderTest, ConnectsAPeripheralBeforeItAsks) {
    const auto pen = add("1");
    pen->connected = false;
    system.central->become(State::poweredOn);
    EXPECT_THAT(system.central->connecting, ElementsAre("1"));
    EXPECT_THAT(pen->asked, IsEmpty());
    system.central->delegate->didConnect(*pen);
    EXPECT_EQ(pen->asked.front(), "services");
}

TEST_F(BluetoothBatteryReaderTest, TakesLevelsAsTheyAre) {
    const auto device = add("1");
    system.central->become(State::poweredOn);
    EXPECT_THAT(reader->readings(), IsEmpty()) << "without a level";
    const struct {
        const char* name;
        std::vector<std::uint8_t> value;
        const char* uuid;
        int level;
        int changes;
    } cases[] = {
        {"a level", {7}, "2A19", 7, 1},
        {"empty", {}, "2A19", 7, 0},
        {"of another characteristic", {9}, "2A29", 7, 0},
        {"long form of the identifier", {8}, "00002A19-0000-1000-8000-00805F9B34FB", 8, 1},
        {"absurd", {0xff}, "2A19", 100, 1},
        {"none left", {0}, "2A19", 0, 1},
    };
    for (const auto& c : cases) {
        changes = 0;
        device->tell(c.value, c.uuid);
        EXPECT_EQ(changes, c.changes) << c.name;
        EXPECT_THAT(reader->readings(),
                    ElementsAre(AccessoryBattery{"Bluetooth device", c.level, false, "dot.radiowaves.left.and.right"}))
            << c.name;
    }
}

TEST_F(BluetoothBatteryReaderTest, KeepsLevelsWhileOffAndDropsWhatARefreshNoLongerFinds) {
    const auto keyboard = add("b", "Keyboard");
    const auto mouse = add("a", "Mouse");
    add("c", "Silent")->answers = false;
    keyboard->value = {50};
    mouse->value = {60};
    system.central->become(State::poweredOn);
    EXPECT_EQ(reader->diagnostics(), "on, 3 with battery service: Mouse 60%, Keyboard 50% | classic: ");
    system.central->become(State::poweredOff);
    EXPECT_EQ(reader->readings().size(), 2u);
    system.central->current = State::poweredOn;
    system.central->peripherals = {std::make_shared<fakes::FakePeripheral>("b", "Keyboard of another name")};
    changes = 0;
    system.timer->fire();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(mouse->delegate, nullptr);
    EXPECT_EQ(keyboard->delegate, nullptr) << "another object took its place";
    EXPECT_EQ(reader->diagnostics(), "Bluetooth off, 1 with battery service: Keyboard of another name 50% | classic: ");
    system.timer->fire();
    EXPECT_EQ(changes, 1) << "nothing new";
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
        {"", "00:02", true, peripheral, {.combined = 120}},
        {"", "", true, peripheral, {.single = 5, .combined = 6}},
        {"Travel Mouse", "00:04", true, peripheral, {}},
        {"Far away", "00:05", false, audio, {.single = 50}},
        {"Box", "00:06", true, audio, {.box = 20}},
    };
    system.central->become(State::poweredOn);
    EXPECT_THAT(reader->classic(),
                ElementsAre(AccessoryBattery{"Buds", 30, false, "headphones"},
                            AccessoryBattery{"Buds case", 90, false, "earbuds.case"},
                            AccessoryBattery{"00:02", 100, false, "dot.radiowaves.left.and.right"},
                            AccessoryBattery{"Bluetooth device", 5, false, "dot.radiowaves.left.and.right"},
                            AccessoryBattery{"Box case", 20, false, "earbuds.case"}));
    EXPECT_EQ(reader->classic()[1].address, "00:01");
    EXPECT_EQ(reader->diagnostics(), "on, 0 with battery service | classic: Buds 30%, 00:02 100%, "
                                     "Bluetooth device 5%, Travel Mouse [no value] class 5, Box case 20%");
    add("1", "Pen")->value = {9};
    system.classic->devices.resize(2);
    system.timer->fire();
    EXPECT_THAT(reader->all(), ElementsAre(Field(&AccessoryBattery::name, "Pen"), _, _, _));
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
