#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "support/units.h"

namespace vantrix {

/// The readings that the status item can show. The declaration order is the default order.
enum class MenuBarModule { cpu, memory, network, disk, gpu, temperature, battery };

/// The layouts of the status item.
enum class MenuBarStyle { inlined, stacked, graph };

/// The cards that the popover can show, in the order in which it shows them.
enum class PopoverCard { cpu, memory, network, disk, gpu, sensors, battery, accessories };

/// The tabs of the settings window.
enum class SettingsTab { general, menuBar, popover, alerts };

/// What the status item shows of the disk.
enum class DiskModuleShows { used, rates };

/// Which temperature of the processor the status item shows.
enum class TemperatureModuleShows { mean, hottest };

/// What the settings store and the views need to know of one case.
template<typename Case>
struct Choice {
    Case value;
    std::string_view rawValue;   ///< as stored; compared exactly
    std::string_view title;      ///< English; shown through `localized`
    std::string_view symbolName; ///< empty where the choice has no symbol
};

inline constexpr auto menuBarModules = std::to_array<Choice<MenuBarModule>>({
    {MenuBarModule::cpu, "cpu", "CPU", "cpu"},
    {MenuBarModule::memory, "memory", "Memory", "memorychip"},
    {MenuBarModule::network, "network", "Network", "arrow.up.arrow.down"},
    {MenuBarModule::disk, "disk", "Disk", "internaldrive"},
    {MenuBarModule::gpu, "gpu", "GPU", "display"},
    {MenuBarModule::temperature, "temperature", "CPU temperature", "thermometer.medium"},
    {MenuBarModule::battery, "battery", "Battery", "battery.75percent"},
});

inline constexpr auto menuBarStyles = std::to_array<Choice<MenuBarStyle>>({
    {MenuBarStyle::inlined, "inline", "Inline", ""},
    {MenuBarStyle::stacked, "stacked", "Stacked", ""},
    {MenuBarStyle::graph, "graph", "With graph", ""},
});

inline constexpr auto popoverCards = std::to_array<Choice<PopoverCard>>({
    {PopoverCard::cpu, "cpu", "CPU", "cpu"},
    {PopoverCard::memory, "memory", "Memory", "memorychip"},
    {PopoverCard::network, "network", "Network", "network"},
    {PopoverCard::disk, "disk", "Disk", "internaldrive"},
    {PopoverCard::gpu, "gpu", "GPU", "display"},
    {PopoverCard::sensors, "sensors", "Sensors", "thermometer.medium"},
    {PopoverCard::battery, "battery", "Battery", "battery.75percent"},
    {PopoverCard::accessories, "accessories", "Bluetooth accessories", "dot.radiowaves.left.and.right"},
});

inline constexpr auto settingsTabs = std::to_array<Choice<SettingsTab>>({
    {SettingsTab::general, "general", "General", "gearshape"},
    {SettingsTab::menuBar, "menuBar", "Menu Bar", "menubar.rectangle"},
    {SettingsTab::popover, "popover", "Popover", "rectangle.stack"},
    {SettingsTab::alerts, "alerts", "Alerts", "bell.badge"},
});

inline constexpr auto temperatureUnits = std::to_array<Choice<TemperatureUnit>>({
    {TemperatureUnit::celsius, "celsius", "°C", ""},
    {TemperatureUnit::fahrenheit, "fahrenheit", "°F", ""},
});

inline constexpr auto networkUnits = std::to_array<Choice<NetworkUnit>>({
    {NetworkUnit::bytes, "bytes", "Bytes", ""},
    {NetworkUnit::bits, "bits", "Bits", ""},
});

inline constexpr auto memoryUnits = std::to_array<Choice<MemoryUnit>>({
    {MemoryUnit::gb, "gb", "GB", ""},
    {MemoryUnit::gib, "gib", "GiB", ""},
});

inline constexpr auto diskModuleContents = std::to_array<Choice<DiskModuleShows>>({
    {DiskModuleShows::used, "used", "Space in use", ""},
    {DiskModuleShows::rates, "rates", "Read and write", ""},
});

inline constexpr auto temperatureModuleContents = std::to_array<Choice<TemperatureModuleShows>>({
    {TemperatureModuleShows::mean, "mean", "Mean", ""},
    {TemperatureModuleShows::hottest, "hottest", "Hottest", ""},
});

/// The case whose raw value is exactly `rawValue`, letter case included.
template<typename Case, std::size_t N>
constexpr std::optional<Case> choiceNamed(const std::array<Choice<Case>, N>& choices, std::string_view rawValue) {
    for (const auto& choice : choices)
        if (choice.rawValue == rawValue)
            return choice.value;
    return std::nullopt;
}

/// Every table above lists its cases in declaration order.
template<typename Case, std::size_t N>
constexpr const Choice<Case>& choiceOf(const std::array<Choice<Case>, N>& choices, Case value) {
    return choices[static_cast<std::size_t>(value)];
}

} // namespace vantrix
