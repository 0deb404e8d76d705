#include "macos/mac_accessories.h"

#include "accessories/reported_devices.h"
#include "macos/kernel/autorelease_pool.h"
#include "macos/kernel/cf_values.h"
#include "macos/kernel/program_output.h"
#include "macos/kernel/registry.h"

namespace vantrix {
namespace {

/// Calls `visit` for every dictionary in the array, which may be null.
template<typename Visit>
void forEachDictionary(CFArrayRef array, Visit visit) {
    for (CFIndex i = 0; array && i < CFArrayGetCount(array); ++i) {
        if (const auto dictionary = as<CFDictionaryRef>(CFArrayGetValueAtIndex(array, i)))
            visit(dictionary);
    }
}

/// Adds the devices of a dictionary that is keyed by name.
void addDevices(CFDictionaryRef dictionary, PropertyTable& table, ReportedDevices& devices) {
    std::vector<const void*> names(static_cast<std::size_t>(CFDictionaryGetCount(dictionary)));
    std::vector<const void*> values(names.size());
    CFDictionaryGetKeysAndValues(dictionary, names.data(), values.data());
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto name = textOf(names[i]);
        const auto described = as<CFDictionaryRef>(values[i]);
        if (name && described)
            devices.addBluetoothDevice(*name, table.add(described));
    }
}

/// Asks for a property list: the readable report is in the user's language.
std::optional<ReportedDevices> readReport(const std::string& profiler, std::chrono::milliseconds patience) {
    const auto text = programOutput({profiler, "SPBluetoothDataType", "-xml"}, patience);
    if (!text)
        return std::nullopt;
    const CFRef data(CFDataCreate(kCFAllocatorDefault, reinterpret_cast<const UInt8*>(text->data()),
                                  static_cast<CFIndex>(text->size())));
    if (!data)
        return std::nullopt;
    const CFRef list(
        CFPropertyListCreateWithData(kCFAllocatorDefault, data.get(), kCFPropertyListImmutable, nullptr, nullptr));
    const auto parts = as<CFArrayRef>(list.get());
    if (!parts)
        return std::nullopt;
    PropertyTable table{"device_address",          "device_minorType",         "device_batteryLevelMain",
                        "device_batteryLevelLeft", "device_batteryLevelRight", "device_batteryLevelCase"};
    ReportedDevices devices;
    forEachDictionary(parts, [&](CFDictionaryRef part) {
        forEachDictionary(valueAt<CFArrayRef>(part, CFSTR("_items")), [&](CFDictionaryRef item) {
            forEachDictionary(valueAt<CFArrayRef>(item, CFSTR("device_connected")),
                              [&](CFDictionaryRef connected) { addDevices(connected, table, devices); });
        });
    });
    return devices;
}

ReportedDevices readInputDevices() {
    PropertyTable table{"Product", "BatteryPercent", "DeviceAddress"};
    ReportedDevices devices;
    forEachService("AppleDeviceManagementHIDEventService",
                   [&](const IOObject& service) { devices.addInputDevice(table.add(propertiesOf(service).get())); });
    return devices;
}

} // namespace

AccessoriesSampler::Scan MacAccessories::scan() {
    const AutoreleasePool pool;
    return scanOf(readReport(profiler_, patience_), readInputDevices());
}

} // namespace vantrix
