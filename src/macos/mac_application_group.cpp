#include "macos/mac_application_group.h"

#include <Security/SecTask.h>

#include "macos/kernel/cf_values.h"

namespace vantrix {

std::optional<std::string> applicationGroup() {
    const CFRef task(SecTaskCreateFromSelf(kCFAllocatorDefault));
    if (!task)
        return std::nullopt;
    const CFRef held(
        SecTaskCopyValueForEntitlement(task.get(), CFSTR("com.apple.security.application-groups"), nullptr));
    const auto groups = as<CFArrayRef>(held.get());
    std::optional<std::string> first;
    for (CFIndex i = 0; groups && i < CFArrayGetCount(groups); ++i) {
        const auto group = textOf(CFArrayGetValueAtIndex(groups, i));
        if (!group)
            return std::nullopt;
        first = first ? first : group;
    }
    return first;
}

} // namespace vantrix
