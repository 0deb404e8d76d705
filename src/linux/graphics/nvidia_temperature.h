#pragma once

#include <optional>

namespace vantrix {

/// The temperature of the hottest GPU of NVIDIA's own driver, which puts none into <sys>. The source of loads leaves it
/// here for that of temperatures.
class NvidiaTemperature {
  public:
    static constexpr double longestAge = 60.0; ///< seconds

    /// °C, or absent while none tells; `now` in seconds.
    void set(std::optional<double> celsius, double now) {
        celsius_ = celsius;
        takenAt_ = now;
    }
    std::optional<double> value(double now) const { return now - takenAt_ > longestAge ? std::nullopt : celsius_; }

  private:
    std::optional<double> celsius_;
    double takenAt_ = 0.0;
};

} // namespace vantrix
