#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace vantrix {

/// What is known of a temperature sensor when it is found.
struct FoundTemperature {
    std::string chip;  ///< name of a hwmon chip, or type of a thermal zone
    std::string label; ///< what the chip calls it; may be empty
    std::string model; ///< of a drive; may be empty
    int number = 0;    ///< the chip's number for it; 0 when it is the only one
    bool isBattery = false;
    std::size_t device = 0; ///< its chip's place among those found
    std::string path;       ///< holds millidegrees
    std::string faultPath;  ///< holds 1 while the sensor has a fault; empty where nothing tells
};

struct FoundTemperatures {
    struct Chip {
        std::string name;
        std::string device; ///< folder of the device behind it
    };

    std::vector<FoundTemperature> sensors; ///< chip by chip
    std::vector<Chip> chips;
};

/// The sensors of <sys>/class/hwmon without those of accessories, and of <sys>/class/thermal where no chip is the
/// processor's. Asks none for its value.
FoundTemperatures findTemperatures(const std::string& sys);

} // namespace vantrix
