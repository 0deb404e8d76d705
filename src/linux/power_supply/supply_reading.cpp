#include "linux/power_supply/supply_reading.h"

#include <utility>

#include "linux/kernel/kernel_tree.h"
#include "linux/power_supply/battery_packs.h"
#include "support/integer.h"

namespace vantrix {

void SharedSupplyReading::exchange(SupplyReading& reading) {
    const std::lock_guard lock(mutex_);
    std::swap(reading_, reading);
}

void SharedSupplyReading::copyTo(SupplyReading& reading) const {
    const std::lock_guard lock(mutex_);
    reading = reading_;
}

SupplyProbe::SupplyProbe(const std::vector<std::string>& packs, const std::vector<std::string>& externals,
                         std::shared_ptr<SharedSupplyReading> shared)
    : shared_(std::move(shared)) {
    for (const std::string& folder : packs)
        packs_.emplace_back(folder);
    for (const std::string& folder : externals) {
        External external{KernelFile(folder + "/online"), std::nullopt};
        if (pathExists(folder + "/scope"))
            external.scope.emplace(folder + "/scope");
        externals_.push_back(std::move(external));
    }
}

std::optional<double> SupplyProbe::read() {
    readPacks();
    readExternals();
    shared_->exchange(reading_);
    return 1.0;
}

void SupplyProbe::readPacks() {
    reading_.packs.clear();
    for (PowerSupply& pack : packs_) {
        const auto state = pack.read();
        const bool isInBay = state && (*state)[SupplyState::present].value_or(1) != 0;
        if (isInBay && tellsLevel(*state))
            reading_.packs.push_back(*state);
    }
}

void SupplyProbe::readExternals() {
    reading_.isExternalOnline.reset();
    for (External& external : externals_) {
        if (const auto isOnline = external.isOnline())
            reading_.isExternalOnline = reading_.isExternalOnline.value_or(false) || *isOnline;
    }
}

/// Absent when it cannot be told, and while power goes out.
std::optional<bool> SupplyProbe::External::isOnline() {
    const auto text = online.read();
    if (!text || (scope && scope->read() == "Device\n"))
        return std::nullopt;
    return parseIntegerLine(*text).value_or(0) > 0; // 2 is a port that adapts its voltage
}

} // namespace vantrix
