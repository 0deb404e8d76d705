#include "platform/linux/sources/linux_battery_source.h"

#include "platform/linux/sources/kernel_number.h"
#include "platform/linux/sources/kernel_tree.h"

namespace vantrix {

std::optional<std::span<const Properties>> LinuxBatterySource::powerSources() {
    if (folder_.refresh())
        findSupplies();
    readPacks();
    combined_.reset();
    if (states_.empty())
        return std::span<const Properties>();
    combined_ = combinePacks(states_, isExternalOnline());
    return std::span<const Properties>(&combined_->source, 1);
}

const Properties* LinuxBatterySource::smartBattery() {
    return combined_ ? &combined_->battery : nullptr;
}

void LinuxBatterySource::findSupplies() {
    packs_.clear();
    externals_.clear();
    for (const std::string& name : folder_.names()) {
        const std::string supply = folder_.path() + '/' + name;
        const auto kind = supplyKind(supply);
        if (kind == SupplyKind::battery)
            packs_.emplace_back(supply);
        else if (kind == SupplyKind::external)
            addExternal(supply);
    }
}

void LinuxBatterySource::addExternal(const std::string& supply) {
    External external{KernelFile(supply + "/online"), std::nullopt};
    if (pathExists(supply + "/scope"))
        external.scope.emplace(supply + "/scope");
    externals_.push_back(std::move(external));
}

/// Absent when it cannot be told, and while power goes out.
std::optional<bool> LinuxBatterySource::External::isOnline() {
    const auto text = online.read();
    if (!text || (scope && scope->read() == "Device\n"))
        return std::nullopt;
    return parseNumber(*text).value_or(0) > 0; // 2 is a port that adapts its voltage
}

void LinuxBatterySource::readPacks() {
    states_.clear();
    for (PowerSupply& pack : packs_) {
        const auto state = pack.read();
        const bool isInBay = state && (*state)[SupplyState::present].value_or(1) != 0;
        if (isInBay && tellsLevel(*state))
            states_.push_back(*state);
    }
}

std::optional<bool> LinuxBatterySource::isExternalOnline() {
    std::optional<bool> isAnyOnline;
    for (External& external : externals_) {
        if (const auto isOnline = external.isOnline())
            isAnyOnline = isAnyOnline.value_or(false) || *isOnline;
    }
    return isAnyOnline;
}

} // namespace vantrix
