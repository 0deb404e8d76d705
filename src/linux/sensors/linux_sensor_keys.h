#pragma once

#include <memory>
#include <string>

#include "linux/sensors/hwmon_fans.h"
#include "linux/sensors/power_totals.h"
#include "sensors/sensor_keys.h"

namespace vantrix {

/// Answers the keys of a controller that this machine lacks: "FNum", "F0Ac", "F0Mn", "F0Mx" and so on from its fans,
/// "PSTR" from the power it draws, "PDTR" from that of its adapter. "FNum" begins a pass. Temperatures have no keys
/// here: they are all in the list of sensors.
class LinuxSensorKeys : public SensorKeys {
  public:
    LinuxSensorKeys(const std::string& sys, const std::shared_ptr<const Clock>& clock,
                    const std::shared_ptr<DeviceThreads>& threads = std::make_shared<DeviceThreads>())
        : fans_(sys, clock, threads), powers_(sys, clock, threads) {}

    std::optional<double> value(std::string_view key) override;

  private:
    std::optional<double> fanValue(std::string_view key);

    HwmonFans fans_;
    PowerTotals powers_;
};

} // namespace vantrix
