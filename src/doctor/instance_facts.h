#pragma once

#include <string>
#include <utility>
#include <vector>

#include "doctor/report.h"

namespace vantrix {

/// What the running instance has cost, for people, by label.
std::vector<std::pair<std::string, std::string>> instanceFacts(const std::optional<DoctorInstance>& instance);

/// "45 s", "12 min", "3 h 5 min", "2 d 4 h".
std::string uptimeText(double seconds);

} // namespace vantrix
