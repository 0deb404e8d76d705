#include "platform/thread_priority.h"

#include <sys/resource.h>

namespace vantrix {
namespace {

constexpr int background = 10; // of 19

} // namespace

void lowerThreadPriority() {
    // Linux keeps a nice value for each thread; 0 is the calling one.
    if (getpriority(PRIO_PROCESS, 0) < background)
        setpriority(PRIO_PROCESS, 0, background);
}

} // namespace vantrix
