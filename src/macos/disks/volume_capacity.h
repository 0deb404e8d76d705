#pragma once

#include "samplers/disk_sampler.h"

namespace vantrix {

/// Resource values of the file URL "/", or of a mount point that somebody chose. The available space is what important
/// usage may take, purgeable space included.
class VolumeCapacity : public DiskSampler::VolumeSource {
  public:
    std::optional<DiskSampler::Volume> read() override;
    void choose(const std::string& mountPoint) override { mountPoint_ = mountPoint; }
    std::vector<std::string> mounted() const override;

  private:
    std::string mountPoint_; // empty: "/"
};

} // namespace vantrix
