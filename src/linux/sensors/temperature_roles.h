#pragma once

#include <string_view>

#include "linux/sensors/found_temperatures.h"

namespace vantrix {

/// The component whose own sensor this is: "CPU", "GPU", "SoC", "NAND" or "Battery"; empty for all others.
std::string_view componentOf(const FoundTemperature& sensor);

/// Whether a chip of this name measures the processor itself.
bool isProcessorChip(std::string_view chip);

/// True for a sensor of a part of the component, a single core for one, beside that of the whole: parts are up to 30 °C
/// warmer or colder.
bool isOfPart(const FoundTemperature& sensor, const std::vector<FoundTemperature>& all);

/// True for a value that steers the fans of a processor, and lies 10 to 27 °C above its temperature.
bool isOffsetValue(const FoundTemperature& sensor, const std::vector<FoundTemperature>& all);

/// Which of several devices of one kind the sensor belongs to: 1 for the first, 2 for the next. Those that sleep count,
/// too.
std::size_t ordinalOf(const FoundTemperature& sensor, const std::vector<FoundTemperature>& all);

} // namespace vantrix
