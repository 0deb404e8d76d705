#include <gtest/gtest.h>

#include "fakes/fixture_machine.h"
#include "linux/read_in_place.h"
#include "monitor/samplers.h"

namespace vantrix {
namespace {

TEST(SensorMachines, ReadAsTheyAre) {
    const ReadInPlace inPlace;
    const struct {
        const char* name;
        std::size_t sensors;
        SensorsSample sample; // of the list of all, the hottest
    } rows[] = {
        // A second pack that rests, empty places of the board's chip at 0 °C, a board that names a place after the CPU.
        {"laptop-many-sensors",
         35,
         {.cpu = 60.0,
          .cpuHottest = 60.0,
          .gpu = 44.0,
          .ssd = 36.0,
          .battery = 31.0,
          .all = {{"thinkpad processor", 61.0}},
          .fans = {{0, 2400.0, {}, {}}, {1, 0.0, {}, {}}},
          .systemPower = 9.5}},
        // Only three of eight connectors bear a fan; the graphics card's speed and limits are not asked.
        {"desktop-resting-disk-sleeping-gpu",
         6,
         {.cpu = 55.0,
          .cpuHottest = 55.0,
          .ssd = 29.0,
          .all = {{"nct6775 processor TIN", 127.5}},
          .fans = {{0, 702.0, 300.0, {}}, {1, 706.0, {}, {}}, {2, 707.0, {}, {}}},
          .systemPower = 88.0}},
        {"board-with-thermal-zones-alone",
         4,
         {.cpu = 45.0, .cpuHottest = 46.0, .gpu = 41.0, .soc = 43.0, .all = {{"CPU cpu1-thermal", 46.0}}}},
        {"arm-board", 1, {.cpu = 51.5, .cpuHottest = 51.5, .all = {{"CPU bcm2835_thermal", 51.5}}}},
        // A hot package above cool cores, beside a cool one.
        {"two-socket-server", 18, {.cpu = 76.0, .cpuHottest = 97.0, .all = {{"CPU package", 97.0}}}},
        // Chiplets below the processor's value; the edges of a card and of an integrated GPU.
        {"amd-desktop", 7, {.cpu = 68.0, .cpuHottest = 68.0, .gpu = 49.0, .all = {{"Graphics mem", 70.0}}}},
        {"laptop-with-two-packs", 6, {.cpu = 58.0, .cpuHottest = 58.0, .gpu = 49.0, .all = {{"Graphics mctp", 60.0}}}},
        {"container", 0, {}}, // no sensors at all
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const fakes::FixtureMachine machine(row.name);
        SensorsSample sample = Samplers(makeSamplingSources(machine.roots())).sensors.sample();
        EXPECT_EQ(sample.all.size(), row.sensors);
        sample.all.resize(std::min<std::size_t>(sample.all.size(), 1));
        EXPECT_EQ(sample.all, row.sample.all);
        EXPECT_EQ(sample.fans, row.sample.fans);
        EXPECT_EQ(sample, row.sample);
    }
}

TEST(SensorMachines, AGPUKeepsItsNameWhileAnotherSleeps) {
    const fakes::FixtureMachine machine("amd-desktop");
    machine.write("sys/class/hwmon/hwmon1/device/power/runtime_status", "suspended\n");
    const SensorsSample sample = Samplers(makeSamplingSources(machine.roots())).sensors.sample();
    EXPECT_EQ(sample.all[2], (TemperatureReading{"GPU 2 edge", 46.0}));
    EXPECT_EQ(sample.gpu, 46.0);
}

} // namespace
} // namespace vantrix
