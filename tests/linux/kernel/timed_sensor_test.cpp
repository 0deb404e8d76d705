#include "linux/kernel/timed_sensor.h"

#include <vector>

#include <gtest/gtest.h>

#include "samplers/fake_clock.h"

namespace vantrix {
namespace {

/// Runs its jobs when the test says so, or somebody waits for them.
struct FakeBackground : Background {
    std::vector<std::shared_ptr<Job>> jobs;
    bool hangs = false;

    bool run(const std::shared_ptr<Job>& job) override {
        jobs.push_back(job);
        return true;
    }
    void wait(std::chrono::milliseconds) override {
        if (!hangs)
            performAll();
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
    FakeProbe* probe = nullptr;
    TimedSensor sensor = make(probe);

    TimedSensor make(FakeProbe*& made) {
        made = new FakeProbe(*clock);
        return {std::unique_ptr<TimedSensor::Probe>(made), background, clock};
    }
    std::optional<double> valueAfter(double seconds, double duration = 0.0) {
        clock->now += seconds;
        probe->duration = duration;
        return sensor.value();
    }
    void becomeSlow() { valueAfter(0.0, 0.021); }
};

TEST_F(TimedSensorTest, ASensorIsSlowOnceTheMachineCannotHaveHeldItUp) {
    for (const double duration : {0.0004, 0.003, 0.0004, 0.003, 0.003}) {
        EXPECT_EQ(valueAfter(2.0, duration), 1.0);
        EXPECT_TRUE(background->jobs.empty());
    }
    EXPECT_EQ(probe->reads, 5);
    probe->next.reset();
    EXPECT_EQ(valueAfter(2.0), 1.0); // two in a row were its own
    EXPECT_EQ(probe->reads, 5);
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
}

TEST_F(TimedSensorTest, OneVerySlowReadSendsAllSensorsOfItsDeviceToTheBackground) {
    FakeProbe* sibling = nullptr;
    TimedSensor other = make(sibling);
    EXPECT_EQ(other.value(), 1.0);
    valueAfter(0.0);
    becomeSlow();
    FakeProbe* unread = nullptr;
    TimedSensor third = make(unread);
    EXPECT_EQ(other.value(), 1.0);
    EXPECT_EQ(third.value(), std::nullopt);
    EXPECT_EQ(sibling->reads + unread->reads, 1);
    background->performAll();
    EXPECT_EQ(third.value(), 1.0);
}

TEST_F(TimedSensorTest, AFirstReadThatHangsHoldsNothingUp) {
    background->hangs = true;
    FakeProbe* sibling = nullptr;
    TimedSensor other = make(sibling);
    EXPECT_EQ(sensor.value(), std::nullopt);
    EXPECT_EQ(other.value(), std::nullopt);
    EXPECT_EQ(probe->reads + sibling->reads, 0);
    background->performAll();
    EXPECT_EQ(sensor.value(), 1.0);
}

TEST_F(TimedSensorTest, IsReadDirectlyAgainOnceItWasTheMachineThatWasSlow) {
    becomeSlow();
    for (int i = 0; i <= TimedSensor::quickReadsToReturn; ++i) {
        valueAfter(0.0);
        background->performAll();
    }
    const int reads = probe->reads;
    valueAfter(0.0);
    EXPECT_EQ(probe->reads, reads + 1);
    EXPECT_TRUE(background->jobs.empty());
}

} // namespace
} // namespace vantrix
