#include "linux/kernel/autosuspend_grid.h"

#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>

#include "linux/graphics/linux_gpu_source.h"
#include "linux/opened_files.h"
#include "linux/sensors/linux_sensor_keys.h"
#include "linux/sensors/linux_temperatures.h"
#include "linux/temporary_folder.h"

namespace vantrix {
namespace {

struct SharedClock : Clock {
    explicit SharedClock(const double& seconds) : now(seconds) {}
    double uptime() const override { return now; }
    const double& now;
};

/// Passes over an idle graphics card, whose load, temperature and fan are asked for.
struct Card {
    TemporaryFolder folder;
    double now = 1000.3;
    LinuxGPUSource loads{folder.path("sys"), std::make_unique<SharedClock>(now), nullptr};
    LinuxTemperatures temperatures{folder.path("sys"), std::make_shared<SharedClock>(now)};
    LinuxSensorKeys keys{folder.path("sys"), std::make_shared<SharedClock>(now)};
    std::vector<HIDTemperatureSampler::Service> services;

    explicit Card(const std::string& delay) {
        const std::string device = "sys/devices/0000:0b:00.0/";
        folder.write(device + "power/runtime_status", "active\n");
        folder.write(device + "power/control", "auto\n");
        folder.write(device + "power/autosuspend_delay_ms", delay + '\n');
        folder.write(device + "gpu_busy_percent", "0\n");
        folder.write(device + "hwmon/hwmon3/name", "amdgpu\n");
        folder.write(device + "hwmon/hwmon3/temp1_input", "40000\n");
        folder.write(device + "hwmon/hwmon3/fan1_input", "900\n");
        link("../..", device + "hwmon/hwmon3/device");
        std::filesystem::create_directories(folder.path("sys/class/drm/card1"));
        std::filesystem::create_directories(folder.path("sys/class/hwmon"));
        link("../../../devices/0000:0b:00.0", "sys/class/drm/card1/device");
        link("../../devices/0000:0b:00.0/hwmon/hwmon3", "sys/class/hwmon/hwmon3");
    }
    void link(const std::string& target, const std::string& place) {
        std::filesystem::create_directory_symlink(target, folder.path(place));
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
        OpenedFiles opened(card.folder.path("sys/devices/0000:0b:00.0"));
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
