#pragma once

#include "support/clock.h"

namespace vantrix {

struct FakeClock : Clock {
    double now = 100.0;
    double uptime() const override { return now; }
};

} // namespace vantrix
