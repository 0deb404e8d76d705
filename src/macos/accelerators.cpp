#include "macos/accelerators.h"

#include "macos/kernel/registry.h"

namespace vantrix {

std::optional<std::span<const Properties>> Accelerators::read() {
    statistics_.clear();
    const bool areListed = forEachService("IOAccelerator", [&](const IOObject& accelerator) {
        const auto held = propertyOf(accelerator, CFSTR("PerformanceStatistics"));
        statistics_.add(as<CFDictionaryRef>(held.get()));
    });
    return areListed ? std::optional(statistics_.rows()) : std::nullopt;
}

} // namespace vantrix
