#pragma once

#include <optional>
#include <vector>

namespace vantrix {

/// A value that one source leaves for another, which takes it only while it is recent.
class TimedValue {
  public:
    static constexpr double longestAge = 60.0; ///< seconds

    /// `now` in seconds.
    void set(std::optional<double> value, double now) {
        value_ = value;
        takenAt_ = now;
    }
    /// Absent while there is none, and when the last one is too old.
    std::optional<double> value(double now) const { return now - takenAt_ > longestAge ? std::nullopt : value_; }

  private:
    std::optional<double> value_;
    double takenAt_ = 0.0;
};

using TimedValues = std::vector<TimedValue>;

} // namespace vantrix
