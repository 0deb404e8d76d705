#include "macos/kernel/mach_clock.h"

#include <mach/mach_time.h>

namespace vantrix {

double secondsOfMachTime(std::uint64_t span) {
    mach_timebase_info_data_t base{1, 1};
    mach_timebase_info(&base);
    return static_cast<double>(span) * base.numer / base.denom / 1e9;
}

double MachClock::uptime() const {
    return secondsOfMachTime(mach_absolute_time());
}

} // namespace vantrix
