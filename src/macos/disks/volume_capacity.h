#pragma once

#include "samplers/disk_sampler.h"

namespace vantrix {

/// Resource values of the file URL of "/"; available is what important use may still take, purgeable space included.
class VolumeCapacity : public DiskSampler::VolumeSource {
  public:
    std::optional<DiskSampler::Volume> read() override;
};

} // namespace vantrix
