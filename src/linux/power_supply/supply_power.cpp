#include "linux/power_supply/supply_power.h"

#include <cmath>

namespace vantrix {

SupplyPower::SupplyPower(const std::string& folder, const std::string& stateFile, const std::string& state)
    : stateFile_(folder + '/' + stateFile), state_(state + '\n'), power_(folder + "/power_now"),
      current_(folder + "/current_now"), voltage_(folder + "/voltage_now") {}

std::optional<double> SupplyPower::read() {
    if (stateFile_.read() != state_)
        return std::nullopt;
    if (const auto power = readNumber(power_))
        return std::abs(*power) * 1e-6; // microwatts
    const auto current = readNumber(current_);
    const auto voltage = readNumber(voltage_);
    if (!current || !voltage)
        return std::nullopt;
    return std::abs(*current * *voltage) * 1e-12; // microamperes, microvolts
}

} // namespace vantrix
