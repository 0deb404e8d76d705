#include "linux/power_supply/power_supply_accessories.h"

#include <gmock/gmock.h>

#include "fakes/fixture_machine.h"
#include "linux/power_supply/accessory_name.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;

TEST(PowerSupplyAccessories, ReadsTheBatteriesOfDevices) {
    const fakes::FixtureMachine machine("two-packs-and-accessories");
    const auto scan = PowerSupplyAccessories(machine.path("sys")).scan();
    constexpr auto other = "dot.radiowaves.left.and.right";
    EXPECT_THAT(batteriesOf(scan.accessories),
                ElementsAre(AccessoryBattery{"Desk Keyboard", 87, false, "keyboard"},
                            AccessoryBattery{"Wireless Mouse", 10, false, "computermouse"},
                            AccessoryBattery{"Game Pad", 100, true, other},
                            AccessoryBattery{"Graphics tablet", 30, false, other}));
    EXPECT_EQ(scan.accessories[0].address, "AA:BB:CC:00:11:22"); // of the entry's name
    EXPECT_EQ(scan.accessories[1].address, "");
    EXPECT_EQ(scan.accessories[1].identifier, "hidpp_battery_0");
    EXPECT_EQ(scan.accessories[2].address, "AA:BB:CC:DD:EE:0F"); // of the device behind it
    EXPECT_EQ(scan.diagnostics, "power_supply: 4: Desk Keyboard 87%, Wireless Mouse 10%, Game Pad 100%, "
                                "Graphics tablet 30%, Silent Headset [no value]");
}

// What a driver says before the device has told anything: a mouse that sleeps, a stylus that has not come near.
TEST(PowerSupplyAccessories, ALevelThatIsNotKnownIsNone) {
    const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
        {"0", "Discharging", "", "1: Pen 0%"},          {"0", "Unknown", "", "0: Pen [no value]"},
        {"0", "Unknown", "Full", "1: Pen 100%"},        {"", "Unknown", "High", "1: Pen 70%"},
        {"", "Unknown", "Normal", "1: Pen 55%"},        {"1", "Unknown", "", "1: Pen 1%"},
        {"-1", "Discharging", "", "0: Pen [no value]"}, {"140", "Discharging", "", "1: Pen 100%"},
    };
    const TemporaryFolder folder;
    PowerSupplyAccessories sampler(folder.path("sys"));
    EXPECT_EQ(sampler.scan().diagnostics, "power_supply: 0");
    const std::string pen = "sys/class/power_supply/pen";
    folder.writeLines(pen, {{"type", "Battery"}, {"scope", "Device"}, {"model_name", " Pen "}});
    for (const auto& [capacity, status, level, found] : rows) {
        folder.writeLines(pen, {{"capacity", capacity}, {"status", status}, {"capacity_level", level}});
        EXPECT_EQ(sampler.scan().diagnostics, std::string("power_supply: ") + found);
    }
    folder.write(pen + "/online", "0\n");
    EXPECT_EQ(sampler.scan().diagnostics, "power_supply: 0"); // switched off
}

TEST(AccessoryName, IsWhatAPersonCallsTheThing) {
    const char* const rows[][5] = {
        // entry, model, device, input device, name
        {"hidpp_battery_0", "Wireless Mouse M185", "Logitech M185", "", "Wireless Mouse M185"},
        {"hidpp_battery_1", "Wireless Device PID:4038", "", "Keyboard K270", "Keyboard K270"},
        {"hidpp_battery_2", "hidpp_battery_2", "", "", "Wireless device"},
        {"hid-0018:04F3:2A1C.0001-battery", "ELAN9008:00 04F3:2A1C", "", "ELAN9008:00 04F3:2A1C Stylus", "Stylus"},
        {"hid-00:11:22:33:44:55-battery", "\xff", "00:11:22:33:44:55", "", "\xef\xbf\xbd"},
        {"hid-00:11:22:33:44:55-battery", "", "00:11:22:33:44:55", "", "Bluetooth device"},
        {"ps-controller-battery-00:11:22:33:44:66", "", "DualSense Controller", "", "DualSense Controller"},
        {"nintendo_switch_controller_battery_00:11:22:33:44:88", "", "", "", "Game controller"},
        {"xpadneo_battery_0", "Xbox Controller [00:11:22:33:44:99]", "", "", "Xbox Controller"},
        {"wacom_battery_1", " ", "HID 256c:006d", "", "Graphics tablet"},
        {"steelseries_headset_battery_0", "", "", "", "Headphones"},
    };
    for (const auto& [entry, model, device, input, name] : rows) {
        const TemporaryFolder folder;
        folder.writeLines("supply", {{"model_name", model},
                                     {"device/uevent", std::string("DRIVER=x\nHID_NAME=") + device},
                                     {"device/input/input7/name", input}});
        EXPECT_EQ(accessoryName(folder.path("supply"), entry).text, name) << entry;
    }
}

} // namespace
} // namespace vantrix
