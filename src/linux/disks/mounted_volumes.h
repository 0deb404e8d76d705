#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrix {

/// The mount points in a text of /proc/self/mountinfo that are of real devices, sorted: no network's, no image's, none
/// that the kernel makes up. Each device stands there once, with its shortest mount point.
std::vector<std::string> volumesIn(std::string_view mountinfo);

/// Those of the machine whose /proc is mounted at `proc`. No file system is asked, so none can hang.
std::vector<std::string> mountedVolumes(const std::string& proc);

} // namespace vantrix
