#pragma once

#include <optional>
#include <string>

namespace vantrix {

/// The first application group that the program is signed for (com.apple.security.application-groups); absent without
/// a list of texts there.
std::optional<std::string> applicationGroup();

} // namespace vantrix
