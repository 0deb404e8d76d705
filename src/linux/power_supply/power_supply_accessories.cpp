#include "linux/power_supply/power_supply_accessories.h"

#include <optional>
#include <utility>

#include "linux/kernel/kernel_tree.h"
#include "linux/kernel/text_scan.h"
#include "linux/power_supply/accessory_name.h"
#include "linux/sensors/sensor_files.h"
#include "linux/sensors/supply_kind.h"
#include "support/integer.h"

namespace vantrix {
namespace {

std::string addressOf(const std::string& supply, const std::string& entry) {
    const std::string address = findAddress(entry);
    return address.empty() ? findAddress(ueventValue(readStart(supply + "/device/uevent").value_or(""), "HID_UNIQ"))
                           : address;
}

/// For a word of the file capacity_level the percentage that upower shows for it; absent for "Unknown" and unheard
/// ones.
std::optional<int> percentOfLevel(std::string_view word) {
    constexpr std::pair<std::string_view, int> levels[] = {
        {"Critical", 5}, {"Low", 10}, {"Normal", 55}, {"High", 70}, {"Full", 100}};
    for (const auto& [name, percent] : levels) {
        if (word == name)
            return percent;
    }
    return std::nullopt;
}

/// Absent when the device has not told its level yet: most drivers then say 0 %, in a state that they do not know.
std::optional<int> levelOf(const std::string& supply, std::string_view status) {
    const auto percent = parseInteger(readName(supply + "/capacity"));
    const bool isTold = percent && (*percent > 0 || (*percent == 0 && status != "Unknown"));
    return isTold ? boundedPercent(*percent) : percentOfLevel(readName(supply + "/capacity_level"));
}

/// A wireless device keeps its entry while it is switched off, or out of reach of its receiver.
bool isThere(const std::string& supply) {
    return readName(supply + "/online") != "0" && readName(supply + "/present") != "0";
}

} // namespace

AccessoriesSampler::Scan PowerSupplyAccessories::scan() {
    Scan scan;
    std::vector<std::string> others;
    for (const std::string& entry : suppliesOf(sys_, SupplyKind::accessory)) {
        const std::string supply = sys_ + "/class/power_supply/" + entry;
        if (!isThere(supply))
            continue;
        AccessoryName name = accessoryName(supply, entry);
        const std::string status = readName(supply + "/status");
        const auto level = levelOf(supply, status);
        if (!level) {
            others.push_back(std::move(name.text));
            continue;
        }
        scan.accessories.push_back({{std::move(name.text), *level, status == "Charging", std::move(name.symbol)},
                                    addressOf(supply, entry),
                                    entry,
                                    name.isOwn});
    }
    scan.diagnostics = accessoriesDiagnostics("power_supply", scan.accessories, others);
    return scan;
}

} // namespace vantrix
