#pragma once

#include <chrono>
#include <string>
#include <utility>

#include "accessories/accessories_sampler.h"

namespace vantrix {

/// The Bluetooth report of the system profiler, and the battery levels of input devices in the I/O registry.
class MacAccessories : public AccessoriesSampler {
  public:
    static constexpr const char* systemProfiler = "/usr/sbin/system_profiler";

    /// The profiler usually takes less than a second.
    explicit MacAccessories(std::string profiler = systemProfiler,
                            std::chrono::milliseconds patience = std::chrono::seconds(15))
        : profiler_(std::move(profiler)), patience_(patience) {}

    Scan scan() override;

  private:
    std::string profiler_;
    std::chrono::milliseconds patience_;
};

} // namespace vantrix
