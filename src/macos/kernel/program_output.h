#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace vantrix {

/// What a program prints on standard output, read to its end. Absent when it cannot be started, fails, prints more
/// than a mebibyte, or takes longer than `patience`: it is then killed with all that it started. It has ended in any
/// case. `command` is the
/// program's path and its arguments. Waits; off the main thread only.
std::optional<std::string> programOutput(std::vector<std::string> command, std::chrono::milliseconds patience);

} // namespace vantrix
