#pragma once

#include <string>
#include <vector>

namespace vantrix {

/// A zone of <sys>/class/thermal, whose "temp" holds millidegrees.
struct ThermalZone {
    std::string type;   ///< what it is called, "cpu-thermal"
    std::string folder; ///< resolved
};

/// The zones that stand in, sorted by type, for what the hwmon `chips` with temperatures, by their names, leave out:
/// none where one of them is the processor's, nor those that are such a chip as well.
std::vector<ThermalZone> findThermalZones(const std::string& sys, const std::vector<std::string>& chips);

} // namespace vantrix
