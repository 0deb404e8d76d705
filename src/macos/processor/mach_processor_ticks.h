#pragma once

#include "macos/kernel/mach_host.h"
#include "samplers/cpu_sampler.h"

namespace vantrix {

/// host_processor_info, flavour PROCESSOR_CPU_LOAD_INFO.
class MachProcessorTicks : public CPUSampler::Source {
  public:
    bool read(std::vector<CPUSampler::Ticks>& cores) override;

  private:
    MachHost host_;
};

} // namespace vantrix
