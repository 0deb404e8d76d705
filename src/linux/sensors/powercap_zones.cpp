#include "linux/sensors/powercap_zones.h"

#include <algorithm>

#include "linux/kernel/kernel_tree.h"

namespace vantrix {
namespace {

/// Counters beyond this make no sense, and below it a double holds each whole number.
constexpr double largestEnergy = 1e15; // µJ

std::optional<std::uint64_t> energyOf(std::optional<double> value) {
    if (!value || !(*value >= 0.0 && *value <= largestEnergy))
        return std::nullopt;
    return static_cast<std::uint64_t>(*value);
}

} // namespace

std::optional<std::uint64_t> wrappedGrowth(std::uint64_t now, std::uint64_t before, std::uint64_t range) {
    if (now >= before)
        return now - before;
    // A counter that was reset looks like one that wrapped, but by more power than any machine has.
    return before <= range ? std::optional(range - before + now) : std::nullopt;
}

EnergyZone::EnergyZone(std::string folder, std::string name, std::shared_ptr<const Clock> clock,
                       const std::shared_ptr<DeviceThreads>& threads)
    : folder_(std::move(folder)), id_(folder_.substr(folder_.rfind('/') + 1)), name_(std::move(name)),
      counter_(std::make_unique<FileProbe>(folder_ + "/energy_uj", 1.0), std::make_shared<DeviceThread>(threads),
               std::move(clock), TimedSensor::Kind::registers) {
    KernelFile range(folder_ + "/max_energy_range_uj");
    range_ = energyOf(readNumber(range)).value_or(0);
}

std::optional<std::uint64_t> EnergyZone::read() {
    return energyOf(counter_.value());
}

std::vector<EnergyZone> findEnergyZones(const std::string& sys, const std::shared_ptr<const Clock>& clock,
                                        const std::shared_ptr<DeviceThreads>& threads) {
    const std::string root = sys + "/class/powercap/";
    // With the colon: "intel-rapl" is no zone, and "intel-rapl-mmio:0" counts the package a second time.
    auto entries = entriesStartingWith(root, "intel-rapl:");
    std::sort(entries.begin(), entries.end());
    std::vector<EnergyZone> zones;
    for (const std::string& entry : entries) {
        const std::string folder = root + entry;
        zones.emplace_back(folder, readName(folder + "/name"), clock, threads);
    }
    return zones;
}

} // namespace vantrix
