#pragma once

#include <algorithm>

#include <gtest/gtest.h>

#include "monitor/readings.h"
#include "monitor/samplers.h"

namespace vantrix::fakes {

inline bool isFraction(double value) {
    return value >= 0.0 && value <= 1.0;
}

inline bool isTemperature(double value) {
    return value > 0.0 && value < 150.0;
}

inline void expectPlausible(const Readings& readings) {
    EXPECT_TRUE(isFraction(readings.cpu.total)) << readings.cpu.total;
    EXPECT_TRUE(isFraction(usedFraction(readings.memory)));
    EXPECT_TRUE(isFraction(readings.gpu.value_or(0.0)));
    const BatterySample battery = readings.battery.value_or(BatterySample());
    EXPECT_TRUE(battery.percent >= 0 && battery.percent <= 100) << battery.percent;
    EXPECT_LT(battery.watts.value_or(0.0), 400.0);
    EXPECT_LE(battery.temperature.value_or(0.0), 150.0);
    const auto isFan = [](const FanReading& fan) {
        return fan.rpm >= 0.0 && std::max({fan.rpm, fan.minRPM.value_or(0.0), fan.maxRPM.value_or(0.0)}) < 20000.0;
    };
    const SensorsSample& sensors = readings.sensors;
    EXPECT_TRUE(isTemperature(sensors.cpu.value_or(1.0)) && isTemperature(sensors.cpuHottest.value_or(1.0)));
    for (const TemperatureReading& sensor : sensors.all)
        EXPECT_TRUE(isTemperature(sensor.value)) << sensor.value;
    EXPECT_TRUE(std::all_of(sensors.fans.begin(), sensors.fans.end(), isFan));
    EXPECT_LT(sensors.systemPower.value_or(1.0), 600.0);
    for (const AccessoryBattery& accessory : readings.accessories)
        EXPECT_TRUE(accessory.percent >= 0 && accessory.percent <= 100) << accessory.percent;
}

/// One pass of all. The samplers end the program on sums past 64 bits, so no file may make a source hand out such
/// numbers.
inline void plausiblePass(Samplers& samplers) {
    Readings readings;
    if (const CPUSample* cpu = samplers.cpu.sample())
        readings.cpu = *cpu;
    readings.memory = samplers.memory.sample().value_or(MemorySample());
    samplers.network.sample();
    samplers.networkInfo->sample(true, 3);
    samplers.disk.sample();
    if (const ProcessSample* programs = samplers.processes->sample()) {
        for (const ProgramShare& program : programs->busiest)
            EXPECT_TRUE(isFraction(program.cpu)) << program.cpu;
    }
    samplers.sources.information->text("machdep.cpu.brand_string");
    samplers.sources.information->integer("hw.perflevel0.logicalcpu");
    readings.gpu = samplers.gpu->sample();
    readings.battery = samplers.battery->sample();
    readings.sensors = samplers.sensors.sample();
    readings.accessories = batteriesOf(samplers.sources.accessories->scan().accessories);
    expectPlausible(readings);
}

} // namespace vantrix::fakes
