#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "accessories/accessory_battery.h"

namespace vantrix {

struct BluetoothReport {
    std::vector<AccessoryBattery> accessories; ///< with a level, as the report orders them
    std::vector<std::string> others;           ///< names of connected devices without one
};

/// Reads the plain text that the system profiler prints about Bluetooth: headings and "Label: value" lines, nested by
/// indentation. Only the devices below the heading of connected ones count. Labels may be the printed English ones
/// ("Left Battery Level") or the report's own keys ("device_batteryLevelLeft").
BluetoothReport parseBluetoothReport(std::string_view text);

} // namespace vantrix
