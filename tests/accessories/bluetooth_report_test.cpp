#include "accessories/bluetooth_report.h"

#include <gmock/gmock.h>

namespace vantrix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::string_view printed = R"(Bluetooth:

      Bluetooth Controller:
          Address: 00:11:22:33:44:55
          State: On
          Battery Level: 1%
      Connected:
          Ann's AirPods Pro:
              Address: AA:BB:CC:DD:EE:01
              Case Battery Level: 57%
              Left Battery Level: 100%
              Right Battery Level: 98 %
              Minor Type: Headphones
              Services: 0x980019 < HFP AVRCP A2DP >
          Desk: the big one:
              Address: AA:BB:CC:DD:EE:02
              Battery Level: 90%
              Minor Type: Keyboard
          Speaker:
              Minor Type: Speaker
          Odd:
              Battery Level: many%
      Not Connected:
          Connected:
              Battery Level: 12%
          Old Mouse:
              Battery Level: 20%
)";

TEST(BluetoothReport, ListsConnectedDevicesWithTheirLevels) {
    const auto report = parseBluetoothReport(printed);
    EXPECT_THAT(report.accessories, ElementsAre(AccessoryBattery{"Ann's AirPods Pro", 98, false, "airpods"},
                                                AccessoryBattery{"Ann's AirPods Pro case", 57, false, "earbuds.case"},
                                                AccessoryBattery{"Desk: the big one", 90, false, "keyboard"}));
    EXPECT_EQ(report.accessories[1].address, "AA:BB:CC:DD:EE:01");
    EXPECT_THAT(report.others, ElementsAre("Speaker", "Odd"));
}

TEST(BluetoothReport, TakesTheKeysOfTheReportToo) {
    const auto report = parseBluetoothReport("SPBluetoothDataType:\r\n"
                                             "  device_connected:\r\n"
                                             "    Buds:\r\n"
                                             "      device_minorType: Headset\r\n"
                                             "      device_batteryLevelMain: 40%\r\n"
                                             "      device_batteryLevelLeft: 10%\r\n"
                                             "      device_batteryLevelCase: 70%\r\n"
                                             "  device_not_connected:\r\n"
                                             "    Pad:\r\n"
                                             "      device_batteryLevelMain: 5%");
    EXPECT_THAT(report.accessories, ElementsAre(AccessoryBattery{"Buds", 40, false, "headphones"},
                                                AccessoryBattery{"Buds case", 70, false, "earbuds.case"}));
}

TEST(BluetoothReport, TextOfAnotherKindIsEmpty) {
    for (const char* text : {"", "\n\n", "Bluetooth:\n\n", "  Connected:\n", "{\"a\": 1}", "  Connected:\n    x\n  :"})
        EXPECT_THAT(parseBluetoothReport(text).accessories, IsEmpty()) << text;
}

} // namespace
} // namespace vantrix
