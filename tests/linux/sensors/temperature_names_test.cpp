#include "linux/sensors/temperature_names.h"

#include <gmock/gmock.h>

namespace vantrix {
namespace {

using ::testing::ElementsAre;

TEST(TemperatureNames, SayTheComponent) {
    const struct {
        FoundTemperature sensor;
        const char* name;
    } rows[] = {
        {{"coretemp", "Package id 0", "", 1, false}, "CPU package 0"},
        {{"coretemp", "Core 12", "", 14, false}, "CPU core 12"},
        {{"k10temp", "Tctl", "", 1, false}, "CPU Tctl"},
        {{"zenpower", "Tccd1", "", 3, false}, "CPU Tccd1"},
        {{"cpu_thermal", "", "", 0, false}, "CPU"},
        {{"cpu-thermal", "cpu-thermal", "", 0, false}, "CPU cpu-thermal"},
        {{"amdgpu", "junction", "", 2, false}, "GPU junction"}, // the only one
        {{"xe", "pkg", "", 2, false}, "GPU pkg"},
        {{"xeon_board", "", "", 2, false}, "xeon_board 2"},
        {{"soc_dts0", "", "", 0, false}, "SoC"},
        {{"nvme", "Composite", "Fast Disk 980", 1, false}, "NAND Fast Disk 980 Composite"},
        {{"nvme", "Sensor 2", "Fast NAND 980", 3, false}, "Drive Fast flash 980 Sensor 2"},
        {{"nvme", "", "Old Disk", 0, false}, "NAND Old Disk"},
        {{"drivetemp", "", "", 0, false}, "NAND"},
        {{"BAT0", "", "", 0, true}, "Battery BAT0"},
        {{"acpitz", "", "", 1, false}, "Mainboard 1"},
        {{"iwlwifi_1", "", "", 0, false}, "Wi-Fi"},
        {{"nct6775", "SYSTIN", "", 1, false}, "nct6775 SYSTIN"},
        {{"battery-thermal", "battery-thermal", "", 0, false}, "battery-thermal"},
    };
    for (const auto& [sensor, name] : rows)
        EXPECT_THAT(temperatureNames({sensor}), ElementsAre(name));
}

TEST(TemperatureNames, BoardsSpeakForAComponentOnlyWhereItHasNoSensorOfItsOwn) {
    const FoundTemperature board{"thinkpad", "CPU", "", 1, false};
    const FoundTemperature boardGPU{"thinkpad", "GPU", "", 2, false};
    EXPECT_THAT(temperatureNames({board, boardGPU}), ElementsAre("thinkpad CPU", "thinkpad GPU"));
    EXPECT_THAT(temperatureNames({{"coretemp", "Core 0", "", 2, false}, board, boardGPU}),
                ElementsAre("CPU core 0", "thinkpad processor", "thinkpad GPU"));
    EXPECT_THAT(temperatureNames({{"BAT0", "", "", 0, true}, {"ec", "Battery 2", "", 1, false}}),
                ElementsAre("Battery BAT0", "ec Pack 2"));
}

TEST(TemperatureNames, OnlyTheEdgeStandsForAGraphicsCard) {
    EXPECT_THAT(temperatureNames({{"amdgpu", "edge", "", 1, false, 0},
                                  {"amdgpu", "junction", "", 2, false, 0},
                                  {"amdgpu", "junction", "", 1, false, 1},
                                  {"amdgpu", "mem", "", 2, false, 1}}),
                ElementsAre("GPU edge", "Graphics junction", "GPU junction", "Graphics mem"));
}

TEST(TemperatureNames, TakenWordsAreReplacedWhereverTheyStand) {
    const FoundTemperature own{"coretemp", "Core 0", "", 2, false};
    const struct {
        const char* label;
        const char* name;
    } rows[] = {
        {"CPU_VRM and CPU", "asus processor_VRM and processor"},
        {"CPU-Socket", "asus processor-Socket"},
        {"CPUTIN CPUCPU", "asus processor TIN processor processor"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(temperatureNames({own, {"asus", row.label, "", 1, false}})[1], row.name);
}

TEST(TemperatureNames, AnOffsetValueIsNoTemperatureOfTheProcessor) {
    EXPECT_THAT(temperatureNames({{"k10temp", "Tctl", "", 1, false}, {"k10temp", "Tdie", "", 2, false}}),
                ElementsAre("Processor control value", "CPU Tdie"));
}

} // namespace
} // namespace vantrix
