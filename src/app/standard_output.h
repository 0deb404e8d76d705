#pragma once

#include <optional>
#include <string>

namespace vantrix {

/// Writes `text` to standard output at once. Absent when that went well, else the status to exit with: what went wrong
/// has then been said on standard error.
std::optional<int> writeOut(const std::string& text);

} // namespace vantrix
