#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "monitor/samplers.h"

namespace vantrix {

/// What was measured of one reading.
struct Finding {
    std::string value;                  ///< in a few English words, without anything private; empty when there is none
    std::string note;                   ///< added to the reason its source gives
    std::optional<double> microseconds; ///< of one read; absent when the read belongs to another reading
    bool isSilent = false;              ///< a read did not end in time
};

/// One read of a sampler.
struct Probe {
    std::vector<std::string_view> readings;  ///< what it gives, by names of `reading_name`; the first has the cost
    std::vector<Finding> (*read)(Samplers&); ///< in the order of `readings`, or empty when it failed
    bool isOnPass = true;                    ///< read on every pass, and quickly
};

/// The probes of all readings.
const std::vector<Probe>& probes();

} // namespace vantrix
