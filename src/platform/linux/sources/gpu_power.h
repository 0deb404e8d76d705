#pragma once

#include <string>

#include "platform/linux/sources/kernel_file.h"

namespace vantrix {

enum class GPUPower { awake, asleep, unknown };

/// Whether a GPU is awake, from power/runtime_status below its device. The kernel answers that itself, so the question
/// wakes nothing; any other file of the device may.
class GPUPowerFile {
  public:
    explicit GPUPowerFile(const std::string& device) : status_(device + "/power/runtime_status") {}

    GPUPower read();

  private:
    KernelFile status_;
};

/// Rest for an idle GPU. Every question put to a GPU starts its autosuspend delay anew, so one that is asked on every
/// pass never falls asleep: after it was found idle it is left alone until it had the time to.
class GPURest {
  public:
    explicit GPURest(const std::string& device);

    /// True while the GPU is to be left alone; `now` in seconds.
    bool isDue(double now) const { return now < until_; }
    /// Takes note of the load, in percent, that was just read.
    void note(double percent, double now);
    void end() { until_ = 0.0; }

  private:
    std::string device_;
    KernelFile control_;
    double until_ = 0.0;
};

} // namespace vantrix
