#pragma once

#include <string>
#include <string_view>

#include "accessories/accessories_sampler.h"

namespace vantrix {

/// The Bluetooth address somewhere in `text`, in capitals; empty when there is none.
std::string findAddress(std::string_view text);

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
