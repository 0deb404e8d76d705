#pragma once

#include <memory>
#include <string>
#include <vector>

#include "linux/graphics/gpu_meter.h"
#include "linux/graphics/gpu_power.h"
#include "linux/graphics/nvidia_gpus.h"
#include "linux/kernel/background_thread.h"
#include "linux/kernel/rescan_schedule.h"
#include "samplers/gpu_sampler.h"
#include "support/clock.h"

namespace vantrix {

/// One GPU as the kernel shows it. While it sleeps it counts as 0 % if its driver would tell its load, and no file of
/// it but its power state is opened.
class KernelGPU {
  public:
    /// `card` is its entry in <sys>/class/drm, empty where it has none; `device` the folder of the device itself.
    KernelGPU(std::string card, std::string device);

    const std::string& device() const { return device_; }

    /// Load in percent, absent when the driver does not tell; `now` in seconds.
    std::optional<double> percent(double now);

    void forgetScreens() { rest_.forgetScreens(); }

  private:
    bool tellsLoad(double now);

    std::string card_;
    std::string device_;
    GPUPowerFile power_;
    GPURest rest_;
    std::unique_ptr<GPUMeter> meter_;
    std::optional<double> load_; ///< percent, when it was last read
    double nextSearch_ = 0.0;
    bool wasSilent_ = false; // when last asked since it woke
    bool isSilent_ = false;  // twice in a row: the first question of a counter has no answer
    bool isMeterOffered_ = false;
    double nextLook_ = 0.0; // for an offer
};

/// Every GPU: those of /sys/class/drm, those that only scale their frequency by load (/sys/class/devfreq), and those of
/// NVIDIA's own driver. GPUs that come are noticed at the `pace`, those that go at once.
class LinuxGPUSource : public GPUSampler::Source {
  public:
    LinuxGPUSource(const std::string& sys, std::unique_ptr<Clock> clock, std::unique_ptr<NvidiaLibrary> library,
                   RescanSchedule::Pace pace = RescanSchedule::quick,
                   std::shared_ptr<Background> background = std::make_shared<BackgroundThread>());

    std::optional<std::span<const Properties>> read() override;

    /// °C of each of NVIDIA's GPUs, as of the last reading.
    std::shared_ptr<const TimedValues> nvidiaTemperatures() const { return nvidiaGPUs_.temperatures(); }

  private:
    void findGPUs();
    void findKernelGPU(const std::string& card, const std::string& device, std::vector<KernelGPU>& found);

    std::unique_ptr<Clock> clock_;
    RescanSchedule schedule_;
    std::vector<KernelGPU> gpus_;
    NvidiaGPUs nvidiaGPUs_;
    std::vector<std::optional<double>> loads_;
    std::vector<Properties> statistics_;
};

} // namespace vantrix
