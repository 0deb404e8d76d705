#include "linux/power_supply/linux_battery_source.h"

#include "linux/kernel/kernel_tree.h"
#include "linux/sensors/supply_kind.h"

namespace vantrix {

std::optional<std::span<const Properties>> LinuxBatterySource::powerSources() {
    if (schedule_.isDue())
        findSupplies();
    combined_.reset();
    if (!sensor_ || !sensor_->value())
        return std::span<const Properties>();
    shared_->copyTo(reading_);
    if (reading_.packs.empty())
        return std::span<const Properties>();
    combined_ = combinePacks(reading_.packs, reading_.isExternalOnline);
    return std::span<const Properties>(&combined_->source, 1);
}

const Properties* LinuxBatterySource::smartBattery() {
    return combined_ ? &combined_->battery : nullptr;
}

void LinuxBatterySource::findSupplies() {
    std::vector<std::string> packs;
    std::vector<std::string> externals;
    const KernelFolder& folder = schedule_.folders().front();
    for (const std::string& name : folder.names()) {
        const std::string supply = pathBelow(folder.path(), name);
        const auto kind = supplyKind(supply);
        if (kind == SupplyKind::battery)
            packs.push_back(supply);
        else if (kind == SupplyKind::external)
            externals.push_back(supply);
    }
    sensor_.reset();
    if (packs.empty())
        return;
    shared_ = std::make_shared<SharedSupplyReading>(); // a look under way may still hold the old one
    sensor_.emplace(std::make_unique<SupplyProbe>(packs, externals, shared_), std::make_shared<DeviceThread>(threads_),
                    clock_);
}

} // namespace vantrix
