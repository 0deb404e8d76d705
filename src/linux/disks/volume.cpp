#include "linux/disks/volume.h"

#include <cerrno>

#include <sys/statvfs.h>

namespace vantrix {
namespace {

std::optional<std::int64_t> bytesOf(std::uint64_t blocks, std::uint64_t blockSize) {
    std::int64_t bytes = 0;
    // A file system filled beyond its reserve may tell a negative number of blocks.
    if (__builtin_mul_overflow(static_cast<std::int64_t>(blocks), blockSize, &bytes))
        return std::nullopt;
    return bytes;
}

bool readStatistics(const std::string& path, struct statvfs& statistics) {
    int result = 0;
    do
        result = statvfs(path.c_str(), &statistics);
    while (result != 0 && errno == EINTR);
    return result == 0;
}

} // namespace

std::optional<DiskSampler::Volume> VolumeStatistics::read() {
    struct statvfs statistics {};
    if (!readStatistics(path_, statistics))
        return std::nullopt;
    auto total = bytesOf(statistics.f_blocks, statistics.f_frsize);
    if (total.value_or(0) < 0)
        total.reset();
    return DiskSampler::Volume{total, bytesOf(statistics.f_bavail, statistics.f_frsize)};
}

std::string rootVolume(const std::string& proc) {
    struct statvfs statistics {};
    const std::string foreign = proc + "/1/root";
    return proc != "/proc" && readStatistics(foreign, statistics) ? foreign : "/";
}

} // namespace vantrix
