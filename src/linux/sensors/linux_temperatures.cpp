#include "linux/sensors/linux_temperatures.h"

#include <algorithm>

#include "linux/sensors/found_temperatures.h"
#include "linux/sensors/temperature_names.h"

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
                                     std::shared_ptr<const TimedValues> nvidia, std::shared_ptr<DeviceThreads> threads)
    : sys_(std::move(sys)), clock_(std::move(clock)), nvidia_(std::move(nvidia)), threads_(std::move(threads)),
      schedule_({sys_ + "/class/hwmon", sys_ + "/class/thermal"}) {}

bool LinuxTemperatures::read(std::vector<HIDTemperatureSampler::Service>& services) {
    if (schedule_.isDue())
        search();
    double now = clock_->uptime();
    for (Chip& chip : chips_)
        chip.state = chip.rest.look(now);
    for (Sensor& sensor : sensors_)
        if (chips_[sensor.chip].state == DeviceRest::State::awake)
            sensor.sensor.ask(now);
    bool failed = false;
    services.resize(sensors_.size() + (nvidia_ ? nvidia_->size() : 0));
    for (std::size_t i = 0; i < sensors_.size(); ++i) {
        services[i].product = sensors_[i].name;
        services[i].temperature = readSensor(sensors_[i], now, failed);
    }
    for (std::size_t i = sensors_.size(); i < services.size(); ++i)
        services[i] = ofNvidia(i - sensors_.size(), now);
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
        return sensor.sensor.lastValue(now, DeviceRest::longestBridge);
    case DeviceRest::State::awake:
        break;
    }
    return sensor.read(now, failed);
}

/// The names are short enough to need no memory of their own.
HIDTemperatureSampler::Service LinuxTemperatures::ofNvidia(std::size_t place, double now) const {
    const std::string number = place > 0 ? std::to_string(place + 1) + ' ' : std::string();
    return {"GPU " + number + "NVIDIA", (*nvidia_)[place].value(now)};
}

void LinuxTemperatures::search() {
    const FoundTemperatures found = findTemperatures(sys_);
    const auto names = temperatureNames(found.sensors);
    std::vector<std::shared_ptr<Background>> backgrounds; // one a chip: a sensor that hangs holds up its chip alone
    chips_.clear();
    for (const auto& [name, device] : found.chips) {
        backgrounds.push_back(std::make_shared<DeviceThread>(threads_));
        chips_.push_back({DeviceRest(device, name == "drivetemp", intervalOf(name)), {}});
    }
    std::vector<Sensor> sensors;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const FoundTemperature& place = found.sensors[i];
        sensors.push_back(takeOrMake(sensors_, place.path, names[i], [&] {
            auto probe = std::make_unique<FileProbe>(place.path, millidegree, place.faultPath);
            return Sensor{{place.path, names[i], TimedSensor(std::move(probe), backgrounds[place.device], clock_)}, 0};
        }));
        sensors.back().chip = place.device;
    }
    sensors_ = std::move(sensors);
}

} // namespace vantrix
