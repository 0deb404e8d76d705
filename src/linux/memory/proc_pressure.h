#pragma once

#include <optional>
#include <string_view>

namespace vantrix {

/// Shares of the last 10 s, in percent, during which tasks stood still for want of a resource.
struct PressureStall {
    double some = 0.0; ///< at least one task
    double full = 0.0; ///< all tasks at once
};

/// One file of /proc/pressure. Absent when the line "some" is missing or garbled.
std::optional<PressureStall> parsePressure(std::string_view text);

} // namespace vantrix
