#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/sampling_sources.h"

namespace vantrix {

/// What the machine and the session are, by label. Holds no name of the machine or of its user.
std::vector<std::pair<std::string, std::string>>
systemFacts(const std::string& version, const SystemInformation& information, const KernelRoots& roots);

} // namespace vantrix
