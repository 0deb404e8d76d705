#include "linux/sensors/linux_temperatures.h"

#include <map>

#include <gmock/gmock.h>

#include "linux/opened_files.h"
#include "linux/read_in_place.h"
#include "linux/temporary_folder.h"
#include "samplers/fake_clock.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

struct LinuxTemperaturesTest : ::testing::Test {
    ReadInPlace inPlace;
    TemporaryFolder folder;
    std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    LinuxTemperatures source{folder.path(""), clock};
    const std::string chip = "class/hwmon/hwmon0/";
    const std::string device = chip + "device/";

    void writeChip(int number, const char* name, const char* value) {
        folder.writeLines("class/hwmon/hwmon" + std::to_string(number), {{"name", name}, {"temp1_input", value}});
    }
    void passes(int count) {
        for (; count > 0; --count)
            read();
    }
    /// The sensors that have a value, by name.
    std::map<std::string, double> read() {
        std::vector<HIDTemperatureSampler::Service> services;
        EXPECT_TRUE(source.read(services));
        std::map<std::string, double> values;
        for (const auto& service : services) {
            if (service.temperature)
                values[*service.product] = *service.temperature;
        }
        return values;
    }
};

TEST_F(LinuxTemperaturesTest, NonsenseIsAbsentUntilTheSensorIsWell) {
    writeChip(0, "coretemp", "45500");
    folder.write(chip + "temp1_fault", "0\n");
    EXPECT_THAT(read(), ElementsAre(Pair("CPU", 45.5)));
    for (const char* text : {"", "45500", "x\n", "45500\n1\n", "99999999999999999999\n", "\n", "4e4\n"}) {
        folder.write(chip + "temp1_input", text);
        EXPECT_THAT(read(), IsEmpty()) << text;
    }
    folder.write(chip + "temp1_input", "-1000\n");
    EXPECT_THAT(read(), ElementsAre(Pair("CPU", -1.0))); // plausibility is the sampler's to judge
    folder.write(chip + "temp1_fault", "1\n");
    EXPECT_THAT(read(), IsEmpty());
}

TEST_F(LinuxTemperaturesTest, ARenumberedChipIsFoundAgain) {
    writeChip(0, "coretemp", "45000");
    writeChip(1, "nvme", "30000");
    EXPECT_THAT(read(), ElementsAre(Pair("CPU", 45.0), Pair("NAND", 30.0)));
    passes(5);
    folder.remove("class/hwmon/hwmon1");
    writeChip(2, "coretemp", "46000");
    writeChip(0, "nvme", "31000");
    passes(60);
    EXPECT_THAT(read(), ElementsAre(Pair("CPU", 46.0), Pair("NAND", 31.0)));
}

TEST_F(LinuxTemperaturesTest, ZonesStandInWhereNoChipIsTheProcessors) {
    folder.writeLines("class/thermal/thermal_zone0", {{"type", "soc-thermal"}, {"temp", "40000"}});
    folder.writeLines("class/thermal/thermal_zone1", {{"type", "cpu-thermal"}, {"temp", "50000"}});
    folder.write("class/hwmon/hwmon0/name", "pwmfan\n");
    EXPECT_THAT(read(), ElementsAre(Pair("CPU cpu-thermal", 50.0), Pair("SoC soc-thermal", 40.0)));
    writeChip(1, "nvme", "30000");
    writeChip(2, "soc_thermal", "41000"); // the zone once more
    passes(60);
    EXPECT_THAT(read(), ElementsAre(Pair("CPU cpu-thermal", 50.0), Pair("NAND", 30.0), Pair("SoC", 41.0)));
    writeChip(3, "coretemp", "45000");
    passes(60);
    EXPECT_EQ(read().count("CPU cpu-thermal"), 0u);
}

TEST_F(LinuxTemperaturesTest, WhatIsAskedByCommandIsAskedSeldom) {
    const auto valuesAfter = [&](double seconds, const char* text) {
        clock->now += seconds;
        writeChip(0, "nvme", text);
        writeChip(1, "nct6775", text);
        return read();
    };
    valuesAfter(0.0, "30000");
    EXPECT_THAT(valuesAfter(14.5, "31000"), ElementsAre(Pair("NAND", 30.0), Pair("nct6775", 31.0)));
    EXPECT_THAT(valuesAfter(1.0, "32000"), ElementsAre(Pair("NAND", 32.0), Pair("nct6775", 32.0)));
    EXPECT_THAT(valuesAfter(1.0, "33000"), ElementsAre(Pair("NAND", 32.0), Pair("nct6775", 33.0)));
}

/// An idle machine in a cool room reads the same whole degree for hours.
TEST_F(LinuxTemperaturesTest, ASensorThatStandsStillStaysShown) {
    writeChip(0, "coretemp", "40000");
    EXPECT_THAT(read(), ElementsAre(Pair("CPU", 40.0)));
    clock->now += 7200.0;
    EXPECT_THAT(read(), ElementsAre(Pair("CPU", 40.0)));
}

TEST_F(LinuxTemperaturesTest, GPUsOfNvidiaKeepTheirPlaces) {
    const auto nvidia = std::make_shared<TimedValues>(3);
    nvidia->front().set(40.0, clock->now);
    nvidia->back().set(60.0, clock->now);
    source = LinuxTemperatures(folder.path(""), clock, nvidia);
    EXPECT_THAT(read(), ElementsAre(Pair("GPU 3 NVIDIA", 60.0), Pair("GPU NVIDIA", 40.0)));
}

TEST_F(LinuxTemperaturesTest, ASleepingGPUIsNeverAsked) {
    writeChip(0, "amdgpu", "50000");
    folder.write(device + "power/runtime_status", "suspended\n");
    OpenedFiles opened(folder.path(chip));
    for (const char* state : {"suspended\n", "suspending\n", "resuming\n", "", "active\n", "suspended\n"}) {
        const bool isAwake = state == std::string("active\n");
        folder.write(device + "power/runtime_status", state);
        EXPECT_EQ(read().contains("GPU"), isAwake) << state;
        EXPECT_EQ(opened.take().contains("temp1_input"), isAwake) << state;
    }
}

TEST_F(LinuxTemperaturesTest, ASpinningDiskIsAskedOnlyAfterItWorked) {
    writeChip(0, "drivetemp", "33000");
    folder.writeLines(device, {{"model", "Big Disk"},
                               {"state", "running"},
                               {"block/sda/queue/rotational", "1"},
                               {"block/sda/stat", "1 2 3"}});
    passes(3);
    EXPECT_THAT(read(), IsEmpty());
    folder.write(device + "block/sda/stat", "1 2 4\n");
    EXPECT_THAT(read(), ElementsAre(Pair("NAND Big Disk", 33.0)));
    folder.write(chip + "temp1_input", "34000\n");
    EXPECT_THAT(read(), ElementsAre(Pair("NAND Big Disk", 33.0)));
    clock->now += 61.0;
    EXPECT_THAT(read(), IsEmpty());
    folder.writeLines(device, {{"block/sda/stat", "1 2 5"}, {"state", "offline"}});
    EXPECT_THAT(read(), IsEmpty());
}

} // namespace
} // namespace vantrix
