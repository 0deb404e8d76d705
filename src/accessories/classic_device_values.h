#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantrix {

/// "AA:BB:CC:DD:EE:FF" of an address written like "aa-bb-cc-dd-ee-ff".
std::string addressWithColons(std::string_view address);

/// The level that a published battery value stands for. Absent for 0, which the system publishes for every part that
/// reported nothing.
std::optional<int> publishedLevel(int percent);

} // namespace vantrix
