#include "linux/sensors/temperature_names.h"

#include <algorithm>

namespace vantrix {
namespace {

struct ChipName {
    std::string_view prefix; ///< of the chip's name
    std::string_view word;
};

constexpr ChipName ownChips[] = {
    {"coretemp", "CPU"},     {"k10temp", "CPU"}, {"k8temp", "CPU"},  {"zenpower", "CPU"},   {"via_cputemp", "CPU"},
    {"x86_pkg_temp", "CPU"}, {"TCPU", "CPU"},    {"bigcore", "CPU"}, {"littlecore", "CPU"}, {"cpu", "CPU"},
    {"amdgpu", "GPU"},       {"radeon", "GPU"},  {"nouveau", "GPU"}, {"i915", "GPU"},       {"xe", "GPU"},
    {"gpu", "GPU"},          {"soc", "SoC"},     {"package", "SoC"}, {"nvme", "NAND"},      {"drivetemp", "NAND"},
};

constexpr ChipName otherChips[] = {
    {"acpitz", "Mainboard"}, {"pch_", "Chipset"}, {"iwlwifi", "Wi-Fi"}, {"jc42", "Memory"}, {"spd5118", "Memory"},
};

struct Replacement {
    std::string_view word;
    std::string_view neutral;
};

constexpr Replacement replacements[] = {
    {"CPU", "processor"}, {"GPU", "graphics"}, {"SoC", "chip"},     {"SOC", "chip"},
    {"NAND", "flash"},    {"battery", "pack"}, {"Battery", "Pack"}, {"BATTERY", "PACK"},
};

template<std::size_t count>
std::string_view wordOf(const ChipName (&names)[count], std::string_view chip) {
    const auto isPrefix = [&](const ChipName& name) {
        return name.prefix == "xe" ? chip == "xe" : chip.starts_with(name.prefix);
    };
    const auto found = std::find_if(std::begin(names), std::end(names), isPrefix);
    return found == std::end(names) ? std::string_view() : found->word;
}

/// The component whose own sensor this is; empty for all others.
std::string_view ownWord(const FoundTemperature& sensor) {
    return sensor.isBattery ? "Battery" : wordOf(ownChips, sensor.chip);
}

/// The hottest spot and the memory of a graphics card are up to 30 °C warmer than what it is known by, its edge; the
/// single parts of an NVMe drive are, too.
bool isOfPart(const FoundTemperature& sensor, const std::vector<FoundTemperature>& all) {
    if (sensor.chip == "nvme")
        return !sensor.label.empty() && sensor.label != "Composite";
    if (sensor.chip != "amdgpu" || sensor.label == "edge")
        return false;
    const auto isOfSameChip = [&](const FoundTemperature& other) {
        return other.chip == sensor.chip && other.device == sensor.device;
    };
    const auto first = std::find_if(all.begin(), all.end(), isOfSameChip);
    return &*first != &sensor || std::any_of(all.begin(), all.end(), [&](const FoundTemperature& other) {
        return isOfSameChip(other) && other.label == "edge";
    });
}

std::string labelFor(const FoundTemperature& sensor) {
    if (sensor.label.empty())
        return sensor.number > 0 ? std::to_string(sensor.number) : std::string();
    if (sensor.label.starts_with("Package id "))
        return "package " + sensor.label.substr(11);
    if (sensor.label.starts_with("Core "))
        return "core " + sensor.label.substr(5);
    return sensor.label;
}

std::string joined(std::string text, const std::string& part) {
    if (!part.empty())
        text += (text.empty() ? "" : " ") + part;
    return text;
}

/// Tctl steers the fans: on some processors it lies 10 to 27 °C above the temperature, which is then told as Tdie.
bool isOffsetValue(const FoundTemperature& sensor, const std::vector<FoundTemperature>& all) {
    return sensor.label == "Tctl" && std::any_of(all.begin(), all.end(), [&](const FoundTemperature& other) {
               return other.chip == sensor.chip && other.label == "Tdie";
           });
}

bool hasOwnSensor(std::string_view word, const std::vector<FoundTemperature>& all) {
    const auto isSame = [](char a, char b) { return (a | 0x20) == (b | 0x20); };
    return std::any_of(all.begin(), all.end(), [&](const FoundTemperature& sensor) {
        return std::ranges::equal(ownWord(sensor), word, isSame);
    });
}

std::string replaced(std::string text, const Replacement& by) {
    for (auto place = text.find(by.word); place != std::string::npos; place = text.find(by.word, place)) {
        const auto end = place + by.word.size();
        // Or part of a word, like "CPUTIN".
        const bool isWhole = end == text.size() || text[end] == ' ' || text[end] == '_' || text[end] == '-';
        text.replace(place, by.word.size(), std::string(by.neutral) + (isWhole ? "" : " "));
    }
    return text;
}

std::string withoutTakenWords(std::string text, const std::vector<FoundTemperature>& all) {
    for (const Replacement& replacement : replacements) {
        if (hasOwnSensor(replacement.word, all))
            text = replaced(std::move(text), replacement);
    }
    return text;
}

std::string nameOf(const FoundTemperature& sensor, const std::vector<FoundTemperature>& all) {
    if (isOffsetValue(sensor, all))
        return "Processor control value";
    const std::string_view own = ownWord(sensor);
    if (!own.empty()) {
        const std::string& kind = sensor.isBattery ? sensor.chip : sensor.model;
        if (!isOfPart(sensor, all))
            return joined(joined(std::string(own), kind), labelFor(sensor));
        const std::string device = own == "NAND" ? "Drive" : "Graphics";
        return withoutTakenWords(joined(joined(device, kind), labelFor(sensor)), all);
    }
    const std::string_view other = wordOf(otherChips, sensor.chip);
    const bool isZone = sensor.label == sensor.chip; // a thermal zone has one name for both
    const std::string kind = !other.empty() ? std::string(other) : isZone ? std::string() : sensor.chip;
    return withoutTakenWords(joined(kind, labelFor(sensor)), all);
}

} // namespace

bool isProcessorChip(std::string_view chip) {
    return wordOf(ownChips, chip) == "CPU";
}

std::vector<std::string> temperatureNames(const std::vector<FoundTemperature>& found) {
    std::vector<std::string> names;
    names.reserve(found.size());
    for (const FoundTemperature& sensor : found)
        names.push_back(nameOf(sensor, found));
    return names;
}

} // namespace vantrix
