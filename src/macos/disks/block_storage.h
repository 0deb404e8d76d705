#pragma once

#include "macos/kernel/cf_values.h"
#include "samplers/disk_sampler.h"

namespace vantrix {

/// The dictionary "Statistics" of every IOBlockStorageDriver.
class BlockStorage : public DiskSampler::CounterSource {
  public:
    bool read(std::vector<DiskSampler::Counters>& disks) override;

  private:
    PropertyTable statistics_{"Bytes (Read)", "Bytes (Write)"};
};

} // namespace vantrix
