#include "macos/disks/volume_capacity.h"

#include "macos/kernel/autorelease_pool.h"
#include "macos/kernel/cf_values.h"

namespace vantrix {

std::optional<DiskSampler::Volume> VolumeCapacity::read() {
    const AutoreleasePool pool;
    // A URL caches its values; a new one asks the file system.
    const UInt8 root[] = {'/'};
    const CFRef url(CFURLCreateFromFileSystemRepresentation(kCFAllocatorDefault, root, sizeof root, true));
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
