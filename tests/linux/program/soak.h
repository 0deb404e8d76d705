#pragma once

#include <cstddef>
#include <malloc.h>

// Present only in sanitized builds, whose allocator the C library's own statistics do not see.
extern "C" __attribute__((weak)) std::size_t __sanitizer_get_current_allocated_bytes();

namespace vantrix::soak {

inline std::size_t allocatedBytes() {
    if (&__sanitizer_get_current_allocated_bytes)
        return __sanitizer_get_current_allocated_bytes();
    return mallinfo2().uordblks;
}

} // namespace vantrix::soak
