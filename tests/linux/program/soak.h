#pragma once

#include <cstddef>
#include <filesystem>
#include <malloc.h>
#include <set>
#include <string>

#include "monitor/task_runner.h"
#include "support/repeating_timer.h"

// Present only in sanitized builds, whose allocator the C library's own statistics do not see.
extern "C" __attribute__((weak)) std::size_t __sanitizer_get_current_allocated_bytes();

namespace vantrix::soak {

inline std::size_t allocatedBytes() {
    if (&__sanitizer_get_current_allocated_bytes)
        return __sanitizer_get_current_allocated_bytes();
    return mallinfo2().uordblks;
}

/// What the process has open, by name, so that a leak names itself.
inline std::multiset<std::string> openFiles() {
    std::multiset<std::string> names;
    std::error_code gone; // the folder's own descriptor closes while it is listed
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd"))
        names.insert(std::filesystem::read_symlink(entry.path(), gone).string());
    return names;
}

class NoTimer : public RepeatingTimer {
  public:
    void schedule(double, double, std::function<void()>) override {}
};

class ImmediateRunner : public TaskRunner {
  public:
    void run(std::function<void()> work, std::function<void()> done) override {
        work();
        done();
    }
};

} // namespace vantrix::soak
