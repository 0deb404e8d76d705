#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantrix {

/// The first "model name" of /proc/cpuinfo, tidied. Arm kernels have none.
std::optional<std::string> parseModelName(std::string_view cpuInfo);

/// Runs of blanks and control characters become one blank, none at the ends; invalid UTF-8 is repaired. Absent when
/// nothing is left.
std::optional<std::string> tidiedName(std::string_view raw);

/// The maker's name of the processor, else the machine's model from its device tree.
std::optional<std::string> processorBrand(const std::string& proc, const std::string& sys);

} // namespace vantrix
