#pragma once

#include <memory>
#include <optional>
#include <string>

#include "linux/kernel/device_threads.h"
#include "linux/kernel/rescan_schedule.h"
#include "linux/power_supply/battery_packs.h"
#include "linux/power_supply/supply_reading.h"
#include "samplers/battery_sampler.h"

namespace vantrix {

/// The machine's battery from /sys/class/power_supply, as one power source. Packs and adapters that come are noticed
/// at the `pace`, those that go at once.
class LinuxBatterySource : public BatterySampler::Source {
  public:
    LinuxBatterySource(const std::string& sys, std::shared_ptr<const Clock> clock,
                       std::shared_ptr<DeviceThreads> threads = std::make_shared<DeviceThreads>(),
                       RescanSchedule::Pace pace = RescanSchedule::quick)
        : clock_(std::move(clock)), threads_(std::move(threads)), schedule_({sys + "/class/power_supply"}, pace) {}

    std::optional<std::span<const Properties>> powerSources() override;
    const Properties* smartBattery() override;

  private:
    void findSupplies();

    std::shared_ptr<const Clock> clock_;
    std::shared_ptr<DeviceThreads> threads_;
    RescanSchedule schedule_;
    std::shared_ptr<SharedSupplyReading> shared_;
    std::optional<TimedSensor> sensor_; // absent on a machine without packs
    SupplyReading reading_;
    std::optional<BatteryPacks> combined_;
};

} // namespace vantrix
