#include <algorithm>

#include <pthread.h>
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

TEST(ThreadTaskRunner, ReportsAtOnceWhereNoThreadCanBeStarted) {
    pthread_attr_t usual;
    ASSERT_EQ(pthread_getattr_default_np(&usual), 0);
    pthread_attr_t tooLarge = usual;
    ASSERT_EQ(pthread_attr_setstacksize(&tooLarge, std::size_t{1} << 47), 0); // more than there are addresses
    ASSERT_EQ(pthread_setattr_default_np(&tooLarge), 0);
    bool hasWorked = false;
    bool isDone = false;
    ThreadTaskRunner runner;
    runner.run([&] { hasWorked = true; }, [&] { isDone = true; });
    pthread_setattr_default_np(&usual);
    EXPECT_FALSE(isDone) << "whoever asks is not called back while it asks";
    EXPECT_TRUE(spinUntil([&] { return isDone; }));
    EXPECT_FALSE(hasWorked);
}

} // namespace
} // namespace vantrix
