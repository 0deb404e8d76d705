#pragma once

#include "samplers/network_sampler.h"

namespace vantrix {

/// getifaddrs; the link-level entries hold the counters.
class LinkRecords : public NetworkSampler::Source {
  public:
    bool read(std::vector<NetworkSampler::Link>& links) override;
    NetworkSampler::CounterWidth counterWidth() const override { return NetworkSampler::CounterWidth::bits32; }
};

} // namespace vantrix
