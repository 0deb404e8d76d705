#include "menubar/menu_bar_item.h"

#include <algorithm>
#include <array>

#include "menubar/preferences.h"
#include "monitor/readings.h"
#include "support/localization.h"
#include "support/text_format.h"
#include "support/user_defaults.h"

namespace vantrix {
namespace {

constexpr double leastNetworkScale = 100'000.0; // bytes per second: an idle line draws as one
constexpr double leastDiskScale = 1'000'000.0;
constexpr double diskWarningMargin = 0.07; // below the disk threshold
constexpr double temperatureScale = 110.0; // °C
constexpr double hot = 90.0;
constexpr double warm = 80.0;
constexpr int batteryLow = 20; // percent
constexpr int batteryCritical = 10;

std::vector<double> scaledHistory(const History& history, double scale) {
    std::vector<double> scaled(history.size());
    std::transform(history.begin(), history.end(), scaled.begin(),
                   [scale](double value) { return std::clamp(value / scale, 0.0, 1.0); });
    return scaled;
}

MenuBarSeverity reached(double value, double critical, double warning) {
    if (critical <= value)
        return MenuBarSeverity::critical;
    return warning <= value ? MenuBarSeverity::warning : MenuBarSeverity::normal;
}

MenuBarItem percentItem(std::string label, double fraction, MenuBarSeverity severity, History history) {
    return {std::move(label), {compactPercent(fraction)}, severity, std::move(history), fraction, "100%"};
}

/// Two rates, with a graph of the first up to its peak.
MenuBarItem ratesItem(std::string label, std::vector<std::string> lines, const History& history, double leastScale,
                      std::string reference) {
    double scale = leastScale;
    for (double rate : history)
        scale = std::max(scale, rate);
    return {std::move(label),    std::move(lines), MenuBarSeverity::normal, scaledHistory(history, scale), 0.0,
            std::move(reference)};
}

std::optional<MenuBarItem> cpuItem(const Readings& readings, const UserDefaults& defaults) {
    const double load = readings.cpu.total;
    return percentItem("CPU", load, severityOf(load, defaults), readings.cpuHistory);
}

std::optional<MenuBarItem> memoryItem(const Readings& readings, const UserDefaults&) {
    // Only the system knows when memory is scarce: a full one may well be healthy.
    const auto severity = static_cast<MenuBarSeverity>(readings.memory.pressure);
    return percentItem("RAM", usedFraction(readings.memory), severity, readings.memoryHistory);
}

std::optional<MenuBarItem> networkItem(const Readings& readings, const UserDefaults& defaults) {
    if (!readings.network.isThere)
        return std::nullopt;
    const NetworkUnit unit = units(defaults).network;
    return ratesItem(
        "NET", {"↓" + compactRate(readings.network.download, unit), "↑" + compactRate(readings.network.upload, unit)},
        readings.downloadHistory, leastNetworkScale, unit == NetworkUnit::bits ? "↓999Mb" : "↓99M");
}

MenuBarItem diskRatesItem(const Readings& readings) {
    const auto line = [](const char* what, const std::optional<double>& rate) {
        return what + compactRate(rate.value_or(0.0), NetworkUnit::bytes);
    };
    return ratesItem(localized("DISK"), {line("R ", readings.disk.readRate), line("W ", readings.disk.writeRate)},
                     readings.diskReadHistory, leastDiskScale, "W 999M");
}

std::optional<MenuBarItem> diskItem(const Readings& readings, const UserDefaults& defaults) {
    if (chosen(defaults, preference_key::diskModuleShows, diskModuleContents) == DiskModuleShows::rates)
        return diskRatesItem(readings);
    if (readings.disk.total == 0)
        return std::nullopt;
    const double used = usedFraction(readings.disk);
    const double threshold = defaults.number(preference_key::diskAlertThreshold);
    return percentItem(localized("DISK"), used, reached(used, threshold, threshold - diskWarningMargin), {});
}

std::optional<MenuBarItem> gpuItem(const Readings& readings, const UserDefaults& defaults) {
    if (!readings.gpu)
        return std::nullopt;
    return percentItem("GPU", *readings.gpu, severityOf(*readings.gpu, defaults), readings.gpuHistory);
}

std::optional<MenuBarItem> temperatureItem(const Readings& readings, const UserDefaults& defaults) {
    const SensorsSample& sensors = readings.sensors;
    const bool hottest = chosen(defaults, preference_key::temperatureModuleShows, temperatureModuleContents) ==
                         TemperatureModuleShows::hottest;
    const auto& shown = hottest && sensors.cpuHottest ? sensors.cpuHottest : sensors.cpu;
    if (!shown)
        return std::nullopt;
    const double celsius = *shown;
    return MenuBarItem{"TEMP",
                       {roundedInteger(inUnit(celsius, units(defaults).temperature)) + "°"},
                       reached(celsius, hot, warm),
                       scaledHistory(readings.cpuTemperatureHistory, temperatureScale),
                       std::clamp(celsius / temperatureScale, 0.0, 1.0),
                       "100°"};
}

MenuBarSeverity severityOf(const BatterySample& battery) {
    if (battery.isCharging || battery.isPluggedIn)
        return MenuBarSeverity::normal;
    if (battery.percent <= batteryCritical)
        return MenuBarSeverity::critical;
    return battery.percent <= batteryLow ? MenuBarSeverity::warning : MenuBarSeverity::normal;
}

std::optional<MenuBarItem> batteryItem(const Readings& readings, const UserDefaults&) {
    if (!readings.battery)
        return std::nullopt;
    const BatterySample& battery = *readings.battery;
    return MenuBarItem{localized(battery.isCharging ? "CHG" : "BAT"),
                       {std::to_string(battery.percent) + '%'},
                       severityOf(battery),
                       {},
                       battery.percent / 100.0,
                       "100%"};
}

/// In the order of the modules. An item is absent when there is nothing to show.
constexpr std::array itemMakers{cpuItem, memoryItem, networkItem, diskItem, gpuItem, temperatureItem, batteryItem};
static_assert(itemMakers.size() == menuBarModules.size());

} // namespace

MenuBarSeverity severityOf(double fraction, const UserDefaults& defaults) {
    const double critical = defaults.number(preference_key::criticalThreshold);
    const double warning = defaults.number(preference_key::warningThreshold);
    return reached(fraction, critical, warning);
}

std::vector<MenuBarItem> menuBarItems(const std::vector<MenuBarModule>& modules, const Readings& readings,
                                      const UserDefaults& defaults) {
    std::vector<MenuBarItem> items;
    items.reserve(modules.size());
    for (MenuBarModule module : modules) {
        auto item = itemMakers[static_cast<std::size_t>(module)](readings, defaults);
        if (!item)
            continue;
        item->module = module;
        items.push_back(std::move(*item));
    }
    return items;
}

std::string valueText(const MenuBarItem& item) {
    std::string text;
    for (const std::string& line : item.lines)
        text += (text.empty() ? "" : " ") + line;
    return text;
}

std::string itemText(const MenuBarItem& item) {
    return item.label + ' ' + valueText(item);
}

std::string accessibilityLabel(const std::vector<MenuBarItem>& items) {
    std::string text;
    for (const MenuBarItem& item : items)
        appendToList(text, itemText(item));
    return text;
}

} // namespace vantrix
