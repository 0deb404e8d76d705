#include "platform/linux/sources/linux_temperatures.h"

#include <map>

#include <sys/inotify.h>
#include <unistd.h>

#include <gmock/gmock.h>

#include "samplers/fake_clock.h"
#include "temporary_folder.h"

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

TEST_F(LinuxTemperaturesTest, ZonesStandInWhereNoChipHasATemperature) {
    folder.write("class/thermal/thermal_zone0/type", "soc-thermal\n");
    folder.write("class/thermal/thermal_zone0/temp", "40000\n");
    folder.write("class/thermal/thermal_zone1/type", "cpu-thermal\n");
    folder.write("class/thermal/thermal_zone1/temp", "50000\n");
    folder.write("class/hwmon/hwmon0/name", "pwmfan\n");
    EXPECT_THAT(read(), ElementsAre(Pair("CPU cpu-thermal", 50.0), Pair("SoC soc-thermal", 40.0)));
    writeChip("hwmon1", "coretemp", "45000\n");
    passes(60);
    EXPECT_THAT(read(), ElementsAre(Pair("CPU", 45.0)));
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
