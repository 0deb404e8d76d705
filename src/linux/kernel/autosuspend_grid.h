#pragma once

#include <optional>
#include <string>
#include <vector>

#include "linux/kernel/kernel_file.h"

namespace vantrix {

/// When a device that falls asleep by itself is asked. Every question starts its autosuspend delay anew, so all who
/// have questions keep to the lines of one grid of time, between which the device can reach the end of its delay.
class AutosuspendGrid {
  public:
    static constexpr double longestPeriod = 12.0; ///< seconds from line to line

    /// `device` is its folder, of which nothing is opened yet. Without a `usualDelay`, in seconds, a device that tells
    /// no delay needs no grid.
    explicit AutosuspendGrid(const std::string& device, std::optional<double> usualDelay = {});

    /// Asked once on each pass that finds the device awake; `now` in seconds. True when the device may fall asleep and
    /// no line was passed since the last call. Its power settings are read where one was, and so are boot_vga and the
    /// states of the screens: a GPU that drives one stays awake anyhow. None of them reach the device.
    bool isBetweenLines(double now);

    /// As of the last line.
    bool mayFallAsleep() const { return mayFallAsleep_; }

    /// To be called when screens may have come or gone.
    void forgetScreens() { screens_.reset(); }

  private:
    std::optional<double> readDelay();
    bool drivesScreen();

    std::string device_;
    std::optional<double> usualDelay_;
    KernelFile control_;
    KernelFile delay_;
    KernelFile bootVGA_;
    std::optional<std::vector<KernelFile>> screens_;
    double period_ = longestPeriod;
    double line_ = -1.0;
    bool mayFallAsleep_ = false;
};

} // namespace vantrix
