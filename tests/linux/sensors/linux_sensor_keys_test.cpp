#include "linux/sensors/linux_sensor_keys.h"

#include <gtest/gtest.h>

#include "linux/read_in_place.h"
#include "linux/temporary_folder.h"
#include "samplers/fake_clock.h"

namespace vantrix {
namespace {

struct LinuxSensorKeysTest : ::testing::Test {
    ReadInPlace inPlace;
    TemporaryFolder folder;
    std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    LinuxSensorKeys keys{folder.path(""), clock};

    std::optional<double> readInNewPass(std::string_view key) {
        clock->now += 2.0;
        const auto fans = keys.value("FNum");
        return key == "FNum" ? fans : keys.value(key);
    }
    void write(const std::string& device, std::initializer_list<std::pair<const char*, std::string>> files) {
        folder.writeLines("class/" + device, files);
    }
};

TEST_F(LinuxSensorKeysTest, FansThatTurnComeFirst) {
    write("hwmon/hwmon0", {{"name", "nct6775"},
                           {"fan1_input", "0"},
                           {"fan2_input", "900"},
                           {"fan2_max", "9223372036854775807"},
                           {"fan10_input", "800"}});
    write("hwmon/hwmon1", {{"name", "amdgpu"}, {"fan1_input", "1200"}, {"fan1_min", "0"}, {"fan1_max", "3300"}});
    EXPECT_EQ(readInNewPass("FNum"), 4.0);
    const std::pair<const char*, std::optional<double>> rows[] = {{"F0Ac", 1200.0}, {"F0Mn", 0.0}, {"F0Mx", 3300.0},
                                                                  {"F1Ac", 900.0},  {"F1Mx", {}},  {"F2Ac", 800.0},
                                                                  {"F3Ac", 0.0}};
    for (const auto& [key, value] : rows)
        EXPECT_EQ(keys.value(key), value) << key;
}

TEST_F(LinuxSensorKeysTest, FansOfASleepingGPUAreAbsent) {
    write("hwmon/hwmon0", {{"name", "amdgpu"}, {"fan1_input", "1200"}, {"device/power/runtime_status", "active"}});
    EXPECT_EQ(readInNewPass("F0Ac"), 1200.0);
    write("hwmon/hwmon0", {{"device/power/runtime_status", "suspended"}});
    EXPECT_EQ(readInNewPass("F0Ac"), std::nullopt);
}

TEST_F(LinuxSensorKeysTest, AdaptersTellWhatTheyDeliver) {
    write("power_supply/AC",
          {{"type", "Mains"}, {"online", "1"}, {"current_now", "2000000"}, {"voltage_now", "20000000"}});
    write("power_supply/ucsi-source-psy-1",
          {{"type", "USB"}, {"online", "1"}, {"current_now", "3000000"}, {"voltage_now", "20000000"}});
    EXPECT_EQ(readInNewPass("PDTR"), 40.0);
    write("power_supply/AC", {{"online", "0"}});
    EXPECT_EQ(readInNewPass("PDTR"), std::nullopt);
}

TEST_F(LinuxSensorKeysTest, ThePlatformsCounterComesBeforeMetersAndPacks) {
    write("power_supply/BAT0", {{"type", "Battery"}, {"status", "Discharging"}, {"power_now", "8000000"}});
    write("hwmon/hwmon0", {{"name", "power_meter"}, {"power1_average", "9000000"}});
    write("powercap/intel-rapl:1", {{"name", "psys"}, {"energy_uj", "4000000"}, {"max_energy_range_uj", "10000000"}});
    EXPECT_EQ(readInNewPass("PSTR"), 9.0); // one reading is no power yet
    write("powercap/intel-rapl:1", {{"energy_uj", "9000000"}});
    EXPECT_EQ(readInNewPass("PSTR"), 2.5);
    write("powercap/intel-rapl:1", {{"energy_uj", "5000000"}}); // wrapped
    EXPECT_EQ(readInNewPass("PSTR"), 3.0);
    EXPECT_EQ(readInNewPass("PSTR"), 9.0); // stands still
    write("hwmon/hwmon0", {{"power1_average", "-"}});
    EXPECT_EQ(readInNewPass("PSTR"), 8.0);
}

} // namespace
} // namespace vantrix
