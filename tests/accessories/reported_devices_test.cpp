#include "accessories/reported_devices.h"

#include <gmock/gmock.h>

namespace vantrix {
namespace {

using ::testing::ElementsAre;

TEST(ReportedDevices, HaveTheLevelsOfTheBluetoothReport) {
    ReportedDevices devices;
    devices.addBluetoothDevice("Ann's AirPods Pro", {{"device_address", "AA:BB:CC:DD:EE:01"},
                                                     {"device_minorType", "Headphones"},
                                                     {"device_batteryLevelLeft", "100%"},
                                                     {"device_batteryLevelRight", "98 %"},
                                                     {"device_batteryLevelCase", "57"}});
    devices.addBluetoothDevice("Desk", {{"device_minorType", "Keyboard"}, {"device_batteryLevelMain", "90%"}});
    for (const char* level : {"many%", "-3%", "%", "", "5 percent", "99999999999%"})
        devices.addBluetoothDevice(level, {{"device_batteryLevelMain", level}});
    devices.addBluetoothDevice("Number", {{"device_batteryLevelMain", std::int64_t{40}}});
    EXPECT_THAT(devices.accessories, ElementsAre(AccessoryBattery{"Ann's AirPods Pro", 98, false, "airpods"},
                                                 AccessoryBattery{"Ann's AirPods Pro case", 57, false, "earbuds.case"},
                                                 AccessoryBattery{"Desk", 90, false, "keyboard"}));
    EXPECT_EQ(devices.accessories[1].address, "AA:BB:CC:DD:EE:01");
    EXPECT_THAT(devices.others, ElementsAre("many%", "-3%", "%", "", "5 percent", "99999999999%", "Number"));
}

TEST(ReportedDevices, HaveTheLevelsOfTheRegistry) {
    ReportedDevices devices;
    devices.addInputDevice({{"Product", "Mouse"}, {"BatteryPercent", (std::int64_t{1} << 32) + 50}});
    devices.addInputDevice({{"Product", "Pad"}});
    devices.addInputDevice({{"BatteryPercent", std::int64_t{5}}});
    EXPECT_THAT(devices.accessories, ElementsAre(AccessoryBattery{"Mouse", 100, false, "computermouse"}));
    EXPECT_THAT(devices.others, ElementsAre("Pad"));
}

TEST(ReportedDevices, OfBothOriginsMakeOneScan) {
    ReportedDevices report;
    report.addBluetoothDevice("Desk", {{"device_address", "AA:BB:CC:DD:EE:01"}, {"device_batteryLevelMain", "70%"}});
    report.addBluetoothDevice("Lamp", {});
    ReportedDevices inputDevices;
    inputDevices.addInputDevice(
        {{"Product", "Keyboard"}, {"BatteryPercent", std::int64_t{90}}, {"DeviceAddress", "aa-bb-cc-dd-ee-01"}});
    const auto scan = scanOf(report, inputDevices);
    EXPECT_THAT(scan.accessories, ElementsAre(AccessoryBattery{"Keyboard", 90, false, "keyboard"}));
    EXPECT_EQ(scan.diagnostics, "system_profiler: 1: Desk 70%, Lamp [no value] | registry: 1: Keyboard 90%");
    EXPECT_EQ(scanOf(std::nullopt, {}).diagnostics, "system_profiler: no report | registry: 0");
}

} // namespace
} // namespace vantrix
