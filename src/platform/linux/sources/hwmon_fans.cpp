#include "platform/linux/sources/hwmon_fans.h"

#include <algorithm>
#include <utility>

#include "platform/linux/sources/background_thread.h"

namespace vantrix {
namespace {

std::optional<double> readOnce(const std::string& path) {
    KernelFile file(path);
    return readNumber(file);
}

} // namespace

HwmonFans::HwmonFans(std::string sys, std::shared_ptr<const Clock> clock)
    : sys_(std::move(sys)), clock_(std::move(clock)), schedule_({sys_ + "/class/hwmon"}) {}

void HwmonFans::beginPass() {
    if (schedule_.isDue())
        search();
    for (Chip& chip : chips_)
        chip.isAwake = chip.rest.look() == DeviceRest::State::awake;
}

std::optional<double> HwmonFans::speed(int fan) {
    Fan& sensor = fans_[static_cast<std::size_t>(fan)];
    if (!chips_[sensor.chip].isAwake) {
        sensor.didAnswer = false;
        return std::nullopt;
    }
    if (!std::exchange(sensor.hasLimits, true)) {
        sensor.minimum = readOnce(sensor.path + "_min");
        sensor.maximum = readOnce(sensor.path + "_max");
    }
    bool failed = false;
    double now = clock_->uptime();
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
        const auto background = std::make_shared<BackgroundThread>();
        chips.push_back({DeviceRest(chip.folder + "/device"), false});
        const bool isAwake = chips.back().rest.look() == DeviceRest::State::awake;
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
    TimedSensor sensor(std::make_unique<FileProbe>(path + "_input", 1.0, path + "_fault"), std::move(background),
                       clock_);
    Fan fan{{path, {}, std::move(sensor)}, 0, {}, {}, false, false};
    fan.didTurn = isAwake && fan.sensor.value().value_or(0.0) > 0.0;
    return fan;
}

} // namespace vantrix
