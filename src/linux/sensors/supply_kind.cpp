#include "linux/sensors/supply_kind.h"

#include <algorithm>

#include "linux/kernel/kernel_tree.h"
#include "linux/sensors/sensor_files.h"

namespace vantrix {

SupplyKind supplyKind(const std::string& folder) {
    const std::string type = readName(folder + "/type");
    if (type == "Battery")
        return readName(folder + "/scope") == "Device" ? SupplyKind::accessory : SupplyKind::battery;
    return type == "Mains" || type == "Wireless" || type.starts_with("USB") ? SupplyKind::external : SupplyKind::other;
}

std::vector<std::string> suppliesOf(const std::string& sys, SupplyKind kind) {
    const std::string folder = sys + "/class/power_supply";
    auto entries = entriesStartingWith(folder, "");
    std::erase_if(entries, [&](const std::string& entry) {
        return entry.starts_with('.') || supplyKind(pathBelow(folder, entry)) != kind;
    });
    std::sort(entries.begin(), entries.end());
    return entries;
}

} // namespace vantrix
