#pragma once

#include <string>
#include <vector>

namespace vantrix {

/// A zone of <sys>/class/thermal, whose "temp" holds millidegrees.
struct ThermalZone {
    std::string type;   ///< what it is called, "cpu-thermal"
    std::string folder; ///< resolved
};

/// The zones that are worth reading beside the hwmon chips with temperatures, whose names are `chips`; sorted by type.
/// None where one of the chips is the processor's; never one that is a chip as well.
std::vector<ThermalZone> findThermalZones(const std::string& sys, const std::vector<std::string>& chips);

} // namespace vantrix
