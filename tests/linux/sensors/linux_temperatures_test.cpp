#include "linux/sensors/linux_temperatures.h"

#include <map>

#include <gmock/gmock.h>

#include "linux/opened_files.h"
#include "linux/sensors/linux_sensor_keys.h"
#include "linux/temporary_folder.h"
#include "samplers/fake_clock.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

struct LinuxTemperaturesTest : ::testing::Test {
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
    EXPECT_THAT(read(), ElementsAre(Pair("CPU", 45.0), Pair("NAND", 30.0), Pair("SoC", 41.0)));
}

TEST_F(LinuxTemperaturesTest, ChipsRegisteredTheOldWayKeepTheirSensorsInTheDevice) {
    folder.writeLines(device, {{"name", "coretemp"}, {"temp1_input", "45000"}, {"power/runtime_status", "active"}});
    EXPECT_THAT(read(), ElementsAre(Pair("CPU", 45.0)));
    folder.write(device + "power/runtime_status", "suspended\n");
    EXPECT_THAT(read(), IsEmpty());
}

TEST_F(LinuxTemperaturesTest, WhatIsAskedByCommandIsAskedSeldom) {
    const struct {
        const char* chip;
        bool isSeldom; // every 15 s
    } rows[] = {{"nvme", true},         {"drivetemp", true}, {"iwlwifi_1", true}, {"mt7921_phy0", true},
                {"ath11k_hwmon", true}, {"coretemp", false}, {"nct6775", false}};
    for (const auto& row : rows) {
        const auto valueAfter = [&](double seconds, const char* text) {
            clock->now += seconds;
            writeChip(0, row.chip, text);
            return read().begin()->second;
        };
        folder.remove("class/hwmon");
        passes(60);
        writeChip(0, row.chip, "30000");
        passes(60);
        EXPECT_EQ(valueAfter(14.5, "31000"), row.isSeldom ? 30.0 : 31.0) << row.chip;
        EXPECT_EQ(valueAfter(1.0, "32000"), 32.0) << row.chip;
        EXPECT_EQ(valueAfter(1.0, "33000"), row.isSeldom ? 32.0 : 33.0) << row.chip;
    }
}

TEST_F(LinuxTemperaturesTest, BatteriesOfAccessoriesAreNotThisMachines) {
    writeChip(0, "BAT0", "31000");
    writeChip(1, "hidpp_battery_0", "25000");
    folder.write("class/hwmon/hwmon0/device/type", "Battery\n");
    folder.writeLines("class/hwmon/hwmon1/device", {{"type", "Battery"}, {"scope", "Device"}});
    EXPECT_THAT(read(), ElementsAre(Pair("Battery BAT0", 31.0)));
}

TEST_F(LinuxTemperaturesTest, AProcessorsSensorThatStandsStillForAnHourIsFrozen) {
    writeChip(0, "coretemp", "45000");
    writeChip(1, "nvme", "30000");
    EXPECT_EQ(read().size(), 2u);
    clock->now += 3590.0;
    EXPECT_EQ(read().size(), 2u);
    clock->now += 20.0;
    EXPECT_THAT(read(), ElementsAre(Pair("NAND", 30.0)));
    writeChip(0, "coretemp", "46000");
    EXPECT_EQ(read().size(), 2u);
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

/// Reading a temperature of a GPU starts its autosuspend delay anew as reading its load does.
TEST_F(LinuxTemperaturesTest, AnAutosuspendingGPUIsAskedOnTheGridAlone) {
    folder.writeLines(device + "power",
                      {{"runtime_status", "active"}, {"control", "auto"}, {"autosuspend_delay_ms", "5000"}});
    folder.write(chip + "fan1_input", "900\n");
    clock->now = 120.0;
    LinuxSensorKeys keys(folder.path(""), clock);
    const struct {
        double seconds; // since the last
        const char* value;
        double temperature;
        const char* control = "auto";
    } rows[] = {{0.0, "50000", 50.0}, {2.0, "51000", 50.0}, {3.9, "52000", 50.0},       {0.2, "53000", 53.0},
                {5.8, "54000", 53.0}, {0.2, "55000", 55.0}, {6.0, "56000", 56.0, "on"}, {1.0, "57000", 57.0, "on"}};
    for (const auto& row : rows) {
        clock->now += row.seconds;
        folder.write(device + "power/control", row.control + std::string("\n"));
        writeChip(0, "amdgpu", row.value);
        folder.write(chip + "fan1_input", row.value + std::string("\n"));
        keys.value("FNum");
        EXPECT_THAT(read(), ElementsAre(Pair("GPU", row.temperature))) << row.value;
        EXPECT_EQ(keys.value("F0Ac"), row.temperature * 1000.0) << row.value;
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
