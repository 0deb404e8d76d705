#pragma once

#include "linux/kernel/kernel_file.h"
#include "linux/memory/proc_meminfo.h"
#include "linux/memory/proc_pressure.h"
#include "linux/memory/zram.h"
#include "samplers/memory_sampler.h"

namespace vantrix {

/// The sampler's figures, with pages of 1 KiB. Memory in use comes close to the total less MemAvailable.
MemorySampler::Statistics memoryStatistics(const MemInfo& info, const std::optional<PressureStall>& stall,
                                           std::uint64_t zramBytes);

/// Memory from /proc/meminfo, /proc/pressure/memory and the compressed disks.
class LinuxMemorySource : public MemorySampler::Source {
  public:
    LinuxMemorySource(const std::string& proc, const std::string& sys);

    std::optional<MemorySampler::Statistics> read() override;

  private:
    void findZramAfterSwapChange(const MemInfo& info);

    KernelFile memory_;
    KernelFile pressure_;
    ZramDisks zram_;
    std::optional<std::uint64_t> swapTotal_; ///< KiB, when the compressed disks were last looked for
};

} // namespace vantrix
