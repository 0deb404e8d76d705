#include "linux/sensors/temperature_names.h"

#include <algorithm>
#include <utility>

#include "linux/sensors/temperature_roles.h"

namespace vantrix {
namespace {

using Temperatures = std::vector<FoundTemperature>;

constexpr std::pair<std::string_view, std::string_view> otherChips[] = {
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

std::string labelFor(const FoundTemperature& sensor) {
    if (sensor.label.empty())
        return sensor.number > 0 ? std::to_string(sensor.number) : std::string();
    if (sensor.label.starts_with("Package id ") || sensor.label.starts_with("Physical id ")) // of old kernels
        return "package";
    if (sensor.label.starts_with("Core "))
        return "core " + sensor.label.substr(5);
    return sensor.label;
}

std::string joined(std::string text, const std::string& part) {
    if (!part.empty())
        text += (text.empty() ? "" : " ") + part;
    return text;
}

bool hasOwnSensor(std::string_view word, const Temperatures& all) {
    const auto isSame = [](char a, char b) { return (a | 0x20) == (b | 0x20); };
    return std::any_of(all.begin(), all.end(), [&](const FoundTemperature& sensor) {
        return std::ranges::equal(componentOf(sensor), word, isSame);
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

std::string withoutTakenWords(std::string text, const Temperatures& all) {
    for (const Replacement& replacement : replacements) {
        if (hasOwnSensor(replacement.word, all))
            text = replaced(std::move(text), replacement);
    }
    return text;
}

std::string nameOfComponent(std::string component, const FoundTemperature& sensor, const Temperatures& all) {
    if (const auto ordinal = ordinalOf(sensor, all); ordinal > 1)
        component += ' ' + std::to_string(ordinal);
    const std::string& kind = sensor.isBattery ? sensor.chip : sensor.model;
    return joined(joined(std::move(component), kind), labelFor(sensor));
}

/// Without the word "CPU", which stands for the whole.
std::string nameOfPartOfProcessor(const FoundTemperature& sensor, const Temperatures& all) {
    std::string name = sensor.label;
    if (isOffsetValue(sensor, all))
        name = "Processor control value";
    else if (name.starts_with("Tccd"))
        name.replace(0, 4, "CCD ");
    const auto socket = ordinalOf(sensor, all);
    return socket > 1 ? name + " (socket " + std::to_string(socket) + ')' : name;
}

std::string nameOfPart(std::string_view component, const FoundTemperature& sensor, const Temperatures& all) {
    if (component == "CPU")
        return nameOfPartOfProcessor(sensor, all);
    return withoutTakenWords(nameOfComponent(component == "NAND" ? "Drive" : "Graphics", sensor, all), all);
}

/// Of a sensor that is no component's own.
std::string nameOfOther(const FoundTemperature& sensor, const Temperatures& all) {
    const auto isOfChip = [&](const auto& other) { return sensor.chip.starts_with(other.first); };
    const auto other = std::find_if(std::begin(otherChips), std::end(otherChips), isOfChip);
    const bool isZone = sensor.label == sensor.chip; // a thermal zone has one name for both
    std::string kind = isZone ? std::string() : sensor.chip;
    if (other != std::end(otherChips))
        kind = other->second;
    return withoutTakenWords(joined(std::move(kind), labelFor(sensor)), all);
}

std::string nameOf(const FoundTemperature& sensor, const Temperatures& all) {
    const std::string_view component = componentOf(sensor);
    if (component.empty())
        return nameOfOther(sensor, all);
    if (isOfPart(sensor, all) || isOffsetValue(sensor, all))
        return nameOfPart(component, sensor, all);
    const bool standsForProcessor = component == "SoC" && !hasOwnSensor("CPU", all);
    return nameOfComponent(standsForProcessor ? "CPU and SoC" : std::string(component), sensor, all);
}

} // namespace

std::vector<std::string> temperatureNames(const std::vector<FoundTemperature>& found) {
    std::vector<std::string> names;
    names.reserve(found.size());
    for (const FoundTemperature& sensor : found)
        names.push_back(nameOf(sensor, found));
    return names;
}

} // namespace vantrix
