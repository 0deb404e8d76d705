#include "linux/sensors/found_temperatures.h"

#include "linux/sensors/hwmon_chips.h"
#include "linux/sensors/supply_kind.h"
#include "linux/sensors/thermal_zones.h"

namespace vantrix {
namespace {

void addInputs(const HwmonChip& chip, FoundTemperatures& found) {
    const auto numbers = sensorNumbers(chip.folder, "temp", "_input");
    const SupplyKind kind = supplyKind(chip.device); // of a battery's chip
    if (numbers.empty() || kind == SupplyKind::accessory)
        return;
    const bool isDrive = chip.name == "drivetemp" || chip.name == "nvme";
    const std::string model = isDrive ? readName(chip.device + "/model") : std::string();
    for (const int number : numbers) {
        const std::string input = chip.folder + "/temp" + std::to_string(number);
        found.sensors.push_back({chip.name, readName(input + "_label"), model, numbers.size() > 1 ? number : 0,
                                 kind == SupplyKind::battery, found.chips.size(), input + "_input", input + "_fault"});
    }
    found.chips.push_back({chip.name, chip.device});
}

void addZones(const std::string& sys, FoundTemperatures& found) {
    std::vector<std::string> chips;
    for (const auto& chip : found.chips)
        chips.push_back(chip.name);
    for (const auto& [type, folder] : findThermalZones(sys, chips)) {
        found.sensors.push_back({type, type, {}, 0, false, found.chips.size(), folder + "/temp", {}});
        found.chips.push_back({type, folder + "/device"});
    }
}

} // namespace

FoundTemperatures findTemperatures(const std::string& sys) {
    FoundTemperatures found;
    for (const HwmonChip& chip : findHwmonChips(sys))
        addInputs(chip, found);
    addZones(sys, found);
    return found;
}

} // namespace vantrix
