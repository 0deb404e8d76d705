#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "accessories/accessory_battery.h"

namespace vantrix {

/// The readings that a widget shows, at one moment.
struct SharedStats {
    double cpu = 0.0;                     ///< load fraction
    double memory = 0.0;                  ///< used fraction
    double disk = 0.0;                    ///< used fraction
    double download = 0.0;                ///< bytes per second
    double upload = 0.0;                  ///< bytes per second
    std::optional<double> gpu;            ///< load fraction
    std::optional<int> batteryPercent;    ///< 0 to 100; absent without a battery
    std::optional<bool> batteryCharging;  ///< absent without a battery
    std::optional<double> cpuTemperature; ///< °C
    double warning = 0.0;                 ///< fraction from which a widget colours a value as a warning
    double critical = 0.0;                ///< fraction from which a widget colours a value as critical
    double updated = 0.0;                 ///< seconds since 1 January 2001 00:00:00 UTC
    std::vector<AccessoryBattery> accessories;

    bool operator==(const SharedStats&) const = default;
};

/// Its members in alphabetical order; without its address, which is nobody else's business.
void appendJson(std::string& json, const AccessoryBattery& accessory);

/// The snapshot as one JSON object in UTF-8, with the fields' names as its keys in no particular order. Absent values
/// and the addresses of accessories are left out. Absent when a number is not finite, which JSON cannot express.
std::optional<std::string> encode(const SharedStats& stats);

/// What `encode` wrote, exactly. Absent when it is no JSON, a field is missing or one is of another type; keys that are
/// not known are passed over.
std::optional<SharedStats> decodeSharedStats(std::string_view json);

} // namespace vantrix
