#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vantrix {

/// What is known of a temperature sensor when it is found.
struct FoundTemperature {
    std::string chip;  ///< name of a hwmon chip, or type of a thermal zone
    std::string label; ///< what the chip calls it; may be empty
    std::string model; ///< of a drive; may be empty
    int number = 0;    ///< the chip's number for it; 0 when it is the only one
    bool isBattery = false;
    std::size_t device = 0; ///< the same for the sensors of one chip
};

/// Whether a chip of this name measures the processor itself.
bool isProcessorChip(std::string_view chip);

/// Names for people that say the component in the words it is known by: "CPU", "GPU", "SoC", "NAND", "battery". Of the
/// sensors of a drive or graphics card only the one that stands for the whole bears it. Boards have sensors near the
/// processor that they name after it, often wired to nothing: those bear such a word only where the component has no
/// sensor of its own.
std::vector<std::string> temperatureNames(const std::vector<FoundTemperature>& found);

} // namespace vantrix
