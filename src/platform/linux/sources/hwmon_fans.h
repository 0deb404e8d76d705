#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/sources/device_rest.h"
#include "platform/linux/sources/hwmon_chips.h"
#include "platform/linux/sources/rescan_schedule.h"

namespace vantrix {

/// Fans of <sys>/class/hwmon, in the order of their chips; those that stood still when they were found come last,
/// since boards list connectors that no fan is plugged into.
class HwmonFans {
  public:
    HwmonFans(std::string sys, std::shared_ptr<const Clock> clock);

    /// To be called once at the beginning of each pass.
    void beginPass();

    int count() const { return static_cast<int>(fans_.size()); }

    /// Revolutions per minute of one of `count` fans; absent when it cannot be read or its device sleeps. The limits
    /// are known once the speed was asked for.
    std::optional<double> speed(int fan);
    std::optional<double> minimum(int fan) const { return fans_[static_cast<std::size_t>(fan)].minimum; }
    std::optional<double> maximum(int fan) const { return fans_[static_cast<std::size_t>(fan)].maximum; }

  private:
    struct Chip {
        DeviceRest rest;
        bool isAwake = false;
    };

    struct Fan : KeptSensor {
        std::size_t chip = 0;
        std::optional<double> minimum;
        std::optional<double> maximum;
        bool hasLimits = false;
        bool didTurn = false;
    };

    void search();
    Fan makeFan(const std::string& path, std::shared_ptr<Background> background, bool isAwake) const;

    std::string sys_;
    std::shared_ptr<const Clock> clock_;
    RescanSchedule schedule_;
    std::vector<Chip> chips_;
    std::vector<Fan> fans_;
};

} // namespace vantrix
