#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "sensors/sensors_sample.h"
#include "support/clock.h"

namespace vantrix {

class IOReportSampler {
  public:
    /// What one counter grew by between two snapshots.
    struct Channel {
        std::string group; ///< "Energy Model" for counters of energy
        std::optional<std::string> name;
        std::optional<std::string> unit; ///< "mJ", "uJ" or "nJ"
        std::int64_t value = 0;
    };

    class Source {
      public:
        virtual ~Source() = default;
        /// Remembers all counters as they are now, and those of the snapshot before. False when they cannot be read;
        /// the snapshots taken earlier then stay.
        virtual bool takeSnapshot() = 0;
        /// Replaces `channels` by the growth between the last two snapshots. False when it cannot be read; `channels`
        /// is then unspecified.
        virtual bool readDifference(std::vector<Channel>& channels) = 0;
    };

    /// `source` and `clock` outlive the sampler.
    IOReportSampler(Source& source, const Clock& clock) : source_(source), clock_(clock) {}

    /// The average power since the previous call. Absent on the first call, when no more than 0.1 s have passed, and
    /// when no channel gives a component a plausible power.
    std::optional<ComponentPower> read();

  private:
    std::optional<ComponentPower> sum(double elapsed) const;

    Source& source_;
    const Clock& clock_;
    std::vector<Channel> channels_;
    std::optional<double> previousTime_;
};

} // namespace vantrix
