#pragma once

#include "support/clock.h"

namespace vantrix {

/// CLOCK_MONOTONIC, which stands still while the machine sleeps.
class LinuxClock : public Clock {
  public:
    double uptime() const override;
};

} // namespace vantrix
