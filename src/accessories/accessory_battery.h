#pragma once

#include <string>

namespace vantrix {

struct AccessoryBattery {
    std::string name;
    int percent = 0; ///< charge, 0 to 100
    bool isCharging = false;
    std::string symbol; ///< name of the symbol that pictures the accessory

    bool operator==(const AccessoryBattery&) const = default;
};

} // namespace vantrix
