#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vantrix {

/// Lines of /proc/meminfo, in KiB. Absent where this kernel has no such line or its value makes no sense.
struct MemInfo {
    using Value = std::optional<std::uint64_t>;

    Value memTotal;
    Value memFree;
    Value memAvailable; ///< since Linux 3.14
    Value buffers;
    Value cached; ///< shared memory included, pages that are in swap as well left out
    Value swapCached;
    Value activeAnon;
    Value inactiveAnon;
    Value activeFile;
    Value inactiveFile;
    Value unevictable;
    Value swapTotal;
    Value swapFree;
    Value zswap; ///< memory that holds compressed pages, since Linux 5.19
    Value anonPages;
    Value shmem;
    Value kReclaimable; ///< since Linux 4.20
    Value sReclaimable;
};

/// The largest plausible memory, in KiB (1 EiB).
constexpr std::uint64_t largestMemory = std::uint64_t{1} << 50;

/// Absent when the total is missing, 0 or implausible, when free memory is missing, or when the text is cut short.
std::optional<MemInfo> parseMemInfo(std::string_view text);

} // namespace vantrix
