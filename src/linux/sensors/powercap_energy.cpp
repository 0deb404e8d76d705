#include "linux/sensors/powercap_energy.h"

#include <algorithm>
#include <limits>
#include <string_view>

namespace vantrix {
namespace {

void putChannel(std::vector<IOReportSampler::Channel>& channels, std::size_t place, std::string_view name,
                std::uint64_t energy) {
    if (place == channels.size())
        channels.emplace_back();
    IOReportSampler::Channel& channel = channels[place];
    channel.group = "Energy Model";
    channel.name = name;
    channel.unit = "uJ";
    channel.value = static_cast<std::int64_t>(energy);
}

bool isComponent(std::string_view zone) {
    return zone.starts_with("package") || zone == "uncore" || zone == "dram";
}

} // namespace

std::optional<std::uint64_t> PowercapEnergy::Counter::growth() const {
    // A counter that never left zero belongs to a part that is not there.
    if (!now || !before || *now == 0)
        return std::nullopt;
    return zone.growth(*now, *before);
}

PowercapEnergy::PowercapEnergy(std::string sys, std::shared_ptr<const Clock> clock,
                               std::shared_ptr<DeviceThreads> threads)
    : sys_(std::move(sys)), clock_(std::move(clock)), threads_(std::move(threads)),
      schedule_({sys_ + "/class/powercap"}) {}

bool PowercapEnergy::takeSnapshot() {
    if (schedule_.isDue())
        search();
    bool hasAny = false;
    for (Counter& counter : counters_) {
        counter.next = counter.zone.read();
        hasAny = hasAny || counter.next;
    }
    if (!hasAny)
        return false;
    for (Counter& counter : counters_) {
        counter.before = counter.now;
        counter.now = counter.next;
    }
    return true;
}

bool PowercapEnergy::readDifference(std::vector<IOReportSampler::Channel>& channels) {
    std::size_t count = 0;
    for (const Counter& counter : counters_) {
        const auto growth = counter.growth();
        const std::string& name = counter.zone.name();
        if (!growth)
            continue;
        if (name.starts_with("package"))
            putChannel(channels, count++, "CPU Energy", *growth - std::min(*growth, graphicsGrowth(counter.zone)));
        else if (name == "uncore")
            putChannel(channels, count++, "GPU Energy", *growth);
        else if (name == "dram")
            putChannel(channels, count++, "DRAM", *growth);
    }
    channels.resize(count);
    return true;
}

void PowercapEnergy::search() {
    std::vector<Counter> counters;
    for (EnergyZone& zone : findEnergyZones(sys_, clock_, threads_)) {
        if (!isComponent(zone.name()))
            continue; // each read wakes a processor of the package
        const auto known = std::find_if(counters_.begin(), counters_.end(), [&](const Counter& counter) {
            return counter.zone.folder() == zone.folder() && counter.zone.name() == zone.name();
        });
        if (known != counters_.end())
            counters.push_back(std::move(*known));
        else
            counters.push_back({std::move(zone), {}, {}, {}});
    }
    counters_ = std::move(counters);
}

std::uint64_t PowercapEnergy::graphicsGrowth(const EnergyZone& package) const {
    for (const Counter& counter : counters_) {
        const bool isPart = counter.zone.id().starts_with(package.id()) &&
                            counter.zone.id().substr(package.id().size()).starts_with(':');
        if (isPart && counter.zone.name() == "uncore")
            return counter.growth().value_or(0);
    }
    return 0;
}

} // namespace vantrix
