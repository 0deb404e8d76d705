#include "linux/kernel/linux_clock.h"

#include <ctime>

namespace vantrix {

double LinuxClock::uptime() const {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

} // namespace vantrix
