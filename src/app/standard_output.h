#pragma once

#include <optional>
#include <string>

namespace vantrix {

/// Writes `text` to standard output at once, without what would steer a terminal. Absent on success, else the status to
/// exit with; the error has then been reported on standard error.
std::optional<int> writeOut(const std::string& text);

} // namespace vantrix
