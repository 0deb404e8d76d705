#include <algorithm>

#include <sys/resource.h>

#include "monitor/task_runner.h"
#include "posix/spin_until.h"

namespace vantrix {
namespace {

TEST(ThreadTaskRunner, WorksWhenNobodyWaits) {
    const int before = getpriority(PRIO_PROCESS, 0);
    int during = before;
    bool isDone = false;
    ThreadTaskRunner runner;
    runner.run([&] { during = getpriority(PRIO_PROCESS, 0); }, [&] { isDone = true; });
    EXPECT_TRUE(spinUntil([&] { return isDone; }));
    EXPECT_EQ(during, std::max(before, 10));
    EXPECT_EQ(getpriority(PRIO_PROCESS, 0), before);
}

} // namespace
} // namespace vantrix
