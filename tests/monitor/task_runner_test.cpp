#include "monitor/task_runner.h"

#include <atomic>
#include <thread>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

#include <gtest/gtest.h>

namespace vantrix {
namespace {

TEST(ThreadTaskRunner, WorksElsewhereAndReportsOnTheMainThread) {
    ThreadTaskRunner runner;
    QThread* worker = nullptr;
    QThread* reporter = nullptr;
    runner.run([&] { worker = QThread::currentThread(); }, [&] { reporter = QThread::currentThread(); });
    const QDeadlineTimer deadline(10000);
    while (!reporter && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 100);
    EXPECT_EQ(reporter, QThread::currentThread());
    EXPECT_NE(worker, nullptr);
    EXPECT_NE(worker, reporter);
}

TEST(ThreadTaskRunner, LeavesWorkBehindThatHangs) {
    struct State {
        std::atomic<bool> hangs = true;
        std::atomic<bool> ended = false;
    };
    const auto state = std::make_shared<State>();
    const auto work = [state] {
        while (state->hangs)
            std::this_thread::yield();
        state->ended = true;
    };
    bool reported = false;
    {
        ThreadTaskRunner().run(work, [&] { reported = true; });
    }
    EXPECT_FALSE(state->ended);
    state->hangs = false;
    const QDeadlineTimer deadline(10000);
    while (!state->ended && !deadline.hasExpired())
        std::this_thread::yield();
    QCoreApplication::processEvents();
    EXPECT_TRUE(state->ended);
    EXPECT_FALSE(reported);
}

} // namespace
} // namespace vantrix
