#include "monitor/task_runner.h"

#include <atomic>
#include <thread>

#include <QThread>

#include <gtest/gtest.h>

#include "posix/spin_until.h"

namespace vantrix {
namespace {

TEST(ThreadTaskRunner, WorksElsewhereAndReportsOnTheMainThread) {
    ThreadTaskRunner runner;
    QThread* worker = nullptr;
    QThread* reporter = nullptr;
    runner.run([&] { worker = QThread::currentThread(); }, [&] { reporter = QThread::currentThread(); });
    EXPECT_TRUE(spinUntil([&] { return reporter != nullptr; }));
    EXPECT_EQ(reporter, QThread::currentThread());
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
    EXPECT_TRUE(spinUntil([&] { return state->ended.load(); }));
    EXPECT_FALSE(reported);
}

} // namespace
} // namespace vantrix
