#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrix {

/// Numbers from a list as sysfs writes it, "0-3,8\n"; at most 65536. Absent when it makes no sense; may be empty.
std::optional<std::vector<int>> parseCPUList(std::string_view text);

/// Logical cores of each kind on machines that have two.
struct PerformanceLevels {
    int performance = 0;
    int efficiency = 0;

    bool operator==(const PerformanceLevels&) const = default;
};

/// How many logical cores are online, from <sys>/devices/system/cpu/online.
std::optional<int> onlineCores(const std::string& sys);

/// Absent where all cores are of one kind. Intel names the kinds; Arm tells each core's capacity, and the smallest
/// cores are the efficient ones.
std::optional<PerformanceLevels> performanceLevels(const std::string& sys);

} // namespace vantrix
