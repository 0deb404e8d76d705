#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/sampling_sources.h"
#include "sensors/sensors_sampler.h"

namespace vantrix {

/// Every sampler of one machine, with the sources that they read. A sampler is absent where the system has no source
/// for it.
struct Samplers {
    explicit Samplers(SamplingSources given) : sources(std::move(given)) {}

    template<typename Sampler>
    static std::optional<Sampler> ifPresent(const std::unique_ptr<typename Sampler::Source>& source) {
        return source ? std::optional<Sampler>(*source) : std::nullopt;
    }

    /// Reads one port and one volume alone from now on: its name, its mount point. Empty: all ports, the system's
    /// volume.
    void choose(const std::string& port, const std::string& volume) {
        network.choose(port);
        sources.volume->choose(volume);
        mountPoint = volume;
    }

    /// To be kept while a pass goes through the samplers.
    [[nodiscard]] PassScope beginPass() const { return PassScope(sources.bracket); }

    SamplingSources sources;
    CPUSampler cpu{*sources.cpu};
    MemorySampler memory{*sources.memory};
    NetworkSampler network{*sources.network, *sources.clock};
    std::optional<NetworkInfoSampler> networkInfo = ifPresent<NetworkInfoSampler>(sources.networkInfo);
    DiskSampler disk{*sources.disks, *sources.volume, *sources.clock};
    std::optional<GPUSampler> gpu = ifPresent<GPUSampler>(sources.gpu);
    SensorsSampler sensors{sources.sensorKeys.get(), sources.temperatures.get(), sources.energy.get(), *sources.clock};
    std::optional<ProcessSampler> processes =
        sources.processes ? std::optional<ProcessSampler>(std::in_place, *sources.processes, *sources.clock)
                          : std::nullopt;
    std::string mountPoint; ///< of the chosen volume
    std::optional<BatterySampler> battery = ifPresent<BatterySampler>(sources.battery);
};

} // namespace vantrix
