#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "linux/sensors/sensor_files.h"

namespace vantrix {

/// A chip of <sys>/class/hwmon. Its number there changes from start to start; its name and device do not.
struct HwmonChip {
    std::string name;   ///< its driver's name for it: "coretemp", "nvme", …
    std::string folder; ///< that of its sensors, resolved
    std::string device; ///< that of the device behind it; the same where a driver puts the sensors there
};

/// All chips, sorted by name and device.
std::vector<HwmonChip> findHwmonChips(const std::string& sys);

/// The numbers n of the files <prefix><n><suffix> in `folder`, ascending.
std::vector<int> sensorNumbers(const std::string& folder, std::string_view prefix, std::string_view suffix);

/// A sensor that outlives a new search as long as its file and name stay the same.
struct KeptSensor {
    std::string path;
    std::string name;
    TimedSensor sensor;
    bool didAnswer = false;

    /// The value; `failed` is set when the sensor answered before and does not now. `now` as for the sensor.
    std::optional<double> read(double& now, bool& failed);
};

/// Takes the sensor of this file and name out of `known`, or makes one with `make()`.
template<typename Sensor, typename Make>
Sensor takeOrMake(std::vector<Sensor>& known, const std::string& path, std::string_view name, Make make) {
    for (Sensor& sensor : known) {
        if (sensor.path == path && sensor.name == name)
            return std::move(sensor);
    }
    return make();
}

} // namespace vantrix
