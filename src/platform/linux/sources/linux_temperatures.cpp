#include "platform/linux/sources/linux_temperatures.h"

#include <algorithm>
#include <tuple>

#include "platform/linux/sources/background_thread.h"
#include "platform/linux/sources/kernel_tree.h"

namespace vantrix {
namespace {

constexpr double frozenAfter = 3600.0; // seconds
constexpr double idleAge = 60.0;       // seconds that a resting disk's temperature still counts

constexpr double millidegree = 1e-3;

} // namespace

bool FrozenWatch::isFrozen(double value, double now) {
    if (value != value_) {
        value_ = value;
        since_ = now;
    }
    return now - since_ > frozenAfter;
}

LinuxTemperatures::LinuxTemperatures(std::string sys, std::shared_ptr<const Clock> clock)
    : sys_(std::move(sys)), clock_(std::move(clock)), schedule_({sys_ + "/class/hwmon", sys_ + "/class/thermal"}) {}

bool LinuxTemperatures::read(std::vector<HIDTemperatureSampler::Service>& services) {
    if (schedule_.isDue())
        search();
    for (Chip& chip : chips_)
        chip.state = chip.rest.look();
    bool failed = false;
    double now = clock_->uptime();
    services.resize(sensors_.size());
    for (std::size_t i = 0; i < sensors_.size(); ++i) {
        services[i].product = sensors_[i].name;
        services[i].temperature = readSensor(sensors_[i], now, failed);
    }
    if (failed)
        schedule_.noteFailure();
    return true;
}

std::optional<double> LinuxTemperatures::readSensor(Sensor& sensor, double& now, bool& failed) {
    switch (chips_[sensor.chip].state) {
    case DeviceRest::State::asleep:
        sensor.didAnswer = false;
        return std::nullopt;
    case DeviceRest::State::idle:
        return sensor.sensor.lastValue(idleAge);
    case DeviceRest::State::awake:
        break;
    }
    const auto value = sensor.read(now, failed);
    if (!value)
        sensor.watch = FrozenWatch();
    const bool canFreeze = sensor.name.starts_with("CPU");
    if (value && canFreeze && sensor.watch.isFrozen(*value, now))
        return std::nullopt;
    return value;
}

void LinuxTemperatures::search() {
    Found found;
    for (const HwmonChip& chip : findHwmonChips(sys_))
        findInputs(chip, found);
    if (found.places.empty())
        findZones(found);
    const auto names = temperatureNames(found.temperatures);
    std::vector<std::shared_ptr<Background>> backgrounds; // one a chip: a sensor that hangs holds up its chip alone
    for (std::size_t i = 0; i < found.chips.size(); ++i)
        backgrounds.push_back(std::make_shared<BackgroundThread>());
    std::vector<Sensor> sensors;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const Place& place = found.places[i];
        sensors.push_back(takeOrMake(sensors_, place.path, names[i], [&] {
            auto probe = std::make_unique<FileProbe>(place.path, millidegree, place.faultPath);
            return Sensor{
                {place.path, names[i], TimedSensor(std::move(probe), backgrounds[place.chip], clock_)}, 0, {}};
        }));
        sensors.back().chip = place.chip;
    }
    sensors_ = std::move(sensors);
    chips_ = std::move(found.chips);
}

void LinuxTemperatures::findInputs(const HwmonChip& chip, Found& found) const {
    const auto numbers = sensorNumbers(chip.folder, "temp", "_input");
    const std::string device = chip.folder + "/device";
    const bool isBattery = readName(device + "/type") == "Battery";
    // Mice and headsets have batteries too, which are not this machine's.
    if (numbers.empty() || (isBattery && readName(device + "/scope") == "Device"))
        return;
    const bool isDrive = chip.name == "drivetemp";
    const std::string model = isDrive || chip.name == "nvme" ? readName(device + "/model") : std::string();
    for (const int number : numbers) {
        const std::string input = chip.folder + "/temp" + std::to_string(number);
        found.temperatures.push_back(
            {chip.name, readName(input + "_label"), model, numbers.size() > 1 ? number : 0, isBattery});
        found.places.push_back({input + "_input", input + "_fault", found.chips.size()});
    }
    found.chips.push_back({DeviceRest(device, isDrive), {}});
}

void LinuxTemperatures::findZones(Found& found) const {
    const std::string root = sys_ + "/class/thermal";
    std::vector<std::pair<std::string, std::string>> zones;
    for (const int number : sensorNumbers(root, "thermal_zone", "")) {
        const std::string folder = resolvedPath(root + "/thermal_zone" + std::to_string(number));
        zones.emplace_back(readName(folder + "/type"), folder);
    }
    std::stable_sort(zones.begin(), zones.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    for (const auto& [type, folder] : zones) {
        if (type.empty())
            continue;
        found.temperatures.push_back({type, type, {}, 0, false});
        found.places.push_back({folder + "/temp", {}, found.chips.size()});
        found.chips.push_back({DeviceRest(folder + "/device"), {}});
    }
}

} // namespace vantrix
