#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "support/clock.h"

namespace vantrix {

struct DiskSample {
    std::uint64_t total = 0;         ///< bytes of the volume; 0 when it cannot be asked, or is gone
    std::uint64_t available = 0;     ///< bytes a user may still write there
    std::optional<double> readRate;  ///< bytes per second over all disks; absent until two readings exist
    std::optional<double> writeRate; ///< absent together with `readRate`

    bool operator==(const DiskSample&) const = default;
};

/// (total − available) / total, 0 to 1; 0 when available exceeds total or the total is 0.
double usedFraction(const DiskSample& disk);

class DiskSampler {
  public:
    /// Cumulative bytes of one disk; a missing counter counts as 0.
    struct Counters {
        std::optional<std::uint64_t> bytesRead;
        std::optional<std::uint64_t> bytesWritten;
    };

    /// Capacity of the system's volume, in bytes: the one at "/", unless that is an image which nobody writes to.
    struct Volume {
        std::optional<std::int64_t> total;
        std::optional<std::int64_t> available;

        bool operator==(const Volume&) const = default;
    };

    class CounterSource {
      public:
        virtual ~CounterSource() = default;
        /// Replaces `disks` by the counters of every disk that has statistics. False when they cannot be read;
        /// `disks` is then unspecified.
        virtual bool read(std::vector<Counters>& disks) = 0;
    };

    class VolumeSource {
      public:
        virtual ~VolumeSource() = default;
        virtual std::optional<Volume> read() = 0;
        /// Reads what is mounted at `mountPoint` from now on, and nothing once it is gone; empty: the system's volume.
        virtual void choose(const std::string& /*mountPoint*/) {}
        /// The mount points of the volumes to choose among: those of real devices, sorted.
        virtual std::vector<std::string> mounted() const { return {}; }
    };

    /// The sources and `clock` outlive the sampler.
    DiskSampler(CounterSource& counters, VolumeSource& volume, const Clock& clock)
        : counters_(counters), volume_(volume), clock_(clock) {}

    /// Space now, and the rates since the last call whose counters could be read. One caller at a time.
    DiskSample sample();

  private:
    struct Totals {
        double time = 0.0; // of the clock
        std::uint64_t read = 0;
        std::uint64_t written = 0;
    };

    void readSpace(DiskSample& sample);
    void readRates(DiskSample& sample);
    std::optional<Totals> readTotals();

    CounterSource& counters_;
    VolumeSource& volume_;
    const Clock& clock_;
    std::vector<Counters> disks_;
    std::optional<Totals> previous_;
};

} // namespace vantrix
