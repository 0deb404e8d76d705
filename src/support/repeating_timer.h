#pragma once

#include <functional>

namespace vantrix {

/// Calls a function again and again. An interface, so that tests can fire it by hand.
class RepeatingTimer {
  public:
    virtual ~RepeatingTimer() = default;
    /// Calls `fire` every `period` seconds until the timer goes or is scheduled anew. A fire may come up to
    /// `tolerance` seconds off, so that the system can serve several programs in one wake-up.
    virtual void schedule(double period, double tolerance, std::function<void()> fire) = 0;
};

} // namespace vantrix
