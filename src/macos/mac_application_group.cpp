#include "macos/mac_application_group.h"

#include <Security/SecTask.h>

#include "macos/kernel/cf_values.h"
#include "support/application_group.h"

namespace vantrix {

std::optional<std::string> applicationGroup() {
    const CFRef task(SecTaskCreateFromSelf(kCFAllocatorDefault));
    if (!task)
        return std::nullopt;
    const CFRef held(
        SecTaskCopyValueForEntitlement(task.get(), CFSTR("com.apple.security.application-groups"), nullptr));
    const auto groups = as<CFArrayRef>(held.get());
    std::vector<std::optional<std::string>> listed;
    for (CFIndex i = 0; groups && i < CFArrayGetCount(groups); ++i)
        listed.push_back(textOf(CFArrayGetValueAtIndex(groups, i)));
    return sharedGroup(listed);
}

} // namespace vantrix
