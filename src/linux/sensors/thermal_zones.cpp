#include "linux/sensors/thermal_zones.h"

#include <algorithm>

#include "linux/kernel/kernel_tree.h"
#include "linux/sensors/hwmon_chips.h"
#include "linux/sensors/temperature_roles.h"

namespace vantrix {
namespace {

/// The name of the chip that the kernel may make of a zone.
std::string chipName(std::string type) {
    std::replace(type.begin(), type.end(), '-', '_');
    return type;
}

} // namespace

std::vector<ThermalZone> findThermalZones(const std::string& sys, const std::vector<std::string>& chips) {
    std::vector<ThermalZone> zones;
    if (std::any_of(chips.begin(), chips.end(), isProcessorChip))
        return zones;
    const std::string root = sys + "/class/thermal";
    for (const int number : sensorNumbers(root, "thermal_zone", "")) {
        std::string folder = resolvedPath(root + "/thermal_zone" + std::to_string(number));
        std::string type = readName(folder + "/type");
        if (!type.empty() && std::find(chips.begin(), chips.end(), chipName(type)) == chips.end())
            zones.push_back({std::move(type), std::move(folder)});
    }
    std::stable_sort(zones.begin(), zones.end(), [](const auto& a, const auto& b) { return a.type < b.type; });
    return zones;
}

} // namespace vantrix
