#include "linux/sensors/hwmon_fans.h"

#include <algorithm>
#include <utility>

namespace vantrix {
namespace {

/// Registers that nobody has set hold anything.
std::optional<double> plausibleLimit(std::optional<double> rpm) {
    constexpr double tooFast = 20000.0; // as for speeds
    return rpm && *rpm >= 0.0 && *rpm < tooFast ? rpm : std::nullopt;
}

} // namespace

/// The speed of a fan, and, with the first of it, its limits.
class HwmonFans::Probe : public TimedSensor::Probe {
  public:
    Probe(const std::string& path, std::shared_ptr<Limits> limits)
        : path_(path), speed_(path + "_input", 1.0, path + "_fault"), limits_(std::move(limits)) {}

    std::optional<double> read() override {
        if (!std::exchange(hasLimits_, true)) {
            limits_->minimum.set(plausibleLimit(FileProbe(path_ + "_min", 1.0).read()));
            limits_->maximum.set(plausibleLimit(FileProbe(path_ + "_max", 1.0).read()));
        }
        return speed_.read();
    }

  private:
    std::string path_;
    FileProbe speed_;
    std::shared_ptr<Limits> limits_;
    bool hasLimits_ = false;
};

HwmonFans::HwmonFans(std::string sys, std::shared_ptr<const Clock> clock, std::shared_ptr<DeviceThreads> threads)
    : sys_(std::move(sys)), clock_(std::move(clock)), threads_(std::move(threads)), schedule_({sys_ + "/class/hwmon"}) {
}

void HwmonFans::beginPass() {
    if (schedule_.isDue())
        search();
    const double now = clock_->uptime();
    for (Chip& chip : chips_)
        chip.state = chip.rest.look(now);
}

std::optional<double> HwmonFans::speed(int fan) {
    Fan& sensor = fans_[static_cast<std::size_t>(fan)];
    const auto state = chips_[sensor.chip].state;
    if (state == DeviceRest::State::asleep) {
        sensor.didAnswer = false;
        return std::nullopt;
    }
    double now = clock_->uptime();
    if (state == DeviceRest::State::idle)
        return sensor.sensor.lastValue(now, DeviceRest::longestBridge);
    bool failed = false;
    const auto value = sensor.read(now, failed);
    if (failed)
        schedule_.noteFailure();
    return value;
}

void HwmonFans::search() {
    std::vector<Fan> fans;
    std::vector<Chip> chips;
    for (const HwmonChip& chip : findHwmonChips(sys_)) {
        const auto numbers = sensorNumbers(chip.folder, "fan", "_input");
        if (numbers.empty())
            continue;
        const auto background = std::make_shared<DeviceThread>(threads_);
        chips.push_back({DeviceRest(chip.device), {}});
        const bool isAwake = chips.back().rest.look(clock_->uptime()) == DeviceRest::State::awake;
        for (const int number : numbers) {
            const std::string path = chip.folder + "/fan" + std::to_string(number);
            fans.push_back(takeOrMake(fans_, path, chip.name, [&] { return makeFan(path, background, isAwake); }));
            fans.back().name = chip.name;
            fans.back().chip = chips.size() - 1;
        }
    }
    std::stable_partition(fans.begin(), fans.end(), [](const Fan& fan) { return fan.didTurn; });
    fans_ = std::move(fans);
    chips_ = std::move(chips);
}

HwmonFans::Fan HwmonFans::makeFan(const std::string& path, std::shared_ptr<Background> background, bool isAwake) const {
    const auto limits = std::make_shared<Limits>();
    TimedSensor sensor(std::make_unique<Probe>(path, limits), std::move(background), clock_);
    Fan fan{{path, {}, std::move(sensor)}, 0, limits, false};
    fan.didTurn = isAwake && fan.sensor.value().value_or(0.0) > 0.0;
    return fan;
}

} // namespace vantrix
