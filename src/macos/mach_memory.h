#pragma once

#include "macos/kernel/mach_host.h"
#include "macos/processor/sysctl_information.h"
#include "samplers/memory_sampler.h"

namespace vantrix {

/// host_statistics64 for the page counts; sysctl for installed memory (0 when unreadable), swap and pressure.
class MachMemory : public MemorySampler::Source {
  public:
    std::optional<MemorySampler::Statistics> read() override;

  private:
    MachHost host_;
    SysctlInformation information_;
};

} // namespace vantrix
