#pragma once

#include <memory>
#include <optional>
#include <string>

#include "accessories/accessories_sampler.h"
#include "samplers/battery_sampler.h"
#include "samplers/cpu_sampler.h"
#include "samplers/disk_sampler.h"
#include "samplers/gpu_sampler.h"
#include "samplers/location_access.h"
#include "samplers/memory_sampler.h"
#include "samplers/network_info_sampler.h"
#include "samplers/network_sampler.h"
#include "samplers/pass_bracket.h"
#include "samplers/process_sampler.h"
#include "sensors/hid_temperature_sampler.h"
#include "sensors/io_report_sampler.h"
#include "sensors/sensor_keys.h"
#include "support/clock.h"
#include "support/system_information.h"

namespace vantrix {

/// Where the kernel's file trees are mounted. Other roots are for watching a host from inside a container and for the
/// recorded machines of the tests. Only Linux has such trees.
struct KernelRoots {
    // Without a slash at the end.
    std::string proc = "/proc";
    std::string sys = "/sys";

    bool operator==(const KernelRoots&) const = default;
};

/// The first of the roots that this user cannot read, if any. On a system without such trees there is none.
std::optional<std::string> unreadableRoot(const KernelRoots& roots);

/// Everything the samplers read from. Null where the system offers no way to read it: `gpu`, the three sources of
/// sensors, `battery`, `accessories`, `networkInfo` and `processes`; `location` where a network's name needs no
/// permission; `bracket` where it makes no difference. The others are never null.
struct SamplingSources {
    std::unique_ptr<Clock> clock;
    std::unique_ptr<SystemInformation> information;
    std::unique_ptr<CPUSampler::Source> cpu;
    std::unique_ptr<MemorySampler::Source> memory;
    std::unique_ptr<NetworkSampler::Source> network;
    std::unique_ptr<NetworkInfoSampler::Source> networkInfo;
    std::unique_ptr<LocationManager> location;
    std::unique_ptr<DiskSampler::CounterSource> disks;
    std::unique_ptr<DiskSampler::VolumeSource> volume;
    std::unique_ptr<GPUSampler::Source> gpu;
    std::unique_ptr<SensorKeys> sensorKeys;
    std::unique_ptr<HIDTemperatureSampler::Source> temperatures;
    std::unique_ptr<IOReportSampler::Source> energy;
    std::unique_ptr<BatterySampler::Source> battery;
    std::unique_ptr<AccessoriesSampler> accessories;
    std::unique_ptr<ProcessSampler::Source> processes;
    std::shared_ptr<PassBracket> bracket;
};

SamplingSources makeSamplingSources(const KernelRoots& roots);

} // namespace vantrix
