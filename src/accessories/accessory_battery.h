#pragma once

#include <string>

namespace vantrix {

struct AccessoryBattery {
    std::string name;
    int percent = 0; ///< charge, 0 to 100
    bool isCharging = false;
    std::string symbol; ///< name of the symbol that pictures the accessory
    /// Of its radio, "AA:BB:CC:DD:EE:FF", or what else the system tells it by; empty when unknown. It tells devices
    /// apart and is no part of what is shown.
    std::string address = {};

    bool operator==(const AccessoryBattery& other) const {
        return name == other.name && percent == other.percent && isCharging == other.isCharging &&
               symbol == other.symbol;
    }
};

} // namespace vantrix
