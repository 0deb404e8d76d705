#include "linux/sensors/hwmon_chips.h"

#include <algorithm>
#include <tuple>

#include "linux/kernel/kernel_tree.h"
#include "support/integer.h"

namespace vantrix {

std::vector<HwmonChip> findHwmonChips(const std::string& sys) {
    const std::string root = sys + "/class/hwmon/";
    std::vector<HwmonChip> chips;
    for (const std::string& entry : entriesStartingWith(root, "hwmon")) {
        std::string folder = resolvedPath(root + entry);
        std::string device = folder + "/device";
        std::string name = readName(folder + "/name");
        if (name.empty()) { // registered the old way: everything is in the device's own folder
            name = readName(device + "/name");
            folder = device = resolvedPath(device);
        }
        if (!name.empty())
            chips.push_back({std::move(name), std::move(folder), std::move(device)});
    }
    // A resolved folder ends in the number, but begins with the device, which is what tells chips apart.
    std::sort(chips.begin(), chips.end(), [](const HwmonChip& a, const HwmonChip& b) {
        return std::tie(a.name, a.folder) < std::tie(b.name, b.folder);
    });
    return chips;
}

std::vector<int> sensorNumbers(const std::string& folder, std::string_view prefix, std::string_view suffix) {
    std::vector<int> numbers;
    for (const std::string& entry : entriesStartingWith(folder, prefix)) {
        const auto number = parseInteger<int>(std::string_view(entry).substr(prefix.size()), suffix);
        if (number && *number >= 0)
            numbers.push_back(*number);
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

std::optional<double> KeptSensor::read(double& now, bool& failed) {
    const auto value = sensor.value(now);
    failed = failed || (didAnswer && !value);
    didAnswer = value.has_value();
    return value;
}

} // namespace vantrix
