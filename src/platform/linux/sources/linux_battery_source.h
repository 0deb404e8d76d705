#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/linux/sources/battery_packs.h"
#include "platform/linux/sources/kernel_folder.h"
#include "platform/linux/sources/power_supply.h"
#include "samplers/battery_sampler.h"

namespace vantrix {

/// The machine's battery from /sys/class/power_supply, as one power source. Packs and adapters that come are
/// noticed within `listingPeriod` passes, those that go at once.
class LinuxBatterySource : public BatterySampler::Source {
  public:
    explicit LinuxBatterySource(const std::string& sys, int listingPeriod = KernelFolder::usualPeriod)
        : folder_(sys + "/class/power_supply", listingPeriod) {}

    std::optional<std::span<const Properties>> powerSources() override;
    const Properties* smartBattery() override;

  private:
    struct External {
        KernelFile online;
        std::optional<KernelFile> scope; ///< of ports that may give power as well as take it

        std::optional<bool> isOnline();
    };

    void findSupplies();
    void addExternal(const std::string& supply);
    void readPacks();
    std::optional<bool> isExternalOnline();

    KernelFolder folder_;
    std::vector<PowerSupply> packs_;
    std::vector<External> externals_;
    std::vector<SupplyState> states_;
    std::optional<BatteryPacks> combined_;
};

} // namespace vantrix
