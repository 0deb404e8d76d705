#pragma once

#include "macos/kernel/cf_values.h"
#include "samplers/gpu_sampler.h"

namespace vantrix {

/// The dictionary "PerformanceStatistics" of every IOAccelerator.
class Accelerators : public GPUSampler::Source {
  public:
    std::optional<std::span<const Properties>> read() override;

  private:
    PropertyTable statistics_{"Device Utilization %", "GPU Activity(%)"};
};

} // namespace vantrix
