#include <algorithm>

#include <sys/resource.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <gtest/gtest.h>

#include "monitor/task_runner.h"

namespace vantrix {
namespace {

TEST(ThreadTaskRunner, WorksWhenNobodyWaits) {
    const int before = getpriority(PRIO_PROCESS, 0);
    int during = before;
    bool isDone = false;
    ThreadTaskRunner runner;
    runner.run([&] { during = getpriority(PRIO_PROCESS, 0); }, [&] { isDone = true; });
    const QDeadlineTimer deadline(10000);
    while (!isDone && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 100);
    EXPECT_EQ(during, std::max(before, 10));
    EXPECT_EQ(getpriority(PRIO_PROCESS, 0), before);
}

} // namespace
} // namespace vantrix
