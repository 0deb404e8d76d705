#pragma once

namespace vantrix {

enum class TemperatureUnit { celsius, fahrenheit };
enum class NetworkUnit { bytes, bits };
/// What 2³⁰ bytes of memory are called: memory is counted by 1024 under either name.
enum class MemoryUnit { gb, gib };

/// In what people want to read values. What is stored, compared or read by programs stays in °C and bytes.
struct Units {
    TemperatureUnit temperature = TemperatureUnit::celsius;
    NetworkUnit network = NetworkUnit::bytes;
    MemoryUnit memory = MemoryUnit::gb;

    bool operator==(const Units&) const = default;
};

constexpr double inUnit(double celsius, TemperatureUnit unit) {
    return unit == TemperatureUnit::fahrenheit ? celsius * 1.8 + 32.0 : celsius;
}

} // namespace vantrix
