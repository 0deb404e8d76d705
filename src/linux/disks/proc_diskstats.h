#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "linux/kernel/kernel_file.h"
#include "samplers/disk_sampler.h"

namespace vantrix {

/// One block device of /proc/diskstats, partitions included.
struct DiskStatsLine {
    std::string_view name;     ///< part of the text that was parsed
    std::string_view counters; ///< what follows the name
};

/// Sectors moved since start-up. They are of 512 bytes, whatever the device's own size.
struct DiskSectors {
    std::optional<std::uint64_t> read;
    std::optional<std::uint64_t> written;
};

/// Replaces `lines` by the devices of /proc/diskstats. False when the text is cut short or a line has no name.
bool parseDiskStats(std::string_view text, std::vector<DiskStatsLine>& lines);

DiskSectors parseDiskCounters(std::string_view counters);

/// True for a whole disk that is a device, by its entry in <sys>/block: not a partition, not made of other disks,
/// files or memory, and not optical.
bool isPhysicalDisk(const std::string& sys, std::string_view name);

/// Counters of the whole physical disks. Reading them never wakes a disk.
class DiskStatsSource : public DiskSampler::CounterSource {
  public:
    DiskStatsSource(const std::string& proc, std::string sys);

    bool read(std::vector<DiskSampler::Counters>& disks) override;

  private:
    struct Known {
        std::string name;
        bool isPhysical = false;
    };

    bool isPhysicalAt(std::size_t place, std::string_view name);

    KernelFile file_;
    std::string sys_;
    std::vector<DiskStatsLine> lines_;
    std::vector<Known> known_; // by place in the list
};

} // namespace vantrix
