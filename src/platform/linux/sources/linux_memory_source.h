#pragma once

#include "platform/linux/sources/kernel_file.h"
#include "platform/linux/sources/proc_meminfo.h"
#include "platform/linux/sources/proc_pressure.h"
#include "platform/linux/sources/zram.h"
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
