#pragma once

#include "linux/kernel/kernel_file.h"
#include "linux/memory/proc_meminfo.h"
#include "linux/memory/proc_pressure.h"
#include "linux/memory/zfs_cache.h"
#include "linux/memory/zram.h"
#include "samplers/memory_sampler.h"

namespace vantrix {

/// Bytes that /proc/meminfo does not tell apart.
struct UntoldMemory {
    std::uint64_t zram = 0;     ///< what compressed disks occupy
    std::uint64_t zfsCache = 0; ///< what ZFS's cache gives back when memory is short
};

/// The sampler's figures, with pages of 1 KiB. Memory in use, which is application, compressed and wired memory, is
/// what neither is free nor can be dropped: the total less free memory, buffers, the cache of files without shared
/// memory, the kernel's memory that can be reclaimed, and ZFS's cache. Wired is what is neither of the other two, so
/// that it holds what no counter tells, such as the memory of graphics drivers, and the files that are locked.
MemorySampler::Statistics memoryStatistics(const MemInfo& info, const std::optional<PressureStall>& stall,
                                           const UntoldMemory& untold);

/// Memory from /proc/meminfo, /proc/pressure/memory, the compressed disks and ZFS.
class LinuxMemorySource : public MemorySampler::Source {
  public:
    LinuxMemorySource(const std::string& proc, const std::string& sys);

    std::optional<MemorySampler::Statistics> read() override;

  private:
    void findZramAfterSwapChange(const MemInfo& info);

    KernelFile memory_;
    KernelFile pressure_;
    ZramDisks zram_;
    ZFSCache zfsCache_;
    std::optional<std::uint64_t> swapTotal_; ///< KiB, when the compressed disks were last looked for
};

} // namespace vantrix
