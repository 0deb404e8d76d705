#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "linux/kernel/kernel_file.h"

namespace vantrix {

/// An entry of <sys>/class/drm that is a GPU: "card0", but not its connectors "card0-HDMI-A-1".
bool isGPUCard(std::string_view name);

/// An entry of <sys>/class/devfreq that is a GPU: memory controllers and buses scale their frequency too.
bool isGPUFrequency(std::string_view name);

/// An entry of a PCI driver's folder that is a device, "0000:01:00.0".
bool isPCIAddress(std::string_view name);

/// A driver's way to tell the load of a GPU that is awake.
class GPUMeter {
  public:
    virtual ~GPUMeter() = default;
    /// Percent; `now` in seconds. Absent when it cannot be told this time.
    virtual std::optional<double> percent(double now) = 0;
    /// The GPU slept: what was counted before means nothing any more.
    virtual void forget() {}
};

/// The percentage that begins a text: "37\n", or "37@800000000Hz\n" as some devfreq drivers write it.
std::optional<double> parseLoad(std::string_view text);

/// A file that tells the load: gpu_busy_percent of amdgpu and radeon, or load of a devfreq device.
class LoadFile : public GPUMeter {
  public:
    explicit LoadFile(std::string path) : file_(std::move(path)) {}
    std::optional<double> percent(double now) override;

  private:
    KernelFile file_;
};

/// The time that the parts (GTs) of an Intel GPU spent idle, in milliseconds: rc6_residency_ms of i915,
/// idle_residency_ms of xe. The busiest part is the load.
class IdleResidency : public GPUMeter {
  public:
    explicit IdleResidency(const std::vector<std::string>& paths);
    std::optional<double> percent(double now) override;
    void forget() override;

  private:
    struct Part {
        KernelFile file;
        std::optional<std::int64_t> idle; ///< milliseconds, at the last reading
    };

    std::vector<Part> parts_;
    double lastTime_ = 0.0;
};

/// What the first meter that a driver offers reads: one file of the load, or several of idle time.
struct MeterFiles {
    std::vector<std::string> paths; ///< empty when the driver offers none
    bool tellIdleTime = false;
};

/// Opens no file of the device, which may sleep. `card` is its entry in <sys>/class/drm, empty for a device that has
/// none.
MeterFiles offeredMeterFiles(const std::string& card, const std::string& device);

/// Without those that mean nothing on this device, whose files it looks into.
MeterFiles findMeterFiles(const std::string& card, const std::string& device);

/// The first meter that the driver offers; null when it offers none.
std::unique_ptr<GPUMeter> findMeter(const std::string& card, const std::string& device);

} // namespace vantrix
