#pragma once

#include <algorithm>
#include <cstdint>
#include <string>

namespace vantrix {

struct AccessoryBattery {
    std::string name;
    int percent = 0; ///< charge, 0 to 100
    bool isCharging = false;
    std::string symbol; ///< name of the symbol that pictures the accessory

    bool operator==(const AccessoryBattery&) const = default;
};

/// "Mouse 64%", for a bug report.
inline std::string namedLevel(const AccessoryBattery& accessory) {
    return accessory.name + ' ' + std::to_string(accessory.percent) + '%';
}

/// A reported level, brought within 0 to 100.
constexpr int boundedPercent(std::int64_t level) {
    return static_cast<int>(std::clamp<std::int64_t>(level, 0, 100));
}

} // namespace vantrix
