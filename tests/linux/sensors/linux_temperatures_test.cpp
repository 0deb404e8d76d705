#include "linux/sensors/linux_temperatures.h"

#include <map>

#include <sys/inotify.h>
#include <unistd.h>

#include <gmock/gmock.h>

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

    void writeChip(const std::string& entry, const std::string& name, const std::string& value) {
        folder.write("class/hwmon/" + entry + "/name", name + '\n');
        folder.write("class/hwmon/" + entry + "/temp1_input", value);
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
    writeChip("hwmon0", "coretemp", "45500\n");
    folder.write("class/hwmon/hwmon0/temp1_fault", "0\n");
    EXPECT_THAT(read(), ElementsAre(Pair("CPU", 45.5)));
    for (const char* text : {"", "45500", "x\n", "45500\n1\n", "99999999999999999999\n", "\n", "4e4\n"}) {
        folder.write("class/hwmon/hwmon0/temp1_input", text);
        EXPECT_THAT(read(), IsEmpty()) << text;
    }
    folder.write("class/hwmon/hwmon0/temp1_input", "-1000\n");
    EXPECT_THAT(read(), ElementsAre(Pair("CPU", -1.0))); // plausibility is the sampler's to judge
    folder.write("class/hwmon/hwmon0/temp1_fault", "1\n");
    EXPECT_THAT(read(), IsEmpty());
}

TEST_F(LinuxTemperaturesTest, ARenumberedChipIsFoundAgain) {
    writeChip("hwmon0", "coretemp", "45000\n");
    writeChip("hwmon1", "nvme", "30000\n");
    EXPECT_THAT(read(), ElementsAre(Pair("CPU", 45.0), Pair("NAND", 30.0)));
    passes(5);
    folder.remove("class/hwmon/hwmon0");
    folder.remove("class/hwmon/hwmon1");
    writeChip("hwmon2", "coretemp", "46000\n");
    writeChip("hwmon0", "nvme", "31000\n");
    passes(60);
    EXPECT_THAT(read(), ElementsAre(Pair("CPU", 46.0), Pair("NAND", 31.0)));
}

TEST_F(LinuxTemperaturesTest, ZonesStandInWhereNoChipIsTheProcessors) {
    folder.write("class/thermal/thermal_zone0/type", "soc-thermal\n");
    folder.write("class/thermal/thermal_zone0/temp", "40000\n");
    folder.write("class/thermal/thermal_zone1/type", "cpu-thermal\n");
    folder.write("class/thermal/thermal_zone1/temp", "50000\n");
    folder.write("class/hwmon/hwmon0/name", "pwmfan\n");
    EXPECT_THAT(read(), ElementsAre(Pair("CPU cpu-thermal", 50.0), Pair("SoC soc-thermal", 40.0)));
    writeChip("hwmon1", "nvme", "30000\n");
    writeChip("hwmon2", "soc_thermal", "41000\n"); // the zone once more
    passes(60);
    EXPECT_THAT(read(), ElementsAre(Pair("CPU cpu-thermal", 50.0), Pair("NAND", 30.0), Pair("SoC", 41.0)));
    writeChip("hwmon3", "coretemp", "45000\n");
    passes(60);
    EXPECT_THAT(read(), ElementsAre(Pair("CPU", 45.0), Pair("NAND", 30.0), Pair("SoC", 41.0)));
}

TEST_F(LinuxTemperaturesTest, ChipsRegisteredTheOldWayKeepTheirSensorsInTheDevice) {
    const std::string device = "class/hwmon/hwmon0/device/";
    folder.write(device + "name", "coretemp\n");
    folder.write(device + "temp1_input", "45000\n");
    EXPECT_THAT(read(), ElementsAre(Pair("CPU", 45.0)));
    folder.write(device + "power/runtime_status", "suspended\n");
    LinuxTemperatures another(folder.path(""), clock);
    std::vector<HIDTemperatureSampler::Service> services;
    EXPECT_TRUE(another.read(services));
    ASSERT_EQ(services.size(), 1u);
    EXPECT_EQ(services[0].temperature, std::nullopt);
}

TEST_F(LinuxTemperaturesTest, WhatIsAskedByCommandIsAskedSeldom) {
    const struct {
        const char* chip;
        double interval; // seconds
    } rows[] = {{"nvme", 15.0},         {"drivetemp", 15.0}, {"iwlwifi_1", 15.0}, {"mt7921_phy0", 15.0},
                {"ath11k_hwmon", 15.0}, {"coretemp", 0.0},   {"nct6775", 0.0}};
    for (const auto& row : rows) {
        const auto value = [&](double seconds, const char* text) {
            clock->now += seconds;
            writeChip("hwmon0", row.chip, text);
            return read().begin()->second;
        };
        folder.remove("class/hwmon");
        passes(60);
        writeChip("hwmon0", row.chip, "30000\n");
        passes(60);
        EXPECT_EQ(value(14.5, "31000\n"), row.interval > 0.0 ? 30.0 : 31.0) << row.chip;
        EXPECT_EQ(value(1.0, "32000\n"), 32.0) << row.chip;
        EXPECT_EQ(value(1.0, "33000\n"), row.interval > 0.0 ? 32.0 : 33.0) << row.chip;
    }
}

