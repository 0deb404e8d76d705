#pragma once

#include <optional>
#include <string_view>

namespace vantrix {

/// Values that a machine's controller keeps under names of four characters: "FNum", "F0Ac", "PSTR", …
class SensorKeys {
  public:
    virtual ~SensorKeys() = default;
    /// Absent when there is no such key, or it cannot be read, or has no number.
    virtual std::optional<double> value(std::string_view key) = 0;
};

} // namespace vantrix
