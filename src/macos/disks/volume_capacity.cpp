#include "macos/disks/volume_capacity.h"

#include <algorithm>
#include <string_view>

#include <sys/mount.h>

#include "macos/kernel/autorelease_pool.h"
#include "macos/kernel/cf_values.h"

namespace vantrix {

/// What the kernel knows of them, without asking the file systems: a dead server lets nobody wait.
std::vector<std::string> VolumeCapacity::mounted() const {
    std::vector<std::string> points;
    std::vector<struct statfs> mounts(static_cast<std::size_t>(std::max(getfsstat(nullptr, 0, MNT_NOWAIT), 0)));
    const auto bytes = static_cast<int>(mounts.size() * sizeof(struct statfs));
    const int count = mounts.empty() ? 0 : getfsstat(mounts.data(), bytes, MNT_NOWAIT);
    mounts.resize(std::min(mounts.size(), static_cast<std::size_t>(std::max(count, 0))));
    for (const auto& mount : mounts)
        if ((mount.f_flags & (MNT_LOCAL | MNT_DONTBROWSE)) == MNT_LOCAL &&
            std::string_view(mount.f_mntfromname).starts_with("/dev/"))
            points.emplace_back(mount.f_mntonname);
    std::sort(points.begin(), points.end());
    return points;
}

std::optional<DiskSampler::Volume> VolumeCapacity::read() {
    const AutoreleasePool pool;
    if (!mountPoint_.empty())
        if (const auto points = mounted(); std::find(points.begin(), points.end(), mountPoint_) == points.end())
            return std::nullopt; // what a folder that nothing is mounted at could tell is of another volume
    // A URL caches its values; a new one asks the file system.
    const std::string path = mountPoint_.empty() ? "/" : mountPoint_;
    const auto* const bytes = reinterpret_cast<const UInt8*>(path.data());
    const CFRef url(
        CFURLCreateFromFileSystemRepresentation(kCFAllocatorDefault, bytes, static_cast<CFIndex>(path.size()), true));
    const void* names[] = {kCFURLVolumeTotalCapacityKey, kCFURLVolumeAvailableCapacityForImportantUsageKey};
    const CFRef keys(CFArrayCreate(kCFAllocatorDefault, names, 2, &kCFTypeArrayCallBacks));
    if (!url || !keys)
        return std::nullopt;
    const CFRef values(CFURLCopyResourcePropertiesForKeys(url.get(), keys.get(), nullptr));
    if (!values)
        return std::nullopt;
    const auto bytesAt = [&](CFStringRef key) { return wholeNumberOf(CFDictionaryGetValue(values.get(), key)); };
    return DiskSampler::Volume{bytesAt(kCFURLVolumeTotalCapacityKey),
                               bytesAt(kCFURLVolumeAvailableCapacityForImportantUsageKey)};
}

} // namespace vantrix
