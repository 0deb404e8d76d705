#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/sources/gpu_power.h"
#include "platform/linux/sources/nvidia_library.h"

namespace vantrix {

/// The GPUs that NVIDIA's own driver runs. The library is asked about a GPU only while the kernel calls that awake, and
/// is started only while all of them are, for it may touch each on its way. It is stopped when none is at work, because
/// a GPU that some program holds open may not fall asleep.
class NvidiaGPUs {
  public:
    explicit NvidiaGPUs(std::unique_ptr<NvidiaLibrary> library) : library_(std::move(library)) {}

    /// Replaces the GPUs by those at `addresses`, which are entries of `folder`.
    void set(const std::string& folder, const std::vector<std::string>& addresses);

    /// Appends the load of each GPU in percent, absent where it cannot be told; `now` in seconds.
    void read(double now, std::vector<std::optional<double>>& loads);

  private:
    struct GPU {
        std::string address;
        GPUPowerFile powerFile;
        GPURest rest;
        GPUPower power = GPUPower::unknown;
        std::optional<NvidiaLibrary::Device> device = {};
    };

    bool refreshPower(double now);
    void start(double now);
    void stop();
    std::optional<double> loadOf(GPU& gpu, double now);

    std::unique_ptr<NvidiaLibrary> library_;
    std::vector<GPU> gpus_;
    bool isStarted_ = false;
    double nextStart_ = 0.0;
};

} // namespace vantrix
