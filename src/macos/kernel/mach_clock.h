#pragma once

#include <cstdint>

#include "support/clock.h"

namespace vantrix {

/// A span of mach_absolute_time(), in seconds.
double secondsOfMachTime(std::uint64_t span);

/// mach_absolute_time(), which stands still while the machine sleeps.
class MachClock : public Clock {
  public:
    double uptime() const override;
};

} // namespace vantrix
