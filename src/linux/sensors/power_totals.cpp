#include "linux/sensors/power_totals.h"

#include <algorithm>
#include <set>
#include <utility>

#include "linux/kernel/background_thread.h"
#include "linux/kernel/kernel_tree.h"
#include "linux/sensors/supply_kind.h"
#include "linux/sensors/supply_power.h"

namespace vantrix {
namespace {

constexpr double leastElapsed = 0.1; // seconds
constexpr double microwatt = 1e-6;

/// The beginnings of the paths of a chip's power sensors, "…/power1".
std::vector<std::string> metersOf(const std::string& folder) {
    auto numbers = sensorNumbers(folder, "power", "_average");
    const auto others = sensorNumbers(folder, "power", "_input");
    numbers.insert(numbers.end(), others.begin(), others.end());
    std::vector<std::string> meters;
    for (const int number : std::set(numbers.begin(), numbers.end()))
        meters.push_back(folder + "/power" + std::to_string(number));
    return meters;
}

} // namespace

PowerTotals::PowerTotals(std::string sys, std::shared_ptr<const Clock> clock, std::shared_ptr<DeviceThreads> threads)
    : sys_(std::move(sys)), clock_(std::move(clock)), threads_(std::move(threads)),
      schedule_({sys_ + "/class/hwmon", sys_ + "/class/power_supply", sys_ + "/class/powercap"}) {}

void PowerTotals::beginPass() {
    if (schedule_.isDue())
        search();
}

std::optional<double> PowerTotals::system() {
    if (const auto power = platformPower())
        return power;
    if (const auto power = sum(meters_))
        return power;
    const auto drained = sum(batteries_);
    // A weak adapter carries a part of the load beside the batteries.
    return drained ? std::optional(*drained + sum(adapters_).value_or(0.0)) : std::nullopt;
}

std::optional<double> PowerTotals::adapter() {
    return sum(adapters_);
}

std::optional<double> PowerTotals::platformPower() {
    if (!platform_)
        return std::nullopt;
    const auto energy = platform_->zone.read();
    const auto before = std::exchange(platform_->energy, energy);
    const double now = clock_->uptime();
    const double elapsed = now - std::exchange(platform_->time, now);
    if (!energy || !before || !(elapsed > leastElapsed))
        return std::nullopt;
    const auto growth = platform_->zone.growth(*energy, *before);
    // Some boards do not feed the counter: it stands still.
    return growth && *growth > 0 ? std::optional(static_cast<double>(*growth) * 1e-6 / elapsed) : std::nullopt;
}

std::optional<double> PowerTotals::sum(std::vector<KeptSensor>& sensors) {
    std::optional<double> sum;
    double now = clock_->uptime();
    for (KeptSensor& sensor : sensors) {
        if (const auto value = sensor.sensor.value(now))
            sum = sum.value_or(0.0) + *value;
    }
    return sum;
}

void PowerTotals::search() {
    std::vector<KeptSensor> meters, adapters, batteries;
    findMeters(meters, adapters);
    findSupplies(adapters, batteries);
    meters_ = std::move(meters);
    adapters_ = std::move(adapters);
    batteries_ = std::move(batteries);
    findPlatform();
}

void PowerTotals::findPlatform() {
    auto zones = findEnergyZones(sys_, clock_, threads_);
    const auto found = std::find_if(zones.begin(), zones.end(), [](const auto& zone) { return zone.name() == "psys"; });
    if (found == zones.end())
        platform_.reset();
    else if (!platform_ || platform_->zone.folder() != found->folder())
        platform_.emplace(Platform{std::move(*found), {}, 0.0});
}

void PowerTotals::findMeters(std::vector<KeptSensor>& system, std::vector<KeptSensor>& adapter) {
    for (const HwmonChip& chip : findHwmonChips(sys_)) {
        for (const std::string& meter : metersOf(chip.folder)) {
            const std::string label = readName(meter + "_label");
            const bool isSystem = chip.name == "power_meter" || label == "Total System Power";
            if (!isSystem && label != "AC Input Power")
                continue;
            auto& list = isSystem ? system : adapter;
            list.push_back(takeOrMake(isSystem ? meters_ : adapters_, meter, label, [&] {
                const bool isAveraging = pathExists(meter + "_average");
                auto probe = std::make_unique<FileProbe>(meter + (isAveraging ? "_average" : "_input"), microwatt);
                return KeptSensor{meter, label,
                                  TimedSensor(std::move(probe), std::make_shared<DeviceThread>(threads_), clock_)};
            }));
        }
    }
}

void PowerTotals::findSupplies(std::vector<KeptSensor>& adapters, std::vector<KeptSensor>& batteries) {
    const std::string root = sys_ + "/class/power_supply/";
    for (const std::string& entry : suppliesOf(sys_, SupplyKind::battery))
        batteries.push_back(findSupply(batteries_, root + entry, entry, "status", "Discharging"));
    for (const std::string& entry : suppliesOf(sys_, SupplyKind::external)) {
        const std::string type = readName(root + entry + "/type");
        // USB ports tell what was agreed upon, not what flows, unless they measure power itself.
        if (type == "Mains" || (type == "USB" && pathExists(root + entry + "/power_now")))
            adapters.push_back(findSupply(adapters_, root + entry, entry, "online", "1"));
    }
}

KeptSensor PowerTotals::findSupply(std::vector<KeptSensor>& known, const std::string& entry, const std::string& name,
                                   const std::string& stateFile, const std::string& state) const {
    const std::string folder = resolvedPath(entry);
    return takeOrMake(known, folder, name, [&] {
        return KeptSensor{folder, name,
                          TimedSensor(std::make_unique<SupplyPower>(folder, stateFile, state),
                                      std::make_shared<DeviceThread>(threads_), clock_)};
    });
}

} // namespace vantrix
