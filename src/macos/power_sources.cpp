#include "macos/power_sources.h"

#include <IOKit/ps/IOPowerSources.h>

#include "macos/kernel/autorelease_pool.h"
#include "macos/kernel/registry.h"

namespace vantrix {

std::optional<std::span<const Properties>> PowerSources::powerSources() {
    const AutoreleasePool pool;
    sources_.clear();
    const CFRef information(IOPSCopyPowerSourcesInfo());
    if (!information)
        return std::nullopt;
    const CFRef held(IOPSCopyPowerSourcesList(information.get()));
    const auto list = as<CFArrayRef>(held.get());
    if (!list)
        return std::nullopt;
    for (CFIndex i = 0; i < CFArrayGetCount(list); ++i) {
        const CFTypeRef source = CFArrayGetValueAtIndex(list, i);
        const auto description =
            source ? as<CFDictionaryRef>(IOPSGetPowerSourceDescription(information.get(), source)) : nullptr;
        if (description)
            sources_.add(description);
    }
    return sources_.rows();
}

const Properties* PowerSources::smartBattery() {
    const AutoreleasePool pool;
    const IOObject service = firstService("AppleSmartBattery");
    const auto registers = service ? propertiesOf(service) : CFRef<CFMutableDictionaryRef>();
    if (!registers)
        return nullptr;
    battery_.clear();
    return &battery_.add(registers.get());
}

} // namespace vantrix
