#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "linux/kernel/kernel_file.h"

namespace vantrix {

/// Bytes of memory that a compressed disk occupies, from its file mm_stat.
std::optional<std::uint64_t> parseZramMemory(std::string_view text);

/// The compressed disks in memory, from /sys/block/zram*.
class ZramDisks {
  public:
    explicit ZramDisks(const std::string& sys) : folder_(sys + "/block") {}

    /// Finds the disks that are set up now.
    void find();

    /// Bytes of memory that all of them occupy.
    std::uint64_t memoryUsed();

  private:
    std::string folder_;
    std::vector<KernelFile> files_;
};

} // namespace vantrix
