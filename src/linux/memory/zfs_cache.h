#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "linux/kernel/kernel_file.h"
#include "linux/kernel/rescan_schedule.h"

namespace vantrix {

/// The bytes that a cache gives back when memory is short: its size less its least one, from the file arcstats.
std::optional<std::uint64_t> parseReclaimableCache(std::string_view text);

/// ZFS's cache of files, which the kernel does not count as such, from /proc/spl/kstat/zfs/arcstats. Few machines
/// have it, so it is looked for once in many passes.
class ZFSCache {
  public:
    explicit ZFSCache(const std::string& proc) : schedule_({proc + "/spl/kstat"}), path_(pathOf(proc)) {}

    /// Where the cache of the machine whose /proc is mounted at `proc` would tell of itself.
    static std::string pathOf(const std::string& proc) { return proc + "/spl/kstat/zfs/arcstats"; }

    /// Asked once a pass: the bytes that it would give back; 0 without ZFS.
    std::uint64_t reclaimable();

  private:
    std::optional<std::string_view> text();

    RescanSchedule schedule_;
    std::string path_;
    std::optional<KernelFile> file_;
};

} // namespace vantrix
