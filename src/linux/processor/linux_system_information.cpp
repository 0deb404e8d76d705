#include "linux/processor/linux_system_information.h"

#include <algorithm>

#include <unistd.h>

#include "linux/processor/cpu_topology.h"
#include "linux/processor/processor_brand.h"

namespace vantrix {

std::optional<std::int64_t> LinuxSystemInformation::integer(std::string_view name) const {
    if (name == "hw.logicalcpu")
        return onlineCores(sys_);
    const bool isPerformance = name == "hw.perflevel0.logicalcpu";
    if (!isPerformance && name != "hw.perflevel1.logicalcpu")
        return std::nullopt;
    const auto levels = performanceLevels(sys_);
    if (!levels)
        return std::nullopt;
    return isPerformance ? levels->performance : levels->efficiency;
}

std::optional<std::string> LinuxSystemInformation::text(std::string_view name) const {
    if (name == "machdep.cpu.brand_string")
        return processorBrand(proc_, sys_);
    return std::nullopt;
}

int LinuxSystemInformation::processorCount() const {
    return static_cast<int>(std::max(sysconf(_SC_NPROCESSORS_ONLN), 1L));
}

} // namespace vantrix
