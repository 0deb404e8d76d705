#include "linux/sensors/temperature_roles.h"

#include <algorithm>
#include <functional>
#include <set>
#include <utility>

namespace vantrix {
namespace {

constexpr std::pair<std::string_view, std::string_view> components[] = {
    // Beginnings of chips' names.
    {"coretemp", "CPU"},
    {"k10temp", "CPU"},
    {"k8temp", "CPU"},
    {"zenpower", "CPU"},
    {"via_cputemp", "CPU"},
    {"x86_pkg_temp", "CPU"},
    {"TCPU", "CPU"},
    {"bigcore", "CPU"},
    {"littlecore", "CPU"},
    {"cpu", "CPU"},
    {"bcm2835_thermal", "CPU"},
    {"imx_thermal", "CPU"},
    {"amdgpu", "GPU"},
    {"radeon", "GPU"},
    {"nouveau", "GPU"},
    {"i915", "GPU"},
    {"gpu", "GPU"},
    {"soc", "SoC"},
    {"package", "SoC"},
    {"nvme", "NAND"},
    {"drivetemp", "NAND"},
};

std::string_view componentOfChip(std::string_view chip) {
    if (chip == "xe")
        return "GPU";
    for (const auto& [beginning, component] : components) {
        if (chip.starts_with(beginning))
            return component;
    }
    return {};
}

template<typename Fits>
bool hasOnChip(const FoundTemperature& sensor, const std::vector<FoundTemperature>& all, Fits fits) {
    return std::any_of(all.begin(), all.end(), [&](const FoundTemperature& other) {
        return other.device == sensor.device && other.chip == sensor.chip && fits(other);
    });
}

bool isOfCore(const FoundTemperature& sensor) {
    return sensor.label.starts_with("Core ") || sensor.label.starts_with("Tccd");
}

/// A card is known by the temperature of its edge; some have but those of the hottest spot, which comes first, and of
/// the memory.
bool isOfPartOfAMDGPU(const FoundTemperature& sensor, const std::vector<FoundTemperature>& all) {
    const auto standsForAll = [&](const FoundTemperature& other) {
        return other.label == "edge" || other.number < sensor.number;
    };
    return sensor.label != "edge" && hasOnChip(sensor, all, standsForAll);
}

} // namespace

std::string_view componentOf(const FoundTemperature& sensor) {
    return sensor.isBattery ? "Battery" : componentOfChip(sensor.chip);
}

bool isProcessorChip(std::string_view chip) {
    return componentOfChip(chip) == "CPU";
}

bool isOfPart(const FoundTemperature& sensor, const std::vector<FoundTemperature>& all) {
    if (componentOf(sensor) == "CPU")
        return isOfCore(sensor) && hasOnChip(sensor, all, std::not_fn(isOfCore));
    if (sensor.chip == "amdgpu")
        return isOfPartOfAMDGPU(sensor, all);
    if (sensor.chip == "xe")
        return !sensor.label.empty() && sensor.label != "pkg";
    return sensor.chip == "nvme" && !sensor.label.empty() && sensor.label != "Composite";
}

/// The kernel knows which processors' Tctl has an offset, and tells Tdie of them alone.
bool isOffsetValue(const FoundTemperature& sensor, const std::vector<FoundTemperature>& all) {
    return sensor.label == "Tctl" &&
           hasOnChip(sensor, all, [](const FoundTemperature& other) { return other.label == "Tdie"; });
}

std::size_t ordinalOf(const FoundTemperature& sensor, const std::vector<FoundTemperature>& all) {
    std::set<std::size_t> before;
    for (const FoundTemperature& other : all) {
        if (other.chip == sensor.chip && other.model == sensor.model && other.device < sensor.device)
            before.insert(other.device);
    }
    return before.size() + 1;
}

} // namespace vantrix
