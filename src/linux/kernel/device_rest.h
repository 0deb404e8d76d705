#pragma once

#include <optional>
#include <string>
#include <vector>

#include "linux/kernel/autosuspend_grid.h"
#include "linux/kernel/kernel_file.h"

namespace vantrix {

/// Whether a device may be asked without waking it or keeping it from falling asleep.
class DeviceRest {
  public:
    enum class State {
        awake,
        idle,   ///< to be left alone on this pass: the last value counts
        asleep, ///< or gone
    };

    /// Seconds for which the last value of an idle device still counts.
    static constexpr double longestBridge = 60.0;

    /// `device` is the folder of the device behind a chip. One that has to carry out a command for each question is
    /// asked only every `interval` seconds. A spinning disk is asked only after it did something, so that it may spin
    /// down.
    explicit DeviceRest(const std::string& device, bool isDrive = false, double interval = 0.0);

    /// Reads power states, a drive's SCSI state and a spinning disk's statistics, none of which reach the device. Asked
    /// once on each pass; `now` in seconds. A caller that is told `awake` asks the device.
    State look(double now);

  private:
    struct Power {
        KernelFile status;
        AutosuspendGrid grid;
    };

    bool isAsleep();
    bool isBetweenLines(double now);
    bool isIdleDisk();

    std::vector<Power> powers_;
    std::optional<KernelFile> scsiState_;
    std::optional<KernelFile> statistics_;
    std::string lastStatistics_;
    double interval_;
    double nextQuestion_ = 0.0;
};

} // namespace vantrix
