#pragma once

#include <optional>
#include <span>

#include "support/properties.h"

namespace vantrix {

/// How busy the graphics processor is.
class GPUSampler {
  public:
    class Source {
      public:
        virtual ~Source() = default;
        /// The performance statistics of every accelerator, empty where one publishes none; hold until the next call.
        /// Numbers in percent under "Device Utilization %" or "GPU Activity(%)". Absent when they cannot be listed.
        virtual std::optional<std::span<const Properties>> read() = 0;
    };

    /// `source` outlives the sampler.
    explicit GPUSampler(Source& source) : source_(source) {}

    /// The load of the busiest accelerator, 0 to 1; absent when none tells. Every call stands alone.
    std::optional<double> sample();

  private:
    Source& source_;
};

} // namespace vantrix
