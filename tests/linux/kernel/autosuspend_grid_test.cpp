#include "linux/kernel/autosuspend_grid.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "fakes/fixture_machine.h"
#include "linux/graphics/linux_gpu_source.h"
#include "linux/opened_files.h"
#include "linux/read_in_place.h"
#include "linux/sensors/linux_sensor_keys.h"
#include "linux/sensors/linux_temperatures.h"

namespace vantrix {
namespace {

struct SharedClock : Clock {
    explicit SharedClock(const double& seconds) : now(seconds) {}
    double uptime() const override { return now; }
    const double& now;
};

/// Passes over an idle graphics card, whose load, temperature and fan are asked for.
struct Card {
    ReadInPlace inPlace;
    fakes::FixtureMachine machine{"idle-card"};
    double now = 1000.3;
    LinuxGPUSource loads{machine.path("sys"), std::make_unique<SharedClock>(now), nullptr};
    LinuxTemperatures temperatures{machine.path("sys"), std::make_shared<SharedClock>(now)};
    LinuxSensorKeys keys{machine.path("sys"), std::make_shared<SharedClock>(now)};
    std::vector<HIDTemperatureSampler::Service> services;

    explicit Card(const char* delay) {
        machine.write("sys/devices/0000:0b:00.0/power/autosuspend_delay_ms", delay + std::string(1, '\n'));
    }

    void pass() {
        EXPECT_TRUE(loads.read());
        EXPECT_TRUE(temperatures.read(services));
        EXPECT_EQ(services.at(0).temperature, 40.0); // whether asked or not
        EXPECT_EQ(keys.value("FNum"), 1.0);
        EXPECT_EQ(keys.value("F0Ac"), 900.0);
    }
};

TEST(AutosuspendGrid, AllWhoAskLeaveACardTheTimeToFallAsleep) {
    const struct {
        const char* delay; // milliseconds
        double interval;   // seconds between passes
    } rows[] = {{"5000", 1.0}, {"5000", 3.0}, {"5000", 10.0}, {"1000", 2.0}, {"10000", 2.0}};
    for (const auto& row : rows) {
        Card card(row.delay);
        card.pass();
        OpenedFiles opened(card.machine.path("sys/devices/0000:0b:00.0"));
        const double begin = card.now;
        double lastQuestion = begin;
        double longestRest = 0.0;
        while (card.now < begin + 40.0) {
            card.now += row.interval;
            card.pass();
            auto files = opened.take();
            for (const char* harmless : {"runtime_status", "control", "autosuspend_delay_ms", "boot_vga"})
                files.erase(harmless);
            if (files.empty())
                continue;
            longestRest = std::max(longestRest, card.now - lastQuestion);
            lastQuestion = card.now;
        }
        EXPECT_GT(longestRest, std::stod(row.delay) / 1000.0) << row.delay << ' ' << row.interval;
        EXPECT_LE(longestRest, AutosuspendGrid::longestPeriod + row.interval);
    }
}

} // namespace
} // namespace vantrix
