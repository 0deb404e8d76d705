#pragma once

#include <string>
#include <utility>
#include <vector>

#include "doctor/report.h"

namespace vantrix {

using InstanceFacts = std::vector<std::pair<std::string, std::string>>;

/// What the running instance has cost and where it is shown, for people, by label.
InstanceFacts instanceFacts(const std::optional<DoctorInstance>& instance);

/// "45 s", "12 min", "3 h 5 min", "2 d 4 h".
std::string uptimeText(double seconds);

} // namespace vantrix
