#pragma once

#include <optional>
#include <string>

#include "linux/sensors/sensor_files.h"

namespace vantrix {

/// Microwatts through a supply, with the sign that its driver gives them: `power` (µW) where that is told, else what
/// `current` (µA) and `voltage` (µV) make.
std::optional<double> supplyFlow(std::optional<double> power, std::optional<double> current,
                                 std::optional<double> voltage);

/// Watts through one entry of <sys>/class/power_supply, from power_now or else current_now and voltage_now, whatever
/// their sign; absent unless the file `stateFile` holds `state`: a battery is drained while "status" is "Discharging",
/// an adapter delivers while "online" is "1".
class SupplyPower : public TimedSensor::Probe {
  public:
    SupplyPower(const std::string& folder, const std::string& stateFile, const std::string& state);

    std::optional<double> read() override;

  private:
    KernelFile stateFile_;
    std::string state_;
    KernelFile power_;
    KernelFile current_;
    KernelFile voltage_;
};

} // namespace vantrix
