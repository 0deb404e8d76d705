#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vantrix {

struct TemperatureReading {
    std::string name;
    double value = 0.0; ///< °C

    bool operator==(const TemperatureReading&) const = default;
};

/// True between 0 and 150 °C, both excluded.
constexpr bool isPlausibleTemperature(double celsius) {
    return celsius > 0.0 && celsius < 150.0;
}

struct FanReading {
    int id = 0;       ///< fan index, 0 to 3
    double rpm = 0.0; ///< revolutions per minute
    std::optional<double> minRPM;
    std::optional<double> maxRPM;

    bool operator==(const FanReading&) const = default;
};

/// Average power of the chip's main components, in watts. Exists only when at least one field is present.
struct ComponentPower {
    std::optional<double> cpu;
    std::optional<double> gpu;
    std::optional<double> ane;
    std::optional<double> dram;

    bool operator==(const ComponentPower&) const = default;
};

/// Temperatures in °C, powers in watts.
struct SensorsSample {
    std::optional<double> cpu;
    std::optional<double> cpuHottest;
    std::optional<double> gpu;
    std::optional<double> soc;
    std::optional<double> ssd;
    std::optional<double> battery;
    std::vector<TemperatureReading> all; ///< every sensor, hottest first
    std::vector<FanReading> fans;        ///< at most 4
    std::optional<double> systemPower;
    std::optional<double> adapterPower;
    std::optional<ComponentPower> components;

    bool operator==(const SensorsSample&) const = default;
};

} // namespace vantrix
