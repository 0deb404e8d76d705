#pragma once

namespace vantrix {

/// Where elapsed time comes from; injected so that tests move it by hand.
class Clock {
  public:
    virtual ~Clock() = default;
    /// Seconds since start-up, monotonic, not counting the time the machine slept.
    virtual double uptime() const = 0;
};

} // namespace vantrix
