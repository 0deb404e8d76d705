#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/sampling_sources.h"
#include "sensors/sensors_sampler.h"

namespace vantrix::simulated {

/// Every reading in words, by name; "-" for an absent one.
using ReadingTexts = std::map<std::string, std::string>;

/// All samplers over the sources of the present machine.
class Instruments {
  public:
    Instruments();

    /// One pass of all samplers.
    ReadingTexts pass();

  private:
    SamplingSources sources_;
    CPUSampler cpu_;
    MemorySampler memory_;
    NetworkSampler network_;
    NetworkInfoSampler networkInfo_;
    DiskSampler disk_;
    GPUSampler gpu_;
    SensorsSampler sensors_;
    BatterySampler battery_;
};

} // namespace vantrix::simulated
