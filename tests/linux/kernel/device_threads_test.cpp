#include "linux/kernel/device_threads.h"

#include <atomic>
#include <future>
#include <thread>

#include <gtest/gtest.h>

namespace vantrix {
namespace {

struct CountingJob : Background::Job {
    std::atomic<int> performed = 0;

    void perform() override { ++performed; }
};

struct HangingJob : Background::Job {
    std::promise<void> answer;

    void perform() override { answer.get_future().wait(); }
};

struct SlowJob : Background::Job {
    void perform() override {
        const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(5);
        while (std::chrono::steady_clock::now() < end)
            std::this_thread::yield();
    }
};

struct DeviceThreadsTest : testing::Test {
    std::shared_ptr<DeviceThreads> threads = std::make_shared<DeviceThreads>();
    DeviceThread hanging{threads};
    DeviceThread quick{threads};
    std::shared_ptr<HangingJob> hangingJob = std::make_shared<HangingJob>();
    std::shared_ptr<CountingJob> job = std::make_shared<CountingJob>();

    void SetUp() override { hanging.run(hangingJob); }
    void TearDown() override { hangingJob->answer.set_value(); }

    /// Asks the quick device now and then until the job has been performed so many times.
    bool isPerformed(const CountingJob& awaited, int times = 1) {
        using Clock = std::chrono::steady_clock;
        const auto another = std::make_shared<CountingJob>();
        auto next = Clock::now();
        for (const auto end = next + std::chrono::seconds(10); Clock::now() < end; std::this_thread::yield()) {
            if (awaited.performed >= times)
                return true;
            if (Clock::now() < next)
                continue;
            quick.run(another);
            next = Clock::now() + std::chrono::milliseconds(5);
        }
        return false;
    }
};

TEST_F(DeviceThreadsTest, ADeviceThatHangsKeepsItsThreadToItself) {
    quick.run(job);
    EXPECT_TRUE(isPerformed(*job)) << "it was handed over";
    const auto next = std::make_shared<CountingJob>();
    hanging.run(next);
    quick.run(job);
    EXPECT_TRUE(isPerformed(*job, 2));
    EXPECT_EQ(next->performed, 0) << "it would hang, too";
}

/// So that the thread is woken once.
TEST_F(DeviceThreadsTest, WhatAPassAsksForIsHandedOverAtItsEnd) {
    const auto bracket = std::make_shared<DeviceThreads>();
    DeviceThread first(bracket);
    auto second = std::make_unique<DeviceThread>(bracket);
    const auto dropped = std::make_shared<CountingJob>();
    {
        const PassScope pass(bracket);
        first.run(job);
        second->run(dropped);
        const auto ofOthers = std::make_shared<CountingJob>();
        quick.run(ofOthers);
        EXPECT_TRUE(isPerformed(*ofOthers)) << "which takes a while";
        EXPECT_EQ(job->performed, 0);
        second.reset();
    }
    first.wait(std::chrono::seconds(10));
    EXPECT_EQ(job->performed, 1);
    EXPECT_EQ(dropped->performed, 0) << "its device is gone";
    const PassScope pass(bracket);
    first.run(job);
    first.wait(std::chrono::seconds(10));
    EXPECT_EQ(job->performed, 2) << "or when it is waited for";
}

TEST_F(DeviceThreadsTest, APassWaitsForThemAllTogether) {
    using namespace std::chrono_literals;
    const auto begin = std::chrono::steady_clock::now();
    for (int sensors = 0; sensors < 100; ++sensors)
        hanging.wait(20ms);
    const auto bracket = std::make_shared<DeviceThreads>();
    DeviceThread slow(bracket);
    {
        const PassScope pass(bracket);
        for (int sensors = 0; sensors < 400; ++sensors)
            slow.run(std::make_shared<SlowJob>());
        slow.wait(20ms);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 1s);
}

} // namespace
} // namespace vantrix