TEST_F(LinuxTemperaturesTest, BatteriesOfAccessoriesAreNotThisMachines) {
    writeChip("hwmon0", "BAT0", "31000\n");
    folder.write("class/hwmon/hwmon0/device/type", "Battery\n");
    writeChip("hwmon1", "hidpp_battery_0", "25000\n");
    folder.write("class/hwmon/hwmon1/device/type", "Battery\n");
    folder.write("class/hwmon/hwmon1/device/scope", "Device\n");
    EXPECT_THAT(read(), ElementsAre(Pair("Battery BAT0", 31.0)));
}

TEST_F(LinuxTemperaturesTest, AProcessorsSensorThatStandsStillForAnHourIsFrozen) {
    writeChip("hwmon0", "coretemp", "45000\n");
    writeChip("hwmon1", "nvme", "30000\n");
    EXPECT_EQ(read().size(), 2u);
    clock->now += 3590.0;
    EXPECT_EQ(read().size(), 2u);
    clock->now += 20.0;
    EXPECT_THAT(read(), ElementsAre(Pair("NAND", 30.0)));
    writeChip("hwmon0", "coretemp", "46000\n");
    EXPECT_EQ(read().size(), 2u);
}

TEST_F(LinuxTemperaturesTest, ASleepingGPUIsNeverAsked) {
    const std::string status = "class/hwmon/hwmon0/device/power/runtime_status";
    writeChip("hwmon0", "amdgpu", "50000\n");
    const FileDescriptor touches(inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    ASSERT_GE(
        inotify_add_watch(touches.get(), folder.path("class/hwmon/hwmon0/temp1_input").c_str(), IN_OPEN | IN_ACCESS),
        0);
    const auto wasTouched = [&] {
        char events[4096];
        return ::read(touches.get(), events, sizeof events) > 0;
    };
    for (const char* state : {"suspended\n", "suspending\n", "resuming\n", ""}) {
        folder.write(status, state);
        EXPECT_THAT(read(), IsEmpty()) << state;
        EXPECT_FALSE(wasTouched()) << state;
    }
    folder.write(status, "active\n");
    EXPECT_THAT(read(), ElementsAre(Pair("GPU", 50.0)));
    EXPECT_TRUE(wasTouched());
    folder.write(status, "suspended\n");
    EXPECT_THAT(read(), IsEmpty());
    EXPECT_FALSE(wasTouched());
}

/// Reading a temperature of a GPU starts its autosuspend delay anew as reading its load does.
TEST_F(LinuxTemperaturesTest, AnAutosuspendingGPUIsAskedOnTheGridAlone) {
    const std::string device = "class/hwmon/hwmon0/device/";
    folder.write(device + "power/runtime_status", "active\n");
    folder.write(device + "power/control", "auto\n");
    folder.write(device + "power/autosuspend_delay_ms", "5000\n");
    folder.write("class/hwmon/hwmon0/fan1_input", "900\n");
    clock->now = 120.0;
    LinuxSensorKeys keys(folder.path(""), clock);
    const auto pass = [&](double seconds, const char* temperature, const char* fan) {
        clock->now += seconds;
        writeChip("hwmon0", "amdgpu", temperature + std::string("000\n"));
        folder.write("class/hwmon/hwmon0/fan1_input", fan + std::string("\n"));
        keys.value("FNum");
        return std::pair(read()["GPU"], keys.value("F0Ac").value_or(-1.0));
    };
    EXPECT_EQ(pass(0.0, "50", "900"), std::pair(50.0, 900.0));
    EXPECT_EQ(pass(2.0, "51", "910"), std::pair(50.0, 900.0));
    EXPECT_EQ(pass(3.9, "52", "920"), std::pair(50.0, 900.0));
    EXPECT_EQ(pass(0.2, "53", "930"), std::pair(53.0, 930.0));
    EXPECT_EQ(pass(5.8, "54", "940"), std::pair(53.0, 930.0));
    EXPECT_EQ(pass(0.2, "55", "950"), std::pair(55.0, 950.0));
    folder.write(device + "power/control", "on\n");
    EXPECT_EQ(pass(6.0, "56", "960"), std::pair(56.0, 960.0));
    EXPECT_EQ(pass(1.0, "57", "970"), std::pair(57.0, 970.0));
}

TEST_F(LinuxTemperaturesTest, ASpinningDiskIsAskedOnlyAfterItWorked) {
    const std::string disk = "class/hwmon/hwmon0/device/";
    writeChip("hwmon0", "drivetemp", "33000\n");
    folder.write(disk + "model", "Big Disk\n");
    folder.write(disk + "state", "running\n");
    folder.write(disk + "block/sda/queue/rotational", "1\n");
    folder.write(disk + "block/sda/stat", "1 2 3\n");
    passes(3);
    EXPECT_THAT(read(), IsEmpty());
    folder.write(disk + "block/sda/stat", "1 2 4\n");
    EXPECT_THAT(read(), ElementsAre(Pair("NAND Big Disk", 33.0)));
    folder.write("class/hwmon/hwmon0/temp1_input", "34000\n");
    EXPECT_THAT(read(), ElementsAre(Pair("NAND Big Disk", 33.0)));
    clock->now += 61.0;
    EXPECT_THAT(read(), IsEmpty());
    folder.write(disk + "block/sda/stat", "1 2 5\n");
    folder.write(disk + "state", "offline\n");
    EXPECT_THAT(read(), IsEmpty());
}

} // namespace
} // namespace vantrix
