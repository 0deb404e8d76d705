#pragma once

#include "samplers/disk_sampler.h"

namespace vantrix {

/// Resource values of the file URL "/". The available space is what important usage may take, purgeable space included.
class VolumeCapacity : public DiskSampler::VolumeSource {
  public:
    std::optional<DiskSampler::Volume> read() override;
};

} // namespace vantrix
