#include "doctor/examination.h"

#include <algorithm>

#include "doctor/sample_texts.h"
#include "sensors/sensors_sampler.h"
#include "support/finishes_within.h"
#include "support/text_format.h"

namespace vantrix {
namespace {

namespace name = reading_name;

constexpr std::size_t timedReads = 5;

/// What one read gave, in the order of its probe's readings; an empty list when it failed.
using Values = std::vector<Finding>;

double microsecondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

Finding value(std::string text, std::string note = {}) {
    return {std::move(text), std::move(note), std::nullopt, false};
}

double median(std::vector<double>& numbers) {
    const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
    std::nth_element(numbers.begin(), middle, numbers.end());
    return *middle;
}

} // namespace

/// The samplers of one machine.
struct Examination::Machine {
    explicit Machine(SamplingSources given)
        : sources(std::move(given)), cpu(*sources.cpu), memory(*sources.memory),
          network(*sources.network, *sources.clock), disk(*sources.disks, *sources.volume, *sources.clock),
          sensors(sources.sensorKeys.get(), sources.temperatures.get(), sources.energy.get(), *sources.clock) {
        if (sources.networkInfo)
            networkInfo.emplace(*sources.networkInfo);
        if (sources.gpu)
            gpu.emplace(*sources.gpu);
        if (sources.battery)
            battery.emplace(*sources.battery);
    }

    Values readCPU() {
        const CPUSample* sample = cpu.sample();
        return {value(sample && !cpu.isBaseline() ? compactPercent(sample->total) : "")};
    }
    Values readMemory() {
        const auto sample = memory.sample();
        if (!sample)
            return {};
        return {value(memoryUseText(*sample)), value(wordOf(sample->pressure))};
    }
    Values readNetwork() {
        const auto sample = network.sample();
        return {value(sample ? networkText(*sample) : "")};
    }
    Values readConnection() {
        if (!networkInfo)
            return {};
        const NetworkInfo& info = networkInfo->sample(true, LocationAccess::authorizedAlways);
        const bool isOverWiFi = info.kind == NetworkInfo::Kind::wifi;
        return {value(wordOf(info.kind)),
                value(signalText(info), isOverWiFi ? "" : "The connection does not go over it.")};
    }
    Values readDisk() {
        const DiskSample sample = disk.sample();
        return {value(diskSpaceText(sample)), value(diskRatesText(sample))};
    }
    Values readGPU() {
        const auto load = gpu ? gpu->sample() : std::nullopt;
        return {value(load ? compactPercent(*load) : "")};
    }
    Values readSensors() {
        const SensorsSample& sample = sensors.sample();
        return {value(temperaturesText(sample)), value(fansText(sample)), value(wattsText(sample.systemPower)),
                value(sample.components ? wattsText(sample.components->cpu) : "")};
    }
    Values readBattery() {
        const auto sample = battery ? battery->sample() : std::nullopt;
        return {value(sample ? batteryText(*sample) : "")};
    }
    Values readAccessories() {
        return {value(sources.accessories ? accessoriesText(sources.accessories->scan()) : "")};
    }

    SamplingSources sources;
    CPUSampler cpu;
    MemorySampler memory;
    NetworkSampler network;
    std::optional<NetworkInfoSampler> networkInfo;
    DiskSampler disk;
    std::optional<GPUSampler> gpu;
    SensorsSampler sensors;
    std::optional<BatterySampler> battery;
};

struct Examination::Probe {
    std::vector<std::string_view> readings; ///< all that a read gives; the first has the cost
    Values (Machine::*read)();
    bool isOnPass = true; ///< read on every pass, and quickly
};

struct Examination::Measured {
    Values values;
    double microseconds = 0.0;
};

const std::vector<Examination::Probe>& Examination::probes() {
    static const std::vector<Probe> all{
        {{name::processor}, &Machine::readCPU},
        {{name::memory, name::pressure}, &Machine::readMemory},
        {{name::network}, &Machine::readNetwork},
        {{name::connection, name::wifi}, &Machine::readConnection},
        {{name::diskSpace, name::diskRates}, &Machine::readDisk},
        {{name::gpu}, &Machine::readGPU},
        {{name::temperatures, name::fans, name::systemPower, name::chipPower}, &Machine::readSensors},
        {{name::battery}, &Machine::readBattery},
        {{name::accessories}, &Machine::readAccessories, false},
    };
    return all;
}

Examination::Examination(SamplingSources sources, std::chrono::milliseconds patience)
    : machine_(std::make_shared<Machine>(std::move(sources))), patience_(patience), hangs_(probes().size()) {}

void Examination::beginPass() {
    for (std::size_t i = 0; i < probes().size(); ++i) {
        const Probe& probe = probes()[i];
        if (probe.isOnPass)
            hangs_[i] = !finishesWithin(patience_, [machine = machine_, read = probe.read] { ((*machine).*read)(); });
    }
}

/// Absent where it hangs.
std::optional<Examination::Measured> Examination::measure(std::size_t place) {
    const Probe& probe = probes()[place];
    const auto measured = std::make_shared<Measured>();
    // A slow source is read less often, so that only one that hangs uses up the patience.
    const double enough = std::chrono::duration<double, std::micro>(patience_).count() / 4.0;
    const auto read = [measured, enough, machine = machine_, read = probe.read,
                       most = probe.isOnPass ? timedReads : 1] {
        std::vector<double> costs;
        for (double spent = 0.0; costs.size() < most && spent < enough; spent += costs.back()) {
            const auto start = std::chrono::steady_clock::now();
            Values values = ((*machine).*read)();
            costs.push_back(microsecondsSince(start));
            if (costs.size() == 1) // later ones measure rates over no time
                measured->values = std::move(values);
        }
        measured->microseconds = median(costs);
    };
    hangs_[place] = hangs_[place] || !finishesWithin(patience_, read);
    return hangs_[place] ? std::nullopt : std::optional(std::move(*measured));
}

Findings Examination::finish() {
    Findings findings;
    for (std::size_t i = 0; i < probes().size(); ++i) {
        const auto& readings = probes()[i].readings;
        auto measured = measure(i);
        Values values = measured ? std::move(measured->values) : Values();
        values.resize(readings.size());
        for (std::size_t j = 0; j < readings.size(); ++j) {
            values[j].isSilent = !measured;
            findings[readings[j]] = std::move(values[j]);
        }
        if (measured)
            findings[readings.front()].microseconds = measured->microseconds;
    }
    return findings;
}

bool Examination::leftThreadBehind() const {
    return std::find(hangs_.begin(), hangs_.end(), true) != hangs_.end();
}

} // namespace vantrix
