#pragma once

#include <optional>

namespace vantrix {

/// The internal battery.
struct BatterySample {
    int percent = 0;                     ///< charge, 0 to 100
    bool isCharging = false;             ///< taking charge
    bool isPluggedIn = false;            ///< running on the power adapter
    std::optional<int> minutesRemaining; ///< to full while charging, else to empty; absent while still estimated
    std::optional<int> cycleCount;
    std::optional<int> healthPercent;  ///< present full charge as a share of the design's, at most 100
    std::optional<double> temperature; ///< °C
    std::optional<double> watts;       ///< into or out of the battery, always positive

    bool operator==(const BatterySample&) const = default;
};

} // namespace vantrix
