#pragma once

#include <memory>
#include <string>
#include <vector>

#include "linux/kernel/device_rest.h"
#include "linux/kernel/device_threads.h"
#include "linux/kernel/rescan_schedule.h"
#include "linux/kernel/timed_value.h"
#include "linux/sensors/hwmon_chips.h"
#include "sensors/hid_temperature_sampler.h"

namespace vantrix {

/// Temperatures of <sys>/class/hwmon, and of <sys>/class/thermal where no chip is the processor's. Devices that sleep
/// are not asked, nor are idle ones that are to fall asleep. "GPU NVIDIA", "GPU 2 NVIDIA" and so on end the list: what
/// `nvidia` holds.
class LinuxTemperatures : public HIDTemperatureSampler::Source {
  public:
    LinuxTemperatures(std::string sys, std::shared_ptr<const Clock> clock,
                      std::shared_ptr<const TimedValues> nvidia = nullptr,
                      std::shared_ptr<DeviceThreads> threads = std::make_shared<DeviceThreads>());

    bool read(std::vector<HIDTemperatureSampler::Service>& services) override;

  private:
    struct Chip {
        DeviceRest rest;
        DeviceRest::State state = DeviceRest::State::awake;
    };

    struct Sensor : KeptSensor {
        std::size_t chip = 0;
    };

    void search();
    HIDTemperatureSampler::Service ofNvidia(std::size_t place, double now) const;
    std::optional<double> readSensor(Sensor& sensor, double& now, bool& failed);

    std::string sys_;
    std::shared_ptr<const Clock> clock_;
    std::shared_ptr<const TimedValues> nvidia_; // may be null
    std::shared_ptr<DeviceThreads> threads_;
    RescanSchedule schedule_;
    std::vector<Chip> chips_;
    std::vector<Sensor> sensors_;
};

} // namespace vantrix
