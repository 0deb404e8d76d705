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
    using Kind = TimedSensor::Kind;

    std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    std::shared_ptr<FakeBackground> background = std::make_shared<FakeBackground>();
    FakeProbe* probe = nullptr;
    TimedSensor device = make(Kind::device);

    TimedSensor make(Kind kind) {
        probe = new FakeProbe(*clock);
        return {std::unique_ptr<TimedSensor::Probe>(probe), background, clock, kind};
    }
    std::optional<double> valueAfter(TimedSensor& sensor, double seconds, double duration = 0.0) {
        clock->now += seconds;
        probe->duration = duration;
        return sensor.value();
    }
};

TEST_F(TimedSensorTest, ADeviceNeverDelaysAPass) {
    EXPECT_EQ(valueAfter(device, 0.0), 1.0); // waited for
    background->hangs = true;
    probe->next = 2.0;
    EXPECT_EQ(valueAfter(device, 2.0), 1.0);
    EXPECT_EQ(valueAfter(device, 2.0), 1.0);
    EXPECT_EQ(probe->reads, 1);
    EXPECT_EQ(background->jobs.size(), 1u); // one read at a time
    background->performAll();
    EXPECT_EQ(valueAfter(device, 2.0), 2.0);
    probe->next.reset();
    background->performAll();
    EXPECT_EQ(valueAfter(device, 2.0), std::nullopt);
    EXPECT_EQ(probe->reads, 3);
}

TEST_F(TimedSensorTest, AnOldValueIsRenewedBeforeItIsShown) {
    valueAfter(device, 0.0);
    probe->next = 2.0;
    EXPECT_EQ(valueAfter(device, 2.9), 1.0);
    background->performAll();
    probe->next = 3.0;
    EXPECT_EQ(valueAfter(device, 3600.0, 0.006), 3.0);
    probe->next = 4.0;
    EXPECT_EQ(valueAfter(device, 3600.0), 3.0) << "not for one that is slow";
}

TEST_F(TimedSensorTest, AHangingDeviceIsAbsentUntilItAnswers) {
    background->hangs = true;
    EXPECT_EQ(valueAfter(device, 0.0), std::nullopt);
    background->performAll();
    EXPECT_EQ(valueAfter(device, 0.0), 1.0);
    EXPECT_EQ(valueAfter(device, 9.9), 1.0);
    EXPECT_EQ(valueAfter(device, 0.2), std::nullopt);
    background->performAll();
    EXPECT_EQ(valueAfter(device, 60.0), 1.0); // however far apart the passes are
}

TEST_F(TimedSensorTest, RegistersAreReadDirectlyUnlessTheyAreSlow) {
    TimedSensor quick = make(Kind::registers);
    valueAfter(quick, 0.0); // the first is waited for
    background->hangs = true;
    for (const double duration : {0.0004, 0.003, 0.0004, 0.003, 0.003}) {
        EXPECT_EQ(valueAfter(quick, 2.0, duration), 1.0);
        EXPECT_TRUE(background->jobs.empty());
    }
    probe->next.reset();
    EXPECT_EQ(valueAfter(quick, 2.0), 1.0); // two in a row were its own
    EXPECT_EQ(probe->reads, 6);
    EXPECT_EQ(background->jobs.size(), 1u);
}

TEST_F(TimedSensorTest, RegistersAreReadDirectlyAgainOnceItWasTheMachineThatWasSlow) {
    TimedSensor quick = make(Kind::registers);
    valueAfter(quick, 0.0);
    valueAfter(quick, 0.0, 0.021); // once is enough
    background->hangs = true;
    valueAfter(quick, 0.0);
    EXPECT_EQ(probe->reads, 2);
    for (int i = 0; i < TimedSensor::quickReadsToReturn; ++i) {
        background->performAll();
        valueAfter(quick, 0.0);
    }
    EXPECT_EQ(probe->reads, 2 + TimedSensor::quickReadsToReturn + 1);
    EXPECT_TRUE(background->jobs.empty()) << "two threads would read at once";
}

} // namespace
} // namespace vantrix
