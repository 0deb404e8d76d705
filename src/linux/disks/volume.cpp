#include "linux/disks/volume.h"

#include <cerrno>
#include <cstdlib>

namespace vantrix {
namespace {

std::optional<std::int64_t> bytesOf(std::uint64_t blocks, std::uint64_t blockSize) {
    std::int64_t bytes = 0;
    // A file system filled beyond its reserve may tell a negative number of blocks.
    if (__builtin_mul_overflow(static_cast<std::int64_t>(blocks), blockSize, &bytes))
        return std::nullopt;
    return bytes;
}

/// The root of the machine whose /proc is mounted at `proc`, for another than this one.
std::string rootFolder(const std::string& proc) {
    return proc + "/1/root";
}

} // namespace

bool askVolume(const std::string& folder, struct statvfs& answer) {
    int result = 0;
    do
        result = statvfs(folder.c_str(), &answer);
    while (result != 0 && errno == EINTR);
    return result == 0;
}

DiskSampler::Volume capacityOf(const struct statvfs& statistics) {
    auto total = bytesOf(statistics.f_blocks, statistics.f_frsize);
    if (total.value_or(0) < 0)
        total.reset();
    return {total, bytesOf(statistics.f_bavail, statistics.f_frsize)};
}

std::vector<std::string> volumeFolders(const std::string& proc) {
    struct statvfs answer {};
    const std::string root = rootFolder(proc);
    if (proc != "/proc" && askVolume(root, answer))
        return {root, root + "/var", root + "/home"};
    const char* home = std::getenv("HOME");
    return {"/", "/var", home ? home : "/home"};
}

std::size_t writtenFolder(const std::vector<std::string>& folders, const AskVolume& ask) {
    struct statvfs answer {};
    for (std::size_t i = 0; i < folders.size(); ++i)
        if (ask(folders[i], answer) && (answer.f_flag & ST_RDONLY) == 0)
            return i;
    return 0;
}

void VolumeStatistics::choose(const std::string& mountPoint) {
    mountPoint_.reset();
    if (!mountPoint.empty())
        mountPoint_.emplace(proc_ == "/proc" ? mountPoint : rootFolder(proc_) + mountPoint);
}

std::optional<DiskSampler::Volume> VolumeStatistics::read() {
    if (mountPoint_)
        return mountPoint_->read();
    if (choices_.isDue())
        chosen_ = writtenFolder(folders_, ask_);
    struct statvfs statistics {};
    if (!ask_(folders_[chosen_], statistics)) {
        choices_.noteFailure();
        return std::nullopt;
    }
    return capacityOf(statistics);
}

} // namespace vantrix
