#pragma once

#include <optional>
#include <string>

namespace vantrix {

/// The first application group in the program's signature (com.apple.security.application-groups); absent when that is
/// not a list of strings.
std::optional<std::string> applicationGroup();

} // namespace vantrix
