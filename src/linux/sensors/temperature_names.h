#pragma once

#include <string>
#include <vector>

#include "linux/sensors/found_temperatures.h"

namespace vantrix {

/// Names for people that say the component in the words it is known by: "CPU", "GPU", "SoC", "NAND", "battery". Of the
/// sensors of a processor, graphics card or drive only the one that stands for the whole bears it; the cores do where
/// they alone are told, and the sensor of the system on a chip where nothing closer to the processor is. Boards have
/// sensors near the processor that they name after it, often wired to nothing: those bear such a word only where the
/// component has no sensor of its own. Of several devices of one kind all but the first bear their number.
std::vector<std::string> temperatureNames(const std::vector<FoundTemperature>& found);

} // namespace vantrix
