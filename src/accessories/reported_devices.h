#pragma once

#include <optional>
#include <string>
#include <vector>

#include "accessories/accessories_sampler.h"
#include "support/properties.h"

namespace vantrix {

/// The devices that one origin of a scan lists.
struct ReportedDevices {
    std::vector<AccessoryReading> accessories; ///< with a level, in the order of their mention
    std::vector<std::string> others;           ///< names of those without one

    /// A connected device of the system profiler's Bluetooth report, by the report's keys, which are the same in every
    /// language: texts under "device_address", "device_minorType" ("Headphones"), and levels like "57%" under
    /// "device_batteryLevelMain", "…Left", "…Right" and "…Case".
    void addBluetoothDevice(const std::string& name, const Properties& values);

    /// An input device of the I/O registry: "Product", "BatteryPercent" and "DeviceAddress". One without a name is left
    /// out.
    void addInputDevice(const Properties& values);
};

/// Both origins in one list. Where both have a device, the registry's level stands: it is newer. `report` is absent
/// when there was none.
AccessoriesSampler::Scan scanOf(const std::optional<ReportedDevices>& report, const ReportedDevices& inputDevices);

} // namespace vantrix
