#include "linux/sensors/linux_temperatures.h"

#include <algorithm>

#include "linux/kernel/background_thread.h"
#include "linux/sensors/supply_kind.h"
#include "linux/sensors/thermal_zones.h"

namespace vantrix {
namespace {

constexpr double millidegree = 1e-3;

/// Seconds between questions to a chip: those of drives and wireless devices are commands to them, the others reads.
double intervalOf(std::string_view chip) {
    constexpr double ofCommands = 15.0;
    const auto isPrefix = [&](std::string_view prefix) { return chip.starts_with(prefix); };
    constexpr std::string_view commanded[] = {"nvme", "drivetemp", "iwlwifi", "mt7", "ath"};
    return std::any_of(std::begin(commanded), std::end(commanded), isPrefix) ? ofCommands : 0.0;
}

} // namespace

LinuxTemperatures::LinuxTemperatures(std::string sys, std::shared_ptr<const Clock> clock,
                                     std::shared_ptr<const TimedValue> nvidia)
    : sys_(std::move(sys)), clock_(std::move(clock)), nvidia_(std::move(nvidia)),
      schedule_({sys_ + "/class/hwmon", sys_ + "/class/thermal"}) {}

bool LinuxTemperatures::read(std::vector<HIDTemperatureSampler::Service>& services) {
    if (schedule_.isDue())
        search();
    double now = clock_->uptime();
    for (Chip& chip : chips_)
        chip.state = chip.rest.look(now);
    bool failed = false;
    const auto ofNvidia = nvidia_ ? nvidia_->value(now) : std::nullopt;
    services.resize(sensors_.size() + (ofNvidia ? 1 : 0));
    for (std::size_t i = 0; i < sensors_.size(); ++i) {
        services[i].product = sensors_[i].name;
        services[i].temperature = readSensor(sensors_[i], now, failed);
    }
    if (ofNvidia)
        services.back() = {"GPU NVIDIA", ofNvidia};
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
        return sensor.sensor.lastValue(DeviceRest::longestBridge);
    case DeviceRest::State::awake:
        break;
    }
    return sensor.read(now, failed);
}

void LinuxTemperatures::search() {
    Found found;
    for (const HwmonChip& chip : findHwmonChips(sys_))
        findInputs(chip, found);
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
            return Sensor{{place.path, names[i], TimedSensor(std::move(probe), backgrounds[place.chip], clock_)}, 0};
        }));
        sensors.back().chip = place.chip;
    }
    sensors_ = std::move(sensors);
    chips_ = std::move(found.chips);
}

void LinuxTemperatures::findInputs(const HwmonChip& chip, Found& found) const {
    const auto numbers = sensorNumbers(chip.folder, "temp", "_input");
    const SupplyKind kind = supplyKind(chip.device); // of a battery's chip
    if (numbers.empty() || kind == SupplyKind::accessory)
        return;
    const bool isDrive = chip.name == "drivetemp";
    const std::string model = isDrive || chip.name == "nvme" ? readName(chip.device + "/model") : std::string();
    for (const int number : numbers) {
        const std::string input = chip.folder + "/temp" + std::to_string(number);
        found.temperatures.push_back({chip.name, readName(input + "_label"), model, numbers.size() > 1 ? number : 0,
                                      kind == SupplyKind::battery, found.chips.size()});
        found.places.push_back({input + "_input", input + "_fault", found.chips.size()});
    }
    found.chips.push_back({DeviceRest(chip.device, isDrive, intervalOf(chip.name)), {}});
    found.chipNames.push_back(chip.name);
}

void LinuxTemperatures::findZones(Found& found) const {
    for (const auto& [type, folder] : findThermalZones(sys_, found.chipNames)) {
        found.temperatures.push_back({type, type, {}, 0, false, found.chips.size()});
        found.places.push_back({folder + "/temp", {}, found.chips.size()});
        found.chips.push_back({DeviceRest(folder + "/device", false, intervalOf(type)), {}});
    }
}

} // namespace vantrix
