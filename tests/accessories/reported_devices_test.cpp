#include "accessories/reported_devices.h"

#include <gmock/gmock.h>

namespace vantrix {
namespace {

using ::testing::ElementsAre;

TEST(ReportedDevices, HaveTheLevelsThatMakeSense) {
    ReportedDevices devices;
    devices.addBluetoothDevice("Ann's AirPods Pro", {{"device_address", "AA:BB:CC:DD:EE:01"},
                                                     {"device_minorType", "Headphones"},
                                                     {"device_batteryLevelLeft", "100%"},
                                                     {"device_batteryLevelRight", "98 %"},
                                                     {"device_batteryLevelCase", "57"}});
    for (const char* level : {"many%", "-3%", "%", "", "5 percent", "99999999999%"})
        devices.addBluetoothDevice(level, {{"device_batteryLevelMain", level}});
    devices.addInputDevice({{"Product", "Mouse"}, {"BatteryPercent", (std::int64_t{1} << 32) + 50}});
    EXPECT_THAT(batteriesOf(devices.accessories),
                ElementsAre(AccessoryBattery{"Ann's AirPods Pro", 98, false, "airpods"},
                            AccessoryBattery{"Ann's AirPods Pro case", 57, false, "earbuds.case"},
                            AccessoryBattery{"Mouse", 100, false, "computermouse"}));
    EXPECT_EQ(devices.accessories[1].address, "AA:BB:CC:DD:EE:01");
    EXPECT_THAT(devices.others, ElementsAre("many%", "-3%", "%", "", "5 percent", "99999999999%"));
}

} // namespace
} // namespace vantrix
