#include "linux/power_supply/power_supply_accessories.h"

#include <gmock/gmock.h>

#include "fakes/fixture_machine.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;

TEST(PowerSupplyAccessories, ReadsTheBatteriesOfDevices) {
    const fakes::FixtureMachine machine("two-packs-and-accessories");
    const auto scan = PowerSupplyAccessories(machine.path("sys")).scan();
    constexpr auto other = "dot.radiowaves.left.and.right";
    EXPECT_THAT(batteriesOf(scan.accessories), ElementsAre(AccessoryBattery{"Desk Keyboard", 87, false, "keyboard"},
                                              AccessoryBattery{"Wireless Mouse", 15, false, "computermouse"},
                                              AccessoryBattery{"Game Pad", 100, true, other},
                                              AccessoryBattery{"wacom_battery_1", 30, false, other}));
    EXPECT_EQ(scan.accessories[0].address, "AA:BB:CC:00:11:22"); // of the entry's name
    EXPECT_EQ(scan.accessories[1].address, "");
    EXPECT_EQ(scan.accessories[1].identifier, "hidpp_battery_0");
    EXPECT_EQ(scan.accessories[2].address, "AA:BB:CC:DD:EE:0F"); // of the device behind it
    EXPECT_EQ(scan.diagnostics, "power_supply: 4: Desk Keyboard 87%, Wireless Mouse 15%, Game Pad 100%, "
                                "wacom_battery_1 30%, Silent Headset [no value]");
}

TEST(PowerSupplyAccessories, DevicesComeAndGo) {
    const TemporaryFolder folder;
    PowerSupplyAccessories sampler(folder.path("sys"));
    const std::string pen = "sys/class/power_supply/pen";
    EXPECT_EQ(sampler.scan().diagnostics, "power_supply: 0");
    folder.writeLines(pen, {{"type", "Battery"}, {"scope", "Device"}, {"capacity", "140"}, {"model_name", " \xff "}});
    EXPECT_THAT(batteriesOf(sampler.scan().accessories),
                ElementsAre(AccessoryBattery{"\xef\xbf\xbd", 100, false, "dot.radiowaves.left.and.right"}));
    folder.write(pen + "/online", "0\n");
    EXPECT_EQ(sampler.scan().diagnostics, "power_supply: 0"); // switched off
}

} // namespace
} // namespace vantrix
