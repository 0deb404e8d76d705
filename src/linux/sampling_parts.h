#pragma once

#include <functional>

#include "linux/graphics/nvidia_library.h"
#include "platform/sampling_sources.h"

namespace vantrix {

/// What the sources do not read from files of the kernel's trees alone, or not wherever those lie.
struct SamplingParts {
    std::function<std::unique_ptr<Clock>()> makeClock;
    std::unique_ptr<SystemInformation> information;
    std::unique_ptr<NetworkSampler::Source> network;
    std::unique_ptr<NetworkInfoSampler::Source> networkInfo;
    std::unique_ptr<DiskSampler::VolumeSource> volume;
    std::unique_ptr<NvidiaLibrary> nvidia;
    /// Null where what runs on the machine is nobody else's business.
    std::unique_ptr<ProcessSampler::Source> processes;
};

SamplingSources makeSamplingSources(const KernelRoots& roots, SamplingParts parts);

} // namespace vantrix
