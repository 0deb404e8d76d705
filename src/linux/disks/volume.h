#pragma once

#include <string>

#include "samplers/disk_sampler.h"

namespace vantrix {

/// Capacity of a volume by statvfs; available is what users without privileges may still write.
class VolumeStatistics : public DiskSampler::VolumeSource {
  public:
    /// `path` is any folder on the volume.
    explicit VolumeStatistics(std::string path) : path_(std::move(path)) {}

    std::optional<DiskSampler::Volume> read() override;

  private:
    std::string path_;
};

/// The start-up volume of the machine whose /proc is mounted at `proc`: the root of its first process, where that is
/// another machine's and may be looked into, else "/".
std::string rootVolume(const std::string& proc);

} // namespace vantrix
