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
        {{"cpu-thermal", "cpu-thermal", "", 0, false}, "CPU cpu-thermal"},
        {{"amdgpu", "junction", "", 2, false}, "GPU junction"}, // the only one
        {{"xeon_board", "", "", 2, false}, "xeon_board 2"},
        {{"nvme", "Composite", "Fast Disk 980", 1, false}, "NAND Fast Disk 980 Composite"},
        {{"nvme", "Sensor 2", "Fast NAND 980", 3, false}, "Drive Fast flash 980 Sensor 2"},
        {{"BAT0", "", "", 0, true}, "Battery BAT0"},
        {{"nct6775", "SYSTIN", "", 1, false}, "nct6775 SYSTIN"},
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
}

} // namespace
} // namespace vantrix
