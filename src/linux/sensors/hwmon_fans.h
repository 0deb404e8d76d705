#pragma once

#include <atomic>
#include <cmath>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "linux/kernel/device_rest.h"
#include "linux/kernel/device_threads.h"
#include "linux/kernel/rescan_schedule.h"
#include "linux/sensors/hwmon_chips.h"

namespace vantrix {

/// Fans of <sys>/class/hwmon, in the order of their chips; those that stood still when they were found come last,
/// since boards list connectors that no fan is plugged into.
class HwmonFans {
  public:
    HwmonFans(std::string sys, std::shared_ptr<const Clock> clock, std::shared_ptr<DeviceThreads> threads);

    /// To be called once at the beginning of each pass.
    void beginPass();

    int count() const { return static_cast<int>(fans_.size()); }

    /// Revolutions per minute of one of `count` fans; absent when it cannot be read or its device sleeps. The limits
    /// are known once it was read.
    std::optional<double> speed(int fan);
    std::optional<double> minimum(int fan) const { return limits(fan).minimum.value(); }
    std::optional<double> maximum(int fan) const { return limits(fan).maximum.value(); }

  private:
    struct Chip {
        DeviceRest rest;
        DeviceRest::State state = DeviceRest::State::asleep;
    };

    /// Set where the fan is read, which may be on another thread.
    class Limit {
      public:
        void set(std::optional<double> rpm) { rpm_ = rpm.value_or(std::numeric_limits<double>::quiet_NaN()); }
        std::optional<double> value() const {
            const double rpm = rpm_;
            return std::isnan(rpm) ? std::nullopt : std::optional(rpm);
        }

      private:
        std::atomic<double> rpm_ = std::numeric_limits<double>::quiet_NaN();
    };

    struct Limits {
        Limit minimum;
        Limit maximum;
    };

    class Probe;

    struct Fan : KeptSensor {
        std::size_t chip = 0;
        std::shared_ptr<const Limits> limits;
        bool didTurn = false;
    };

    const Limits& limits(int fan) const { return *fans_[static_cast<std::size_t>(fan)].limits; }
    void search();
    Fan makeFan(const std::string& path, std::shared_ptr<Background> background, bool isAwake) const;

    std::string sys_;
    std::shared_ptr<const Clock> clock_;
    std::shared_ptr<DeviceThreads> threads_;
    RescanSchedule schedule_;
    std::vector<Chip> chips_;
    std::vector<Fan> fans_;
};

} // namespace vantrix
