#pragma once

#include <optional>
#include <string>

#include "linux/kernel/autosuspend_grid.h"
#include "linux/kernel/kernel_file.h"

namespace vantrix {

enum class GPUPower { awake, asleep, unknown };

/// Whether a GPU is awake, from power/runtime_status below its device. The kernel answers that itself, so the question
/// wakes nothing; any other file of the device may.
class GPUPowerFile {
  public:
    explicit GPUPowerFile(const std::string& device) : status_(device + "/power/runtime_status") {}

    GPUPower read() {
        const auto status = status_.read();
        if (status == "active\n")
            return GPUPower::awake;
        if (status == "suspended\n" || status == "suspending\n")
            return GPUPower::asleep;
        return GPUPower::unknown; // above all "unsupported": without runtime power management
    }

  private:
    KernelFile status_;
};

/// Leaves an idle GPU alone between the lines of its grid.
class GPURest {
  public:
    static constexpr double idle = 0.5; ///< percent; below this nothing is done

    explicit GPURest(const std::string& device) : grid_(device, usualDelay) {}

    /// Asked once on each pass that finds the GPU awake. True while it is to be left alone; `now` in seconds.
    bool isDue(double now) {
        const bool isBetweenLines = grid_.isBetweenLines(now);
        return isIdle_ && isBetweenLines;
    }
    /// Takes note of the load, in percent, that was just read. A GPU that does not tell it twice in a row counts as
    /// idle.
    void note(std::optional<double> percent) {
        isIdle_ = percent ? *percent < idle : isSilent_;
        isSilent_ = !percent;
    }
    void end() { isIdle_ = isSilent_ = false; }

    bool mayFallAsleep() const { return grid_.mayFallAsleep(); }
    void forgetScreens() { grid_.forgetScreens(); }

  private:
    static constexpr double usualDelay = 5.0; // seconds

    AutosuspendGrid grid_;
    bool isIdle_ = false;
    bool isSilent_ = false;
};

} // namespace vantrix
