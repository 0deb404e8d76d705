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

/// What one read gave, by reading.
using Values = std::vector<std::pair<std::string_view, Finding>>;

double microsecondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

Finding value(std::string text, std::string note = {}) {
    Finding finding;
    finding.value = std::move(text);
    finding.note = std::move(note);
    return finding;
}

/// The sensors of another source, counted.
class CountedTemperatures : public HIDTemperatureSampler::Source {
  public:
    explicit CountedTemperatures(HIDTemperatureSampler::Source* source) : source_(source) {}

    bool read(std::vector<HIDTemperatureSampler::Service>& services) override {
        const bool isRead = source_ && source_->read(services);
        count = isRead ? services.size() : 0;
        return isRead;
    }

    std::size_t count = 0;

  private:
    HIDTemperatureSampler::Source* source_;
};

} // namespace

/// The samplers of one machine.
struct Examination::Machine {
    explicit Machine(SamplingSources given)
        : sources(std::move(given)), cpu(*sources.cpu), memory(*sources.memory),
          network(*sources.network, *sources.clock), disk(*sources.disks, *sources.volume, *sources.clock),
          countedTemperatures(sources.temperatures.get()),
          temperatures(nullptr, &countedTemperatures, nullptr, *sources.clock),
          keys(sources.sensorKeys.get(), nullptr, nullptr, *sources.clock),
          energy(nullptr, nullptr, sources.energy.get(), *sources.clock) {
        if (sources.networkInfo)
            networkInfo.emplace(*sources.networkInfo);
        if (sources.gpu)
            gpu.emplace(*sources.gpu);
        if (sources.battery)
            battery.emplace(*sources.battery);
    }

    Values readCPU() {
        const CPUSample* sample = cpu.sample();
        return {{name::processor, value(sample && !cpu.isBaseline() ? compactPercent(sample->total) : "")}};
    }
    Values readMemory() {
        const auto sample = memory.sample();
        if (!sample)
            return {};
        return {{name::memory, value(memoryUseText(*sample))}, {name::pressure, value(pressureText(sample->pressure))}};
    }
    Values readNetwork() {
        const auto sample = network.sample();
        return {{name::network, value(sample ? networkText(*sample) : "")}};
    }
    Values readConnection() {
        if (!networkInfo)
            return {};
        const NetworkInfo& info = networkInfo->sample(true, LocationAccess::authorizedAlways);
        const bool isOverWiFi = info.kind == NetworkInfo::Kind::wifi;
        return {{name::connection, value(connectionText(info))},
                {name::wifi, value(signalText(info), isOverWiFi ? "" : "The connection does not go over it.")}};
    }
    Values readDisk() {
        const DiskSample sample = disk.sample();
        return {{name::diskSpace, value(diskSpaceText(sample))}, {name::diskRates, value(diskRatesText(sample))}};
    }
    Values readGPU() {
        const auto load = gpu ? gpu->sample() : std::nullopt;
        return {{name::gpu, value(load ? compactPercent(*load) : "")}};
    }
    Values readTemperatures() {
        const SensorsSample& sample = temperatures.sample();
        const std::size_t all = countedTemperatures.count;
        const std::size_t missing = all - sample.all.size();
        const std::string note = std::to_string(missing) + " of " + std::to_string(all) + " sensors give no value.";
        return {{name::temperatures, value(temperaturesText(sample), missing > 0 ? note : "")}};
    }
    Values readKeys() {
        const SensorsSample& sample = keys.sample();
        return {{name::fans, value(fansText(sample))}, {name::systemPower, value(wattsText(sample.systemPower))}};
    }
    Values readEnergy() {
        const auto components = energy.sample().components;
        return {{name::chipPower, value(components ? wattsText(components->cpu) : "")}};
    }
    Values readBattery() {
        const auto sample = battery ? battery->sample() : std::nullopt;
        return {{name::battery, value(sample ? batteryText(*sample) : "")}};
    }
    Values readAccessories() {
        return {{name::accessories, value(sources.accessories ? accessoriesText(sources.accessories->scan()) : "")}};
    }

    SamplingSources sources;
    CPUSampler cpu;
    MemorySampler memory;
    NetworkSampler network;
    std::optional<NetworkInfoSampler> networkInfo;
    DiskSampler disk;
    std::optional<GPUSampler> gpu;
    CountedTemperatures countedTemperatures;
    SensorsSampler temperatures;
    SensorsSampler keys;
    SensorsSampler energy;
    std::optional<BatterySampler> battery;
};

struct Examination::Probe {
    std::string_view name; ///< the reading that has the cost
    Values (Machine::*read)();
    bool isOnPass = true; ///< read on every pass, and quickly
};

const std::vector<Examination::Probe>& Examination::probes() {
    static const std::vector<Probe> all{
        {name::processor, &Machine::readCPU},
        {name::memory, &Machine::readMemory},
        {name::network, &Machine::readNetwork},
        {name::connection, &Machine::readConnection},
        {name::diskSpace, &Machine::readDisk},
        {name::gpu, &Machine::readGPU},
        {name::temperatures, &Machine::readTemperatures},
        {name::fans, &Machine::readKeys},
        {name::chipPower, &Machine::readEnergy},
        {name::battery, &Machine::readBattery},
        {name::accessories, &Machine::readAccessories, false},
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

Findings Examination::finish() {
    struct Timed {
        Values values;
        std::vector<double> costs;
    };
    Findings findings;
    for (std::size_t i = 0; i < probes().size(); ++i) {
        const Probe& probe = probes()[i];
        const auto timed = std::make_shared<Timed>();
        const auto read = [timed, machine = machine_, read = probe.read, count = probe.isOnPass ? timedReads : 1] {
            while (timed->costs.size() < count) {
                const auto start = std::chrono::steady_clock::now();
                Values values = ((*machine).*read)();
                timed->costs.push_back(microsecondsSince(start));
                if (timed->costs.size() == 1) // later ones measure rates over no time
                    timed->values = std::move(values);
            }
        };
        if (hangs_[i] || !finishesWithin(patience_, read)) {
            findings[std::string(probe.name)].isSilent = true;
            continue;
        }
        for (const auto& [reading, finding] : timed->values)
            findings[std::string(reading)] = finding;
        std::nth_element(timed->costs.begin(),
                         timed->costs.begin() + static_cast<std::ptrdiff_t>(timed->costs.size() / 2),
                         timed->costs.end());
        findings[std::string(probe.name)].microseconds = timed->costs[timed->costs.size() / 2];
    }
    return findings;
}

} // namespace vantrix
