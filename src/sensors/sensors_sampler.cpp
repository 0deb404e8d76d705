#include "sensors/sensors_sampler.h"

#include <algorithm>
#include <initializer_list>
#include <numeric>
#include <string_view>

#include "support/ascii_case.h"

namespace vantrix {
namespace {

constexpr int mostFans = 4;

bool hasAny(std::string_view name, std::initializer_list<std::string_view> words) {
    return std::any_of(words.begin(), words.end(),
                       [&](std::string_view word) { return name.find(word) != std::string_view::npos; });
}

bool isBattery(std::string_view name) {
    constexpr std::string_view word = "battery";
    const auto isSame = [](char a, char b) { return loweredASCII(a) == b; };
    return std::search(name.begin(), name.end(), word.begin(), word.end(), isSame) != name.end() ||
           hasAny(name, {"gas gauge"});
}

struct Group {
    double sum = 0.0;
    double hottest = 0.0;
    int count = 0;

    void add(double value) {
        sum += value;
        hottest = std::max(hottest, value);
        ++count;
    }
    std::optional<double> mean() const { return count > 0 ? std::optional(sum / count) : std::nullopt; }
    std::optional<double> maximum() const { return count > 0 ? std::optional(hottest) : std::nullopt; }
};

std::optional<double> firstPlausible(SensorKeys& keys, std::initializer_list<std::string_view> names) {
    for (const std::string_view name : names) {
        const auto value = keys.value(name);
        if (value && isPlausibleTemperature(*value))
            return value;
    }
    return std::nullopt;
}

std::optional<double> plausiblePower(SensorKeys& keys, std::string_view name) {
    const auto value = keys.value(name);
    return value && *value > 0.05 && *value < 600.0 ? value : std::nullopt;
}

std::optional<double> fanValue(SensorKeys& keys, int fan, std::string_view what) {
    const char name[] = {'F', static_cast<char>('0' + fan), what[0], what[1]};
    return keys.value({name, sizeof name});
}

} // namespace

SensorsSampler::SensorsSampler(SensorKeys* keys, HIDTemperatureSampler::Source* temperatures,
                               IOReportSampler::Source* energy, const Clock& clock)
    : keys_(keys) {
    if (temperatures)
        hid_.emplace(*temperatures);
    if (energy)
        ioReport_.emplace(*energy, clock);
}

const SensorsSample& SensorsSampler::sample() {
    static const std::vector<TemperatureReading> none;
    const auto& readings = hid_ ? hid_->read() : none;
    deriveTemperatures(readings);
    sortByValue(readings);
    if (readings.empty() && keys_)
        readTemperatureKeys();
    if (keys_) {
        readFans();
        readPowers();
    }
    if (ioReport_) {
        if (const auto components = ioReport_->read())
            lastComponents_ = components;
    }
    sample_.components = lastComponents_;
    return sample_;
}

const SensorsSampler::Groups& SensorsSampler::groupsAt(std::size_t place, const std::string& name) {
    if (place == groups_.size())
        groups_.emplace_back();
    Groups& groups = groups_[place];
    if (groups.name != name)
        groups = {name,
                  hasAny(name, {"tdie", "pACC", "eACC", "CPU"}),
                  hasAny(name, {"GPU"}),
                  hasAny(name, {"SOC", "SoC"}),
                  hasAny(name, {"NAND"}),
                  isBattery(name)};
    return groups;
}

void SensorsSampler::deriveTemperatures(const std::vector<TemperatureReading>& readings) {
    Group cpu, gpu, soc, ssd, battery;
    for (std::size_t i = 0; i < readings.size(); ++i) {
        const Groups& groups = groupsAt(i, readings[i].name);
        const double value = readings[i].value;
        if (groups.cpu)
            cpu.add(value);
        if (groups.gpu)
            gpu.add(value);
        if (groups.soc)
            soc.add(value);
        if (groups.ssd)
            ssd.add(value);
        if (groups.battery)
            battery.add(value);
    }
    sample_.cpu = cpu.mean();
    sample_.cpuHottest = cpu.maximum();
    sample_.gpu = gpu.mean();
    sample_.soc = soc.mean();
    sample_.ssd = ssd.mean();
    sample_.battery = battery.mean();
}

/// Hottest first, equal values in the order of the list.
void SensorsSampler::sortByValue(const std::vector<TemperatureReading>& readings) {
    if (order_.size() != readings.size()) {
        order_.resize(readings.size());
        std::iota(order_.begin(), order_.end(), std::size_t{0});
    }
    const auto isBefore = [&](std::size_t a, std::size_t b) {
        return readings[a].value != readings[b].value ? readings[a].value > readings[b].value : a < b;
    };
    for (auto end = order_.begin(); end != order_.end(); ++end) // by insertion, as little has changed its place
        std::rotate(std::upper_bound(order_.begin(), end, *end, isBefore), end, end + 1);
    std::size_t longest = 0;
    for (const TemperatureReading& reading : readings)
        longest = std::max(longest, reading.name.size());
    sample_.all.resize(readings.size());
    for (std::size_t i = 0; i < order_.size(); ++i) {
        TemperatureReading& place = sample_.all[i];
        place.name.reserve(longest); // any sensor may come here on a later pass
        place.name = readings[order_[i]].name;
        place.value = readings[order_[i]].value;
    }
}

void SensorsSampler::readTemperatureKeys() {
    sample_.cpu = sample_.cpuHottest = firstPlausible(*keys_, {"TC0P", "TC0D", "TC0E", "TC0F"});
    sample_.gpu = firstPlausible(*keys_, {"TG0P", "TG0D"});
    sample_.ssd = firstPlausible(*keys_, {"TH0P", "TH0a"});
    sample_.battery = firstPlausible(*keys_, {"TB0T"});
}

void SensorsSampler::readFans() {
    sample_.fans.clear();
    const double number = keys_->value("FNum").value_or(0.0);
    if (!(number >= 1.0))
        return;
    const int count = number >= mostFans ? mostFans : static_cast<int>(number);
    for (int i = 0; i < count; ++i) {
        const auto rpm = fanValue(*keys_, i, "Ac");
        if (!rpm || !(*rpm >= 0.0 && *rpm < 20000.0))
            continue;
        const auto minRPM = fanValue(*keys_, i, "Mn");
        sample_.fans.push_back({i, *rpm, minRPM, fanValue(*keys_, i, "Mx")});
    }
}

void SensorsSampler::readPowers() {
    sample_.systemPower = plausiblePower(*keys_, "PSTR");
    sample_.adapterPower = plausiblePower(*keys_, "PDTR");
}

} // namespace vantrix
