#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantrix {

/// Named facts about the machine that stay the same while it runs: sysctl on macOS, the same names answered from
/// /proc and /sys on Linux.
class SystemInformation {
  public:
    virtual ~SystemInformation() = default;
    /// A 32-bit value, sign-extended; absent when the system does not know the name.
    virtual std::optional<std::int64_t> integer(std::string_view name) const = 0;
    /// UTF-8; invalid sequences are repaired, not rejected.
    virtual std::optional<std::string> text(std::string_view name) const = 0;
    /// Processors the system runs on; used only where the named count cannot be read.
    virtual int processorCount() const = 0;
};

} // namespace vantrix
