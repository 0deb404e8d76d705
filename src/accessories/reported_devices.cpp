#include "accessories/reported_devices.h"

#include <algorithm>

#include "accessories/accessory_levels.h"
#include "accessories/accessory_symbol.h"
#include "support/integer.h"

namespace vantrix {
namespace {

/// "57%", "57 %" or "57".
std::optional<int> parsePercent(std::optional<std::string_view> text) {
    if (!text)
        return std::nullopt;
    const auto percent = takeInteger<int>(*text);
    text->remove_prefix(std::min(text->find_first_not_of(' '), text->size()));
    const bool isPercent = percent.value_or(-1) >= 0 && (text->empty() || *text == "%");
    return isPercent ? percent : std::nullopt;
}

void add(ReportedDevices& devices, const std::string& name, std::string_view kind, std::string_view address,
         const AccessoryLevels& levels) {
    // The name comes first: it tells AirPods from other headphones.
    const std::string symbol = symbolForAccessory(name + ' ' + std::string(kind));
    const std::size_t before = devices.accessories.size();
    appendAccessory(devices.accessories, {{name, 0, false, symbol}, std::string(address)}, levels);
    if (devices.accessories.size() == before)
        devices.others.push_back(name);
}

} // namespace

void ReportedDevices::addBluetoothDevice(const std::string& name, const Properties& values) {
    AccessoryLevels levels;
    levels.single = parsePercent(values.text("device_batteryLevelMain"));
    levels.left = parsePercent(values.text("device_batteryLevelLeft"));
    levels.right = parsePercent(values.text("device_batteryLevelRight"));
    levels.box = parsePercent(values.text("device_batteryLevelCase"));
    add(*this, name, values.text("device_minorType").value_or(""), values.text("device_address").value_or(""), levels);
}

void ReportedDevices::addInputDevice(const Properties& values) {
    const auto name = values.text("Product");
    if (!name)
        return;
    AccessoryLevels levels;
    if (const auto percent = values.integer("BatteryPercent"))
        levels.single = boundedPercent(*percent);
    add(*this, std::string(*name), "", values.text("DeviceAddress").value_or(""), levels);
}

AccessoriesSampler::Scan scanOf(const std::optional<ReportedDevices>& report, const ReportedDevices& inputDevices) {
    const std::string origin = "system_profiler";
    std::string diagnostics =
        report ? accessoriesDiagnostics(origin, report->accessories, report->others) : origin + ": no report";
    diagnostics += " | " + accessoriesDiagnostics("registry", inputDevices.accessories, inputDevices.others);
    return {combineAccessories(report.value_or(ReportedDevices()).accessories, inputDevices.accessories),
            std::move(diagnostics)};
}

} // namespace vantrix
