#include "linux/sensors/supply_power.h"

#include <cmath>

namespace vantrix {

std::optional<double> supplyFlow(std::optional<double> power, std::optional<double> current,
                                 std::optional<double> voltage) {
    if (power || !current || !voltage)
        return power;
    return *current * *voltage * 1e-6;
}

SupplyPower::SupplyPower(const std::string& folder, const std::string& stateFile, const std::string& state)
    : stateFile_(folder + '/' + stateFile), state_(state + '\n'), power_(folder + "/power_now"),
      current_(folder + "/current_now"), voltage_(folder + "/voltage_now") {}

std::optional<double> SupplyPower::read() {
    if (stateFile_.read() != state_)
        return std::nullopt;
    auto flow = readNumber(power_);
    if (!flow) // the other files may be slow to read, too
        flow = supplyFlow({}, readNumber(current_), readNumber(voltage_));
    return flow ? std::optional(std::abs(*flow) * 1e-6) : std::nullopt;
}

} // namespace vantrix
