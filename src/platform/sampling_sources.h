#pragma once

#include <memory>
#include <string>

#include "accessories/accessories_sampler.h"
#include "samplers/cpu_sampler.h"
#include "samplers/disk_sampler.h"
#include "samplers/memory_sampler.h"
#include "samplers/network_sampler.h"
#include "support/clock.h"
#include "support/system_information.h"

namespace vantrix {

/// Where the kernel's file trees are mounted. Other roots serve a host watched from inside a container, and the
/// recorded machines of the tests. Only Linux has such trees.
struct KernelRoots {
    std::string proc = "/proc";
    std::string sys = "/sys";

    bool operator==(const KernelRoots&) const = default;
};

/// Everything the samplers read from. Nothing here is null except `accessories`, where a system has no slow scan.
struct SamplingSources {
    std::unique_ptr<Clock> clock;
    std::unique_ptr<SystemInformation> information;
    std::unique_ptr<CPUSampler::Source> cpu;
    std::unique_ptr<MemorySampler::Source> memory;
    std::unique_ptr<NetworkSampler::Source> network;
    std::unique_ptr<DiskSampler::CounterSource> disks;
    std::unique_ptr<DiskSampler::VolumeSource> volume;
    std::unique_ptr<AccessoriesSampler> accessories;
};

SamplingSources makeSamplingSources(const KernelRoots& roots);

} // namespace vantrix
