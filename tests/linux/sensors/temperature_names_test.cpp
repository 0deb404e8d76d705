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
        {{"coretemp", "Package id 0", "", 1, false}, "CPU package"},
        {{"coretemp", "Core 12", "", 14, false}, "CPU core 12"},
        {{"k10temp", "Tctl", "", 1, false}, "CPU Tctl"},
        {{"cpu-thermal", "cpu-thermal", "", 0, false}, "CPU cpu-thermal"},
        {{"soc_thermal", "", "", 0, false}, "CPU and SoC"},
        {{"xe", "vram", "", 3, false}, "Graphics vram"},
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

TEST(TemperatureNames, TellWholesFromPartsAndDevicesOfOneKindApart) {
    using Labels = std::vector<const char*>;
    const struct {
        const char* chip;
        std::vector<Labels> devices;
        Labels names;
    } rows[] = {
        {"coretemp",
         {{"Package id 0", "Core 0"}, {"Physical id 1", "Core 0"}},
         {"CPU package", "Core 0", "CPU 2 package", "Core 0 (socket 2)"}},
        {"zenpower",
         {{"Tdie", "Tctl", "Tccd1"}, {"Tdie", "Tctl"}},
         {"CPU Tdie", "Processor control value", "CCD 1", "CPU 2 Tdie", "Processor control value (socket 2)"}},
        {"coretemp", {{"Core 0", "Core 1"}}, {"CPU core 0", "CPU core 1"}},
        {"amdgpu",
         {{"edge", "junction"}, {"edge"}, {"junction", "mem"}},
         {"GPU edge", "Graphics junction", "GPU 2 edge", "GPU 3 junction", "Graphics 3 mem"}},
    };
    for (const auto& row : rows) {
        std::vector<FoundTemperature> all;
        for (std::size_t device = 0; device < row.devices.size(); ++device) {
            for (int number = 1; const char* label : row.devices[device])
                all.push_back({row.chip, label, "", number++, false, device});
        }
        EXPECT_THAT(temperatureNames(all), ::testing::ElementsAreArray(row.names));
    }
}

} // namespace
} // namespace vantrix
