#include <algorithm>

#include "linux/diagnosis/diagnosis_parts.h"
#include "linux/kernel/device_rest.h"
#include "linux/power_supply/accessory_name.h"
#include "linux/sensors/hwmon_chips.h"
#include "linux/sensors/supply_kind.h"
#include "linux/sensors/temperature_names.h"
#include "linux/sensors/thermal_zones.h"
#include "support/text_format.h"

namespace vantrix {
namespace {

/// The chips with one kind of sensor, and those that are not asked.
struct Chips {
    int count = 0;
    std::vector<std::string> asleep;
    std::vector<std::string> resting; ///< spinning disks
    std::vector<std::string> names;   ///< of all

    void add(const HwmonChip& chip) {
        ++count;
        names.push_back(chip.name);
        const auto state = DeviceRest(chip.device, chip.name == "drivetemp").look(0.0);
        // The name of a wireless device's chip may hold its address.
        const std::string shown = findAddress(chip.name).empty() ? chip.name : "a wireless device";
        if (state == DeviceRest::State::asleep)
            asleep.push_back(shown);
        else if (state == DeviceRest::State::idle)
            resting.push_back(shown);
    }
};

Chips chipsWith(const std::string& sys, std::string_view prefix) {
    Chips chips;
    for (const HwmonChip& chip : findHwmonChips(sys)) {
        if (!sensorNumbers(chip.folder, prefix, "_input").empty() && supplyKind(chip.device) != SupplyKind::accessory)
            chips.add(chip);
    }
    return chips;
}

std::string listed(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names)
        appendToList(text, name);
    return text;
}

SourceDiagnosis diagnoseChips(std::string_view name, const std::string& folder, const Chips& chips) {
    const std::string count = std::to_string(chips.count) + (chips.count == 1 ? " chip" : " chips");
    SourceDiagnosis row{std::string(name), folder + " (" + count + ")"};
    if (chips.asleep.size() == static_cast<std::size_t>(chips.count))
        row.state = SourceState::asleep;
    if (!chips.asleep.empty())
        row.reason = "Left asleep: " + listed(chips.asleep) + ".";
    if (!chips.resting.empty())
        row.reason += (row.reason.empty() ? "" : " ") +
                      std::string("Not asked while idle, so that it may spin down: ") + listed(chips.resting) + ".";
    return row;
}

std::string nameInKernel(const FoundTemperature& sensor) {
    const bool isZone = sensor.label == sensor.chip;
    return isZone || sensor.label.empty() ? sensor.chip : sensor.chip + ' ' + sensor.label;
}

/// Which sensors are the processor's temperature; empty when there is none.
std::string processorSensors(const std::string& sys) {
    constexpr int mostListed = 4;
    const auto found = findTemperatures(sys).sensors;
    const auto names = temperatureNames(found);
    std::string text;
    int count = 0;
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (names[i].find("CPU") != std::string::npos && ++count <= mostListed)
            appendToList(text, nameInKernel(found[i]));
    }
    if (count > mostListed)
        text += " and " + std::to_string(count - mostListed) + " more";
    return text.empty() ? text : "; CPU: " + text;
}

SourceDiagnosis temperatures(const std::string& sys) {
    const Chips chips = chipsWith(sys, "temp");
    const auto zones = findThermalZones(sys, chips.names).size();
    const std::string zoneSource =
        sys + "/class/thermal (" + std::to_string(zones) + (zones == 1 ? " zone)" : " zones)");
    if (chips.count > 0) {
        auto row = diagnoseChips(reading_name::temperatures, sys + "/class/hwmon", chips);
        if (zones > 0) {
            row.source += ", " + zoneSource;
            row.state = SourceState::ok;
        }
        row.source += processorSensors(sys);
        return row;
    }
    if (zones > 0)
        return {std::string(reading_name::temperatures), zoneSource + processorSensors(sys)};
    return {std::string(reading_name::temperatures),
            sys + "/class/hwmon",
            SourceState::absent,
            {},
            "No sensor is told of: usual in a virtual machine. On real hardware a driver is missing; sensors-detect "
            "of the package lm-sensors finds out which."};
}

SourceDiagnosis fans(const std::string& sys) {
    const Chips chips = chipsWith(sys, "fan");
    if (chips.count > 0)
        return diagnoseChips(reading_name::fans, sys + "/class/hwmon", chips);
    return {std::string(reading_name::fans),
            sys + "/class/hwmon",
            SourceState::absent,
            {},
            "No fan is told of: there is none, its driver is not loaded, or the firmware keeps it to itself."};
}

} // namespace

void diagnoseSensors(const DiagnosisTools& tools, SourceDiagnoses& rows) {
    rows.push_back(temperatures(tools.roots.sys));
    rows.push_back(fans(tools.roots.sys));
}

} // namespace vantrix
