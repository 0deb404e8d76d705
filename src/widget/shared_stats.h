#pragma once

#include <optional>
#include <string>
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

/// Replaces `json` by the snapshot as one JSON object with the fields' names as its keys; absent values are left out.
/// False when a number is not finite, which JSON cannot express; `json` is then unspecified. Allocates only where
/// `json` has to grow or a name is not valid UTF-8.
bool encode(const SharedStats& stats, std::string& json);

} // namespace vantrix
