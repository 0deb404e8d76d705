#pragma once

#include "platform/sampling_sources.h"
#include "sensors/sensors_sampler.h"

namespace vantrix {

/// Every sampler over one machine's kernel.
struct AllSamplers {
    explicit AllSamplers(const KernelRoots& roots) : sources(makeSamplingSources(roots)) {}

    const SamplingSources sources;
    CPUSampler cpu{*sources.cpu};
    MemorySampler memory{*sources.memory};
    NetworkSampler network{*sources.network, *sources.clock};
    NetworkInfoSampler networkInfo{*sources.networkInfo};
    DiskSampler disk{*sources.disks, *sources.volume, *sources.clock};
    GPUSampler gpu{*sources.gpu};
    SensorsSampler sensors{sources.sensorKeys.get(), sources.temperatures.get(), sources.energy.get(), *sources.clock};
    BatterySampler battery{*sources.battery};
};

} // namespace vantrix
