#pragma once

#include <optional>
#include <string>
#include <vector>

#include "linux/kernel/kernel_file.h"

namespace vantrix {

/// When to ask a device that falls asleep by itself. Every question restarts its autosuspend delay, so everybody asks
/// at the same points in time, the lines of a grid, which are far enough apart for the delay to run out.
class AutosuspendGrid {
  public:
    static constexpr double longestPeriod = 12.0; ///< seconds from line to line

    /// `device` is its folder; nothing in it is opened yet. `usualDelay`, in seconds, is taken for a device that does
    /// not tell its delay; without it, such a device is taken to stay awake.
    explicit AutosuspendGrid(const std::string& device, std::optional<double> usualDelay = {});

    /// Asked once on each pass that finds the device awake; `now` in seconds. True when the device may fall asleep and
    /// no line was passed since the last call. When one was, its power settings, boot_vga and the states of its screens
    /// are read, since a GPU that drives a screen stays awake anyhow; none of these files reaches the device.
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
