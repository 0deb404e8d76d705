#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace vantrix {

/// Runs a program and returns all of its standard output. Absent when it cannot be started, fails, prints more than a
/// mebibyte, or takes longer than `patience`; it is then killed, with every process it started. `command` is the
/// program's path and its arguments. Blocks: not for the main thread.
std::optional<std::string> programOutput(std::vector<std::string> command, std::chrono::milliseconds patience);

} // namespace vantrix
