#include "linux/kernel/timed_sensor.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <vector>

#include <gtest/gtest.h>

#include "linux/kernel/background_thread.h"
#include "samplers/fake_clock.h"

namespace vantrix {
namespace {

/// Runs its jobs when the test says so.
struct FakeBackground : Background {
    bool canRun = true;
    std::vector<std::shared_ptr<Job>> jobs;

    bool run(const std::shared_ptr<Job>& job) override {
        if (canRun)
            jobs.push_back(job);
        return canRun;
    }
    void performAll() {
        for (const auto& job : std::exchange(jobs, {}))
            job->perform();
    }
};

struct FakeProbe : TimedSensor::Probe {
    FakeClock& clock;
    std::optional<double> next = 1.0;
    double duration = 0.0;
    int reads = 0;

    explicit FakeProbe(FakeClock& watch) : clock(watch) {}
    std::optional<double> read() override {
        ++reads;
        clock.now += duration;
        return next;
    }
};

struct TimedSensorTest : ::testing::Test {
    std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    std::shared_ptr<FakeBackground> background = std::make_shared<FakeBackground>();
    FakeProbe* probe = new FakeProbe(*clock);
    TimedSensor sensor{std::unique_ptr<TimedSensor::Probe>(probe), background, clock};

    std::optional<double> valueAfter(double seconds) {
        clock->now += seconds;
        return sensor.value();
    }
    void becomeSlow() {
        probe->duration = 0.021;
        sensor.value();
    }
};

TEST_F(TimedSensorTest, QuickSensorsAreReadOnEveryPass) {
    probe->duration = 0.0019;
    for (int i = 1; i <= 3; ++i) {
        probe->next = i;
        EXPECT_EQ(valueAfter(2.0), i);
        EXPECT_EQ(probe->reads, i);
    }
    probe->next.reset();
    EXPECT_EQ(valueAfter(2.0), std::nullopt);
}

TEST_F(TimedSensorTest, AReadThatTheMachineHeldUpIsForgiven) {
    for (const double duration : {0.003, 0.001, 0.003, 0.003}) {
        probe->duration = duration;
        EXPECT_TRUE(background->jobs.empty());
        sensor.value();
    }
    EXPECT_EQ(probe->reads, 4);
    sensor.value(); // two in a row were its own
    EXPECT_EQ(probe->reads, 4);
    EXPECT_EQ(background->jobs.size(), 1u);
}

TEST_F(TimedSensorTest, SlowSensorsNeverDelayAPassAgain) {
    becomeSlow();
    probe->next = 2.0;
    EXPECT_EQ(valueAfter(2.0), 1.0);
    EXPECT_EQ(valueAfter(2.0), 1.0);
    EXPECT_EQ(probe->reads, 1);
    EXPECT_EQ(background->jobs.size(), 1u); // one read at a time
    background->performAll();
    EXPECT_EQ(valueAfter(2.0), 2.0);
    probe->next.reset();
    background->performAll();
    EXPECT_EQ(valueAfter(2.0), std::nullopt);
    EXPECT_EQ(probe->reads, 3);
}

TEST_F(TimedSensorTest, AHangingSensorIsAbsentUntilItAnswers) {
    becomeSlow();
    EXPECT_EQ(valueAfter(60.0), 1.0); // however far apart the passes are
    EXPECT_EQ(valueAfter(9.9), 1.0);
    EXPECT_EQ(valueAfter(0.2), std::nullopt);
    background->performAll();
    EXPECT_EQ(valueAfter(60.0), 1.0);
    background->canRun = false;
    background->performAll();
    valueAfter(1.0);
    EXPECT_EQ(valueAfter(10.1), std::nullopt);
}

TEST_F(TimedSensorTest, OtherSensorsOfAVerySlowDeviceBeginInTheBackground) {
    auto* const known = new FakeProbe(*clock);
    TimedSensor wellKnown(std::unique_ptr<TimedSensor::Probe>(known), background, clock);
    wellKnown.value();
    becomeSlow();
    auto* const sibling = new FakeProbe(*clock);
    TimedSensor other(std::unique_ptr<TimedSensor::Probe>(sibling), background, clock);
    EXPECT_EQ(other.value(), std::nullopt);
    EXPECT_EQ(sibling->reads, 0);
    background->performAll();
    EXPECT_EQ(other.value(), 1.0);
    wellKnown.value();
    EXPECT_EQ(known->reads, 2); // showed that it is quick
}

TEST_F(TimedSensorTest, IsReadDirectlyAgainOnceItWasTheMachineThatWasSlow) {
    becomeSlow();
    probe->duration = 0.0;
    for (int i = 0; i < TimedSensor::quickReadsToReturn; ++i) {
        sensor.value();
        background->performAll();
    }
    sensor.value();
    background->performAll();
    const int reads = probe->reads;
    sensor.value();
    EXPECT_EQ(probe->reads, reads + 1);
    EXPECT_TRUE(background->jobs.empty());
}

TEST_F(TimedSensorTest, TriesAgainWhenNoThreadIsToBeHad) {
    becomeSlow();
    background->canRun = false;
    EXPECT_EQ(valueAfter(1.0), 1.0);
    background->canRun = true;
    sensor.value();
    EXPECT_EQ(background->jobs.size(), 1u);
}

TEST_F(TimedSensorTest, TheLastValueCostsNoRead) {
    EXPECT_EQ(sensor.lastValue(60.0), std::nullopt);
    sensor.value();
    clock->now += 59.0;
    EXPECT_EQ(sensor.lastValue(60.0), 1.0);
    clock->now += 2.0;
    EXPECT_EQ(sensor.lastValue(60.0), std::nullopt);
    EXPECT_EQ(probe->reads, 1);
}

/// A job that hangs until the gate opens, as a driver may.
struct GatedJob : Background::Job {
    std::mutex mutex;
    std::condition_variable changed;
    bool isOpen = false;
    bool hasBegun = false;
    bool isDone = false;

    void perform() override {
        std::unique_lock lock(mutex);
        hasBegun = true;
        changed.notify_all();
        changed.wait(lock, [this] { return isOpen; });
        isDone = true;
        changed.notify_all();
    }
    void open() {
        const std::lock_guard lock(mutex);
        isOpen = true;
        changed.notify_all();
    }
    bool comesTrue(const bool& condition) {
        std::unique_lock lock(mutex);
        return changed.wait_for(lock, std::chrono::seconds(10), [&] { return condition; });
    }
};

TEST(BackgroundThread, PerformsJobsAndNeverWaitsForOneThatHangs) {
    const auto hanging = std::make_shared<GatedJob>();
    const auto dropped = std::make_shared<GatedJob>();
    {
        BackgroundThread thread;
        const auto quick = std::make_shared<GatedJob>();
        quick->isOpen = true;
        ASSERT_TRUE(thread.run(quick));
        EXPECT_TRUE(quick->comesTrue(quick->isDone));
        ASSERT_TRUE(thread.run(hanging));
        ASSERT_TRUE(thread.run(dropped));
        EXPECT_TRUE(hanging->comesTrue(hanging->hasBegun));
    }
    EXPECT_EQ(dropped.use_count(), 1); // only its owner has it still
    hanging->open();
    EXPECT_TRUE(hanging->comesTrue(hanging->isDone));
}

} // namespace
} // namespace vantrix
