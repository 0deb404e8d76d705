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
        /// The performance statistics of each accelerator, empty for one that publishes none; valid until the next
        /// call. Percentages under "Device Utilization %" or "GPU Activity(%)". Absent when they cannot be listed.
        virtual std::optional<std::span<const Properties>> read() = 0;
    };

    /// `source` outlives the sampler.
    explicit GPUSampler(Source& source) : source_(source) {}

    /// The load of the busiest accelerator, 0 to 1; absent when none reports one. Every call stands alone.
    std::optional<double> sample();

  private:
    Source& source_;
};

} // namespace vantrix
