#pragma once

#include "macos/kernel/cf_values.h"
#include "samplers/battery_sampler.h"

namespace vantrix {

/// The power source service (IOPS…) and AppleSmartBattery in the I/O registry.
class PowerSources : public BatterySampler::Source {
  public:
    std::optional<std::span<const Properties>> powerSources() override;
    const Properties* smartBattery() override;

  private:
    PropertyTable sources_{"Type",          "Current Capacity",   "Max Capacity", "Is Charging", "Power Source State",
                           "Time to Empty", "Time to Full Charge"};
    PropertyTable battery_{"CycleCount", "DesignCapacity", "AppleRawMaxCapacity", "MaxCapacity", "Temperature",
                           "Voltage",    "Amperage",       "InstantAmperage"};
};

} // namespace vantrix
