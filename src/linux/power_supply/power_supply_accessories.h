#pragma once

#include <string>

#include "accessories/accessories_sampler.h"

namespace vantrix {

/// Batteries of keyboards, mice, styluses and gamepads from the entries of /sys/class/power_supply that belong to a
/// device. A scan may wait for answers over USB or radio.
class PowerSupplyAccessories : public AccessoriesSampler {
  public:
    explicit PowerSupplyAccessories(std::string sys) : sys_(std::move(sys)) {}

    Scan scan() override;

  private:
    std::string sys_;
};

} // namespace vantrix
