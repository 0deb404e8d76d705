#include "macos/disks/block_storage.h"

#include "macos/kernel/registry.h"

namespace vantrix {
namespace {

/// The counter is unsigned in the driver.
std::optional<std::uint64_t> counterOf(const Properties& statistics, std::string_view key) {
    const auto bytes = statistics.integer(key);
    return bytes ? std::optional(static_cast<std::uint64_t>(*bytes)) : std::nullopt;
}

} // namespace

bool BlockStorage::read(std::vector<DiskSampler::Counters>& disks) {
    disks.clear();
    statistics_.clear();
    return forEachService("IOBlockStorageDriver", [&](const IOObject& driver) {
        const auto held = propertyOf(driver, CFSTR("Statistics"));
        const auto dictionary = as<CFDictionaryRef>(held.get());
        if (!dictionary)
            return;
        const Properties& statistics = statistics_.add(dictionary);
        disks.push_back({counterOf(statistics, "Bytes (Read)"), counterOf(statistics, "Bytes (Write)")});
    });
}

} // namespace vantrix
