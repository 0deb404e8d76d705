#pragma once

#include <mach/mach.h>

extern "C" {

struct mach_timebase_info {
    std::uint32_t numer;
    std::uint32_t denom;
};
typedef struct mach_timebase_info mach_timebase_info_data_t;

kern_return_t mach_timebase_info(struct mach_timebase_info* info);
std::uint64_t mach_absolute_time(void);

} // extern "C"
